#include "talent/band_details.h"

#include <algorithm>

#include "label/scouting.h"
#include "talent/band_condition.h"
#include "talent/band_offers.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

BandDetails bandDetails(Game& g, int16_t band) {
    g.band.read(band);
    const BandRecord b = g.band.rec;
    BandDetails d{};
    d.id = band;
    d.name = trim(b.name.value);
    if (b.style > 0 && b.style < g.style.recordCount()) {
        g.style.read(b.style);
        d.style = trim(g.style->name.value);
    }
    d.label = "Unsigned";
    if (b.label > 0) {
        g.label.read(b.label);
        d.label = trim(g.label->name.value);
    }
    // formedIn is a city when formedInCity is set, else a country.
    int country = b.formedInCity != 0 ? 0 : b.formedIn;
    if (b.formedInCity != 0 && b.formedIn > 0 && b.formedIn < g.city.recordCount()) {
        g.city.read(b.formedIn);
        d.formed = trim(g.city->name.value);
        country = g.city->country;
    }
    if (country > 0 && country < g.country.recordCount()) {
        g.country.read(country);
        d.formed += (d.formed.empty() ? "" : ", ") + trim(g.country->name.value);
    }
    d.age = b.age;
    d.retired = b.retired != kFalse;
    for (std::size_t m = 0; m < 5; ++m) d.reputation[m] = b.reputation[m];
    int energy = 0;
    int count = 0;
    for (int i = 0; i < std::min<int>(b.memberCount, 10); ++i) {
        const int16_t who = b.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        g.artist.read(who);
        const ArtistRecord a = g.artist.rec;
        std::string job;
        if (a.job > 0 && a.job < g.job.recordCount()) {
            g.job.read(a.job);
            job = trim(a.male != 0 || trim(g.job->titleFemale.value).empty() ? g.job->title.value
                                                                             : g.job->titleFemale.value);
        }
        d.members.push_back({trim(a.forename.value) + " " + trim(a.surname.value), job, a.age});
        energy += a.energy;
        ++count;
    }
    if (b.label == 0 && !d.retired) {
        const std::string demands = demandsText(g, band);
        d.asked = AskedTerms{b.initialAdvance, b.additionalAdvance, b.additionalAdvanceCount,
                             b.optionLength,   b.royaltyRate,       demands};
    }
    g.band.read(band);
    d.interested = fillInterestedList(g);
    d.players = g.player.playerLabel > 0 && b.label == g.player.playerLabel;
    if (d.players) {
        d.ability = b.ability;
        d.energy = count == 0 ? 0 : roundTo<int>(static_cast<double>(energy) / count);
        if (count > 0) {
            g.artist.read(b.members[0]);
            for (const std::string& c : artistFeelings(g)) d.complaints.push_back(c);
        }
    }
    g.band.read(band);
    return d;
}

}  // namespace trovane
