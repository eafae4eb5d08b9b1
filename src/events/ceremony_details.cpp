#include "events/ceremony_details.h"

#include <algorithm>

#include "world/fatal_error.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

std::string awardCandidates(int kind) {
    switch (kind) {
    case 0: return "Albums";
    case 1:
    case 5: return "Artists";
    case 2: return "Bands";
    case 3: return "Labels";
    case 4: return "Singles";
    case 6: return "Songs";
    default: return "";
    }
}

namespace {

CeremonyAward awardOf(const AwardRecord& a) {
    CeremonyAward out;
    out.award = a.id;
    out.name = trim(a.name.value);
    out.candidates = awardCandidates(a.kind);
    out.held = a.held;
    int count = std::min<int>(a.nomineeCount, static_cast<int>(a.nominees.size()));
    for (int k = 0; k < count; ++k) {
        auto at = static_cast<std::size_t>(k);
        std::string name = trim(a.nomineeNames[at].value);
        // The base world files counts with empty places: no one stands there.
        if (a.nominees[at] == 0 && name.empty()) break;
        out.nominees.push_back({std::move(name), a.scores[at], a.winner == k + 1});
    }
    count = static_cast<int>(out.nominees.size());
    if (a.winner >= 1 && a.winner <= count) {
        out.state = AwardState::won;
        out.winner = out.nominees[static_cast<std::size_t>(a.winner - 1)].name;
    } else if (count > 0) {
        out.state = AwardState::nominated;
    } else {
        out.state = a.held > 0 ? AwardState::notAwarded : AwardState::notJudged;
    }
    return out;
}

}  // namespace

CeremonyDetails ceremonyDetails(Game& g, int16_t ceremony) {
    if (ceremony < 1 || ceremony >= g.ceremony.recordCount())
        throw FatalError("There is no ceremony " + std::to_string(ceremony));
    g.ceremony.read(ceremony);
    const CeremonyRecord c = g.ceremony.rec;
    CeremonyDetails d;
    d.ceremony = ceremony;
    d.name = trim(c.name.value);
    if (c.country > 0 && g.country.readIfPresent(c.country)) d.country = trim(g.country->name.value);
    d.night = c.date;
    d.attending = c.playerInvited == kTrue;
    d.held = c.held;
    for (int16_t award : c.awards) {
        if (award < 1 || !g.award.readIfPresent(award)) continue;
        d.awards.push_back(awardOf(g.award.rec));
    }
    return d;
}

}  // namespace trovane
