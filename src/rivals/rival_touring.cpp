#include "rivals/rival_touring.h"

#include "rivals/rival_promotion.h"
#include "world/game.h"

namespace trovane {

// Not built yet: rivals do not tour until their touring is written.
void offerSupportSlot(Game& g) { static_cast<void>(g); }

// Not built yet: a rival's album is followed by no tour until touring is written.
void planTour(Game& g, int mode) {
    static_cast<void>(g);
    static_cast<void>(mode);
}

// Not built yet: the assistant plans no tour until the planner is written.
AssistantTour planAssistantTour(Game& g, int16_t band, const std::string& areaCode, uint8_t nation) {
    static_cast<void>(g);
    static_cast<void>(band);
    static_cast<void>(areaCode);
    static_cast<void>(nation);
    return {.tour = 0, .question = {}, .refusal = "The assistant cannot plan tours yet."};
}

void bookAllPromotion(Game& g, int flags) { bookAllPromotionNow(g, flags); }

}  // namespace trovane
