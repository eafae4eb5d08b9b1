#pragma once
// What a yes or a no to a news item carries out, by the type of the schedule
// entry the item is linked to. Each takes the entry as it was read.
#include "world/records.h"

namespace trovane {

class Game;

// A person agrees to join: they start with today's run of the schedule.
void startInThePost(Game& g, const ScheduleRecord& e);
// The player confirms a deal a band has agreed: the signing is filed.
void confirmTheDeal(Game& g, const ScheduleRecord& e);
// The player turns down a deal a band has agreed: the offer is void, the band
// decides again today among what is left, and the player hears of it.
void dealFallsThrough(Game& g, const ScheduleRecord& e);
// The player takes the look an image report proposes.
void takeTheNewLook(Game& g, const ScheduleRecord& e);
// A yes to a rival's tour: the band takes the next support place on every gig.
void joinTourAsSupport(Game& g, const ScheduleRecord& e);
// The player accepts an invitation to an award ceremony.
void attendTheCeremony(Game& g, const ScheduleRecord& e);
// The player's band takes the place a festival offered it.
void playTheFestival(Game& g, const ScheduleRecord& e);

}  // namespace trovane
