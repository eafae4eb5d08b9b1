#include "talent/artist_functions.h"

#include <algorithm>
#include <cmath>

#include "world/game.h"

namespace trovane {

namespace {

double rnd(Game& g) { return static_cast<double>(g.rng.draw()); }

uint8_t percent(double v) { return roundTo<uint8_t>(std::clamp(v, 0.0, 100.0)); }

// template + Int(rnd * (100 - template)): somewhere between the style's level and the top.
double aboveTemplate(Game& g, int t) { return t + intFloor(rnd(g) * (100 - t)); }

const StyleRecord& styleOfArtist(Game& g) {
    g.style.read(g.artist->style);
    return g.style.rec;
}

}  // namespace

int32_t jitter(Game& g, int32_t v) {
    double up = intFloor(rnd(g) * v / 10);
    double down = intFloor(rnd(g) * v / 10);
    return narrow<int32_t>(v + up - down);
}

uint8_t setNewArtistAge(Game& g) {
    const StyleRecord& s = styleOfArtist(g);
    double age = 10 + 3 * roundHalfEven(s.lifeSpan / 10.0) + intFloor(rnd(g) * 7);
    g.artist->age = roundTo<uint8_t>(std::clamp(age, 17.0, 25.0));
    return g.artist->age;
}

void setArtistStats(Game& g, int32_t ceiling) {
    const StyleRecord& s = styleOfArtist(g);
    ArtistRecord& a = g.artist.rec;

    // Two draws on top of the style's level, so most artists of a dancing style dance well.
    int d = s.baseDancing;
    double dancing = d + roundHalfEven(rnd(g) * (100 - d));
    dancing += roundHalfEven(rnd(g) * (100 - d));
    a.dancing = percent(dancing);

    a.talentCeiling = percent(jitter(g, ceiling));
    a.visual = percent(s.baseVisual + roundHalfEven(rnd(g) * (100 - s.baseVisual)));

    // Styles whose acts last longer give a gentler share of the talent at the start.
    int k = toInteger(s.lifeSpan * 4 / 5.0) - 4;
    if (k < 2 || k > 6) k = k > 1 ? 6 : 1;
    double ability = roundHalfEven(a.talentCeiling / static_cast<double>(k)) +
                     roundHalfEven(a.talentCeiling / static_cast<double>(s.lifeSpan)) + 8 + a.age;
    a.ability = percent(ability);

    a.charisma = percent(aboveTemplate(g, s.baseCharisma));
    a.controversy = percent(jitter(g, s.baseControversy));
    int stamina = 70 + static_cast<int>(intFloor(rnd(g) * 30));
    a.composure = percent(jitter(g, stamina));
    a.stamina = percent(jitter(g, stamina));
    a.flair = percent(aboveTemplate(g, s.baseFlair));
    a.live = percent(aboveTemplate(g, s.baseLive));
    a.angst = percent(jitter(g, s.baseAngst));
    a.attitude = percent(jitter(g, s.baseAttitude));

    a.energy = 100;
    a.morale = 100;
    a.potential = std::clamp<uint8_t>(a.talentCeiling, 20, 100);
}

uint8_t jobForPlace(const Game& g, int place, bool solo) {
    const StyleRecord& s = g.style.rec;
    if (solo) return s.soloJob;
    uint8_t job = 0;
    for (std::size_t i = 0; i < s.bandJobs.size() && static_cast<int>(i) <= place; ++i)
        if (s.bandJobs[i] != 0) job = s.bandJobs[i];
    return job;
}

void setArtistWriting(Game& g) {
    const StyleRecord& s = styleOfArtist(g);
    ArtistRecord& a = g.artist.rec;
    if (g.rng.between(0, 100) < s.writerPercent) {
        a.songQuality = percent(jitter(g, a.talentCeiling));
        a.songCommerciality = percent(jitter(g, a.talentCeiling));
        a.writingRate = narrow<uint8_t>(g.rng.between(10, 40));
    } else {
        a.songQuality = 0;
        a.songCommerciality = 0;
        a.writingRate = 0;
    }
}

}  // namespace trovane
