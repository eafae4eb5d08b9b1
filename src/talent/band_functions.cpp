#include "talent/band_functions.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "label/finances.h"
#include "world/dates.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr std::array<int32_t, 5> kMarketWeights = {8, 10, 7, 5, 3};

template <class Bytes>
int32_t weighted(const Bytes& values) {
    int32_t sum = 0;
    for (std::size_t m = 0; m < 5; ++m) sum += values[m] * kMarketWeights[m];
    return sum;
}

// The band's members, copied so that reading artists cannot disturb the walk.
struct Members {
    std::array<int16_t, 10> ids;
    std::size_t count;
};
Members membersOf(const BandRecord& band) {
    if (band.memberCount > band.members.size())
        throw FatalError(fmt::format("Band {} claims {} members; there is room for 10", band.id, band.memberCount));
    return {band.members, band.memberCount};
}

const std::size_t kArtistWealth = offsetIn<ArtistRecord>("wealth");

int32_t wealthAfter(int32_t wealth, double units) {
    return narrow<int32_t>(static_cast<int64_t>(wealth) + roundTo<int32_t>(units));
}

}  // namespace

int32_t bandValue(const Game& g) { return weighted(g.band.rec.reputation); }

int32_t bandRating(const Game& g) { return roundTo<int32_t>(bandValue(g) / 33.0); }

MainMarket bandMainMarket(const Game& g) {
    const auto& rep = g.band.rec.reputation;
    for (std::size_t m = 1; m < 5; ++m)
        if (rep[m] > 0) return {static_cast<int>(m) + 1, rep[m]};
    return {1, rep[0]};
}

int bandBestMarket(const Game& g) {
    const auto& rep = g.band.rec.reputation;
    return static_cast<int>(std::max_element(rep.begin(), rep.end()) - rep.begin());
}

int32_t bandReputationSum(const Game& g) {
    int32_t sum = 0;
    for (uint8_t r : g.band.rec.reputation) sum += r;
    return sum;
}

bool bandIsRested(Game& g) {
    auto [members, n] = membersOf(g.band.rec);
    for (std::size_t i = 0; i < n; ++i) {
        g.artist.read(members[i]);
        if (g.artist->energy < 0) return false;
    }
    return true;
}

int32_t bandEnergySum(Game& g) {
    auto [members, n] = membersOf(g.band.rec);
    int32_t sum = 0;
    for (std::size_t i = 0; i < n; ++i) {
        g.artist.read(members[i]);
        sum += g.artist->energy;
    }
    return sum;
}

int32_t stylePopularity(const Game& g) {
    const StyleRecord& s = g.style.rec;
    int32_t markets = roundTo<int32_t>(weighted(s.popularity) / 33.0);
    return roundTo<int32_t>((markets + s.commerciality) / 2.0);
}

int32_t reputationInCountry(const Game& g) {
    const auto& rep = g.band.rec.reputation;
    std::string region = trim(g.country.rec.region.value);
    if (region == "E") {
        std::string name = trim(g.country.rec.name.value);
        bool home = name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland";
        return home ? rep[0] : rep[2];
    }
    if (region == "N") return rep[1];
    if (region == "O") return rep[3];
    return rep[4];
}

void addBandCost(Game& g, Money amount, int category) {
    g.band->costs = addMoney(g.band->costs, amount);
    g.band.write();
    if (g.band->label <= 0) return;
    g.label.read(g.band->label);
    addExpense(g, amount, category);
}

void addBandPoints(Game& g, int market, int32_t amount) {
    if (market < 0 || market > 4) throw FatalError(fmt::format("There is no market {}", market));
    auto& points = g.band->bandPoints[static_cast<std::size_t>(market)];
    points = narrow<int32_t>(static_cast<int64_t>(points) + amount);
    g.band.write();
    if (g.band->label <= 0) return;
    addLabelPoints(g, g.band->label, market, amount);
}

void payArtistsEvenly(Game& g, Money amount) {
    auto [members, n] = membersOf(g.band.rec);
    double share = moneyToDouble(amount) / g.band->memberCount;
    // Paid in the wealth of each record; the buffer is left at the last
    // member, as reading and writing each in turn leaves it.
    for (std::size_t i = 0; i < n; ++i)
        patchField<int32_t>(g.artist, members[i], kArtistWealth, [&](int32_t w) { return wealthAfter(w, share); });
    if (n > 0) g.artist.read(members[n - 1]);
}

