#pragma once
// Story events: each day a few root events are rolled; one that fires looks
// for its cast and starts a story.

namespace trovane {

class Game;

void runRandomEvents(Game& g);

// The current event buffer fired: find its cast and start the story.
void tryStartEvent(Game& g);

// Schedule type 12: the next stage of a story.
void performStage(Game& g);

}  // namespace trovane
