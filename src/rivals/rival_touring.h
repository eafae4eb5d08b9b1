#pragma once
// How the computer-run labels tour and promote their acts, and the assistant's
// tour for the player.
#include <cstdint>
#include <string>

namespace trovane {

class Game;

// Schedule type 19: a rival's tour asks the player's band of the entry to support it.
void offerSupportSlot(Game& g);
// A tour for the current band: mode 1 follows a new album, mode 3 is the
// follow-up of an album out for a while. Too few venues, or a member retiring
// by the last gig, and no tour is made.
void planTour(Game& g, int mode);
// Each Sunday after the charts: a follow-up tour for every rival act with an
// album out in the last 61 days and no gig from today on.
void planFollowUpTours(Game& g);
// The assistant's tour for the player's band `band` in an area (and nation,
// 0 for none): the tour and its gigs are filed and `question` holds the
// "Confirm Tour" text; with too few venues nothing is filed, `tour` is 0 and
// `refusal` holds the assistant's message.
struct AssistantTour {
    int16_t tour = 0;
    std::string question;
    std::string refusal;
};
AssistantTour planAssistantTour(Game& g, int16_t band, const std::string& areaCode, uint8_t nation);

// Promotion for the current band's current disc.
void bookAllPromotion(Game& g, int flags);

}  // namespace trovane