void payArtists(Game& g, Money amount) {
    static const std::size_t kSongWriter = offsetIn<SongRecord>("writer");
    static const std::size_t kArtistRoyaltyShare = offsetIn<ArtistRecord>("royaltyShare");
    auto [members, n] = membersOf(g.band.rec);
    double x = moneyToDouble(amount);

    // Who wrote the disc's tracks, counted per member before anyone is paid;
    // read in the songs' bytes, the buffer left at the last track's song.
    std::size_t trackCount = std::min<std::size_t>(g.disc->trackCount, g.disc->tracks.size());
    std::array<int, 10> written{};
    int32_t lastSong = 0;
    for (std::size_t t = 0; t < trackCount; ++t) {
        int32_t song = g.disc->tracks[t];
        if (song <= 0) continue;
        const auto writer = fieldAt<int16_t>(g.song.bytesOf(song), kSongWriter);
        lastSong = song;
        for (std::size_t i = 0; i < n; ++i)
            if (writer != 0 && writer == members[i]) ++written[i];
    }
    if (lastSong > 0) g.song.read(lastSong);

    // Each is paid in the wealth of its record; the buffer is left at the
    // last member paid, as reading and writing each in turn leaves it.
    int16_t lastPaid = 0;
    auto pay = [&](int16_t who, double units) {
        patchField<int32_t>(g.artist, who, kArtistWealth, [&](int32_t w) { return wealthAfter(w, units); });
        lastPaid = who;
    };
    for (std::size_t i = 0; i < n; ++i)
        pay(members[i], x * fieldAt<uint8_t>(g.artist.bytesOf(members[i]), kArtistRoyaltyShare) / 100.0);
    for (std::size_t i = 0; i < n; ++i)
        if (written[i] != 0)
            pay(members[i], static_cast<double>(written[i]) / static_cast<double>(trackCount) * x * 0.3);
    if (lastPaid > 0) g.artist.read(lastPaid);
}

void setRoyaltyShares(Game& g) {
    auto [members, n] = membersOf(g.band.rec);
    std::array<int32_t, 10> weight{};
    int32_t total = 0;
    for (std::size_t i = 0; i < n; ++i) {
        g.artist.read(members[i]);
        g.job.read(g.artist->job);
        weight[i] = std::max(0, 6 - g.job->rank);  // a rank past 6 earns nothing rather than a negative share
        total += weight[i];
    }
    for (std::size_t i = 0; i < n; ++i) {
        g.artist.read(members[i]);
        // Members of equal weight when no job carries any: an even split of the 70.
        double share = total > 0 ? weight[i] * 70.0 / total : 70.0 / static_cast<double>(n);
        g.artist->royaltyShare = roundTo<uint8_t>(share);
        g.artist.write();
    }
}

void setBandStats(Game& g) {
    auto [members, n] = membersOf(g.band.rec);
    int32_t ability = 0, dancing = 0, stamina = 0, flair = 0, live = 0, visual = 0;
    uint8_t charisma = 0, controversy = 0, attitudeLevel = 0;
    for (std::size_t i = 0; i < n; ++i) {
        g.artist.read(members[i]);
        const ArtistRecord& a = g.artist.rec;
        ability += a.ability;
        dancing += a.dancing;
        stamina += a.stamina;
        flair += a.flair;
        live += a.live;
        visual += a.visual;
        charisma = std::max(charisma, a.charisma);
        controversy = std::max(controversy, a.controversy);
        attitudeLevel = std::max(attitudeLevel, a.attitudeLevel);
    }
    BandRecord& b = g.band.rec;
    double count = b.memberCount;  // never 0 for a real band; a 0 here fails on the byte conversion
    b.ability = roundTo<uint8_t>(ability / count);
    b.dancing = roundTo<uint8_t>(dancing / count);
    b.stamina = roundTo<uint8_t>(stamina / count);
    b.flair = roundTo<uint8_t>(flair / count);
    b.live = roundTo<uint8_t>(live / count);
    b.visual = roundTo<uint8_t>(visual / count);
    b.charisma = charisma;
    b.controversy = controversy;
    b.topAttitudeLevel = attitudeLevel;
    b.contractEnd = kNoDate;
    b.retired = kFalse;
}

}  // namespace trovane
