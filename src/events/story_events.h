#pragma once
// Story events: each day a few root events are rolled; one that fires looks
// for its cast and starts a story.

#include <cstdint>
#include <string>

#include "world/records.h"

namespace trovane {

class Game;

void runRandomEvents(Game& g);

// The current event buffer fired: find its cast and start the story.
void tryStartEvent(Game& g);

// The first test of the condition block that the artist in the artist buffer
// fails, as participant `place` (0 or 1) beside first (0 while casting the
// first); empty when every test passes. Bounds: 0 no test, positive a minimum,
// negative a maximum, both inclusive.
std::string failedCondition(Game& g, const EventCondition& c, int place, int16_t first);

// The event in the event buffer starts as a story with that cast: its root is
// filed as a type 12 entry dated today (its own root), each participant marked.
void startEvent(Game& g, int16_t first, int16_t second);
// The verdict of the crime story of the stage: the crime's guilty event when
// the label's Finance and Law rating with noise comes in at or under the
// crime's line, else its acquittal; 0 without a crime.
int16_t verdictEvent(Game& g, const ScheduleRecord& stage);
// The follow-up roll of the stage in the schedule and event buffers.
void nextStage(Game& g);

// Schedule type 12: the next stage of a story.
void performStage(Game& g);

}  // namespace trovane
