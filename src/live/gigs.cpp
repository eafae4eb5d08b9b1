#include "live/gigs.h"

#include <algorithm>
#include <cstdlib>

#include "label/finances.h"
#include "live/festivals.h"
#include "live/gig_review.h"
#include "talent/band_functions.h"
#include "talent/reputation.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/numbers.h"
#include "world/strings.h"

namespace trovane {

namespace {

constexpr int kGigReason = 8;

int32_t billSize(const GigRecord& gig) {
    int32_t n = 0;
    while (n < static_cast<int32_t>(gig.bill.size()) && gig.bill[static_cast<std::size_t>(n)] != 0) ++n;
    return n;
}

// The spread a night's figure takes: up to a tenth lost and up to a tenth gained.
double spread(Game& g, double v) {
    double r1 = g.rng.draw();
    double r2 = g.rng.draw();
    return v + intFloor(v / 10 * r1) - intFloor(v / 10 * r2);
}

int32_t heldPercent(double v) { return static_cast<int32_t>(std::clamp(v, 0.0, 100.0)); }

// The energy rule: a tired band loses at most a third of a result.
int32_t tired(int32_t v, int32_t avg) {
    double third = roundHalfEven(roundHalfEven(v / 3.0 * avg) / 100);
    return static_cast<int32_t>(roundHalfEven(2.0 * v / 3 + third));
}

int32_t membersEnergy(Game& g) {
    // The energies are read in the members' bytes; the artist buffer is left
    // at the last member, as reading each in turn leaves it.
    static const std::size_t kEnergy = offsetIn<ArtistRecord>("energy");
    const BandRecord& band = g.band.rec;
    int members = std::min<int>(band.memberCount, static_cast<int>(band.members.size()));
    double sum = 0;
    int counted = 0;
    int16_t last = 0;
    for (int i = 0; i < members; ++i) {
        int16_t who = band.members[static_cast<std::size_t>(i)];
        if (who < 1) continue;
        sum += fieldAt<decltype(ArtistRecord::energy)>(g.artist.bytesOf(who), kEnergy);
        last = who;
        ++counted;
    }
    if (last > 0) g.artist.read(last);
    return counted == 0 ? 0 : static_cast<int32_t>(roundHalfEven(sum / counted));
}

// The gap in days between this gig and the tour's one before it; 1 for the first.
int32_t daysSincePreviousGig(Game& g) {
    const GigRecord gig = g.gig.rec;
    const TourRecord& tour = g.tour.rec;
    int count = std::min<int>(tour.gigCount, static_cast<int>(tour.gigs.size()));
    int32_t days = 1;
    for (int i = 1; i < count; ++i) {
        if (tour.gigs[static_cast<std::size_t>(i)] != gig.gigNumber) continue;
        g.gig.read(tour.gigs[static_cast<std::size_t>(i - 1)]);
        days = static_cast<int32_t>(gig.gigDate - g.gig->gigDate);
        break;
    }
    g.gig.rec = gig;
    return days;
}

// A band's share reaches it: first whatever it still owes its label, then its members.
void payGigShare(Game& g, int64_t amount) {
    if (amount < 0) {
        if (g.band->label > 0) addBandCost(g, moneyUnits(-amount), ledgerOtherExpense);
        g.band.write();
        return;
    }
    Money pay = moneyUnits(amount);
    Money balance = g.band->grossIncome - g.band->costs;
    Money toMembers = 0;
    if (balance >= 0) {
        toMembers = pay;
    } else if (g.band->label > 0) {
        Money debt = -balance;
        Money recouped = std::min(debt, pay);
        g.band->grossIncome = addMoney(g.band->grossIncome, recouped);
        toMembers = pay - recouped;
        g.band.write();
        const BandRecord band = g.band.rec;
        g.label.read(band.label);
        if (recouped > 0) addIncome(g, recouped, ledgerRecoupedAdvances);
        g.band.rec = band;
    }
    g.band.write();
    if (toMembers > 0) {
        const BandRecord band = g.band.rec;
        payArtistsEvenly(g, toMembers);
        g.band.rec = band;
    }
}

}  // namespace

int venueMarket(const Game& g) {
    std::string region = trim(g.country.rec.region.value);
    if (region == "E") {
        std::string name = trim(g.country.rec.name.value);
        bool home = name == "England" || name == "Scotland" || name == "Wales" || name == "Northern Ireland";
        return home ? 0 : 2;
    }
    if (region == "N") return 1;
    if (region == "O") return 3;
    return 4;
}

int32_t expectedAttendance(Game& g, int mode, int reputation, int16_t& standing) {
    int64_t mult = 1;
    if (g.tour->festival > 0) {
        mult = 2;
        reputation = g.festival->prestige;
        standing = static_cast<int16_t>(g.festival->prestige * 5);
    }
    standing = toInteger(standing / 5.0);
    double s = standing;
    double a = roundHalfEven(s * s);
    double b = roundHalfEven(a / (101 - s));
    double d = roundHalfEven(reputation * 7 / 10.0);
    double e = (2 * d - 28) * d;
    double base = e < 0 ? static_cast<double>(reputation) * reputation : e + b;
    double total = static_cast<double>(mult) * (roundHalfEven((reputation / 10.0 + 1) * base) + 250);
    if (mode == 0) {
        double r1 = g.rng.draw();
        double r2 = g.rng.draw();
        total = roundHalfEven(total - intFloor(total / 10 * r1) + intFloor(total / 10 * r2));
        double capacity = g.venue->capacity;
        if (total > capacity) total = roundHalfEven(capacity - intFloor(capacity / 50 * g.rng.draw()));
    }
    return toLong(total);
}

int32_t contentCost(int level, int32_t days) {
    switch (level) {
    case 0: return 100000 + 2500 * days;
    case 1: return 20000 + 1000 * days;
    case 2: return 5000 + 400 * days;
    case 3: return 750 + 120 * days;
    default: return 250 + 50 * days;
    }
}

int32_t hospitalityCost(int level, int32_t days) {
    static constexpr int32_t kPerDay[5] = {3000, 1500, 750, 300, 100};
    return kPerDay[std::clamp(level, 0, 4)] * days;
}

int32_t accommodationCost(int level, int32_t days, int32_t memberCount) {
    static constexpr int32_t kPerDay[4] = {750, 350, 75, 50};
    // The cheapest beds are paid once, however long the gap.
    if (level >= 4) return memberCount * 20;
    return memberCount * kPerDay[std::max(level, 0)] * days;
}

int supportLevel(int topAttitudeLevel) {
    if (topAttitudeLevel < 20) return 4;
    if (topAttitudeLevel < 40) return 3;
    if (topAttitudeLevel < 70) return 2;
    if (topAttitudeLevel < 90) return 1;
    return 0;
}

int32_t supportCost(Game& g, int32_t days) {
    const GigRecord gig = g.gig.rec;
    const BandRecord band = g.band.rec;
    int32_t total = 0;
    int supports = std::min<int>(g.tour->supportCount, billSize(gig) - 1);
    for (int p = 1; p <= supports; ++p) {
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        int own = supportLevel(g.band->topAttitudeLevel);
        total += accommodationCost(std::max<int>(own, g.tour->accommodationLevel), days, g.band->memberCount);
        total += hospitalityCost(std::max<int>(own, g.tour->hospitalityLevel), days);
    }
    g.band.rec = band;
    return total;
}

int32_t sponsorFee(int minimumReputation) {
    double p = minimumReputation;
    return toLong(roundHalfEven(roundHalfEven(p * p * p * p / 5) / 100) + 450);
}

void settleGigMoney(Game& g, int rep) {
    int32_t fee = 0;
    if (g.tour->sponsorProduct > 0) {
        g.product.read(g.tour->sponsorProduct);
        fee = sponsorFee(g.product->minimumReputation);
    }
    int64_t factor = rep <= 80 ? 80 : rep;
    int32_t days = daysSincePreviousGig(g);
    int64_t ticket = std::max<int64_t>(3, 3 * static_cast<int64_t>(roundHalfEven(rep / 10.0)));
    int64_t net = g.gig->attendance * ticket + fee - static_cast<int64_t>(roundHalfEven(g.venue->capacity * 1.5));
    int64_t half = static_cast<int64_t>(roundHalfEven(net / 2.0));
    net -= contentCost(g.tour->contentLevel, days);
    net -= hospitalityCost(g.tour->hospitalityLevel, days);
    net -= accommodationCost(g.tour->accommodationLevel, days, g.band->memberCount);
    net -= supportCost(g, days);
    net = static_cast<int64_t>(roundHalfEven(static_cast<double>(net) * factor / 100));

    int supports = std::min<int>(g.tour->supportCount, billSize(g.gig.rec) - 1);
    int64_t share = supports > 0 ? static_cast<int64_t>(roundHalfEven(net * 0.8)) : net;
    int64_t supportShare = 0;
    if (net <= 0)
        share = net - half;
    else if (supports > 0)
        supportShare = static_cast<int64_t>(roundHalfEven(static_cast<double>(net - share) / supports));
    g.gig->profit = narrow<int32_t>(share);
    g.gig.write();

    const GigRecord gig = g.gig.rec;
    const BandRecord headliner = g.band.rec;
    for (int p = 0; p <= supports; ++p) {
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        payGigShare(g, p == 0 ? share : supportShare);
    }
    g.band.read(headliner.id);
    g.gig.rec = gig;
}

void rateGigPerformance(Game& g, int billSize) {
    const bool festival = g.tour->festival > 0;
    const int contentLevel = g.tour->contentLevel;
    static constexpr int kShow[5] = {100, 80, 50, 25, 5};
    for (int p = 0; p < billSize; ++p) {
        auto at = static_cast<std::size_t>(p);
        g.band.read(g.gig->bill[at]);
        g.style.readIfPresent(g.band->style);
        double ws = g.style->singingWeight, wd = g.style->dancingWeight, wx = g.style->contentWeight;
        double show = kShow[std::clamp(contentLevel, 0, 4)];
        if (festival) {
            double both = ws + wd;
            ws = both > 0 ? roundHalfEven(g.style->singingWeight * 100 / both) : 0;
            wd = both > 0 ? roundHalfEven(g.style->dancingWeight * 100 / both) : 0;
            wx = 0;
            show = 0;
        }
        double sing = g.band->live > 70 ? g.band->live : g.band->ability;
        int32_t singResult = heldPercent(spread(g, sing));
        int32_t danceResult = heldPercent(spread(g, g.band->dancing));
        int32_t overall = heldPercent(roundHalfEven((singResult * ws + danceResult * wd + show * wx) / 100));
        int32_t avg = membersEnergy(g);
        singResult = tired(singResult, avg);
        danceResult = tired(danceResult, avg);
        overall = tired(overall, avg);

        g.gig->quality[at] = narrow<uint8_t>(overall);
        g.gig->singing[at] = narrow<uint8_t>(singResult);
        g.gig->dancing[at] = narrow<uint8_t>(danceResult);
        if (p == 0 && !festival) {
            g.gig->overallQuality = narrow<uint8_t>(overall);
            g.gig->overallSinging = narrow<uint8_t>(singResult);
            g.gig->overallDancing = narrow<uint8_t>(danceResult);
        }
        g.gig.write();

        float count = static_cast<float>(g.band->gigCount);
        g.band->averageGigQuality = (count * g.band->averageGigQuality + static_cast<float>(overall)) / (count + 1.0f);
        g.band->gigCount = narrow<int32_t>(static_cast<int64_t>(g.band->gigCount) + 1);
        if (p == 0) {
            const GigRecord gig = g.gig.rec;
            bool bigger = g.band->biggestGig == 0;
            if (!bigger) {
                g.gig.read(g.band->biggestGig);
                bigger = gig.attendance > g.gig->attendance;
                g.gig.rec = gig;
            }
            if (bigger) g.band->biggestGig = gig.gigNumber;
        }
        g.band.write();
    }
    if (!festival || billSize == 0) return;
    // A festival's overall figures weigh the top of the bill most.
    int n = g.festival->billSize > 0 ? g.festival->billSize : billSize;
    double weights = 0, q = 0, s = 0, d = 0;
    for (int p = 0; p < billSize; ++p) {
        auto at = static_cast<std::size_t>(p);
        double w = std::max(n - p, 0);
        weights += w;
        q += w * g.gig->quality[at];
        s += w * g.gig->singing[at];
        d += w * g.gig->dancing[at];
    }
    if (weights > 0) {
        g.gig->overallQuality = toByte(q / weights);
        g.gig->overallSinging = toByte(s / weights);
        g.gig->overallDancing = toByte(d / weights);
    }
    g.gig.write();
}

int crowdDivisor(int32_t attendance) {
    if (attendance <= 1000) return 30;
    if (attendance <= 5000) return 20;
    if (attendance <= 10000) return 15;
    if (attendance <= 40000) return 10;
    if (attendance <= 100000) return 7;
    return 10;
}

void applyGigStanding(Game& g, int place) {
    double d = (g.gig->quality[static_cast<std::size_t>(place)] - 50) * 2.0;
    if (g.tour->festival > 0) {
        double w = g.festival->prestige;
        for (int i = 0; i < place; ++i) w -= w < 81 ? 1 : 2;
        d = roundHalfEven(w * d / 100);
    } else {
        d = roundHalfEven(d / crowdDivisor(g.gig->attendance));
        if (place > 0) d = roundHalfEven(d / 2);
    }
    changeHype(g, toInteger(d), venueMarket(g), kGigReason);
}

void performGig(Game& g) {
    // A gig whose venue or tour is missing is still played, to an empty house.
    if (!g.gig.readIfPresent(g.schedule->gig)) return;
    g.tour.readIfPresent(g.gig->tour);
    g.venue.readIfPresent(g.gig->venue);
    g.city.readIfPresent(g.venue->city);
    g.country.readIfPresent(g.city->country);
    const bool festival = g.tour->festival > 0;
    if (!festival) {
        g.band.read(g.gig->bill[0]);
        g.style.readIfPresent(g.band->style);
        const auto& r = g.band->reputation;
        int rep = g.band->reputation[static_cast<std::size_t>(venueMarket(g))];
        auto standing = toInteger((8.0 * r[0] + 10.0 * r[1] + 7.0 * r[2] + 5.0 * r[3] + 3.0 * r[4]) / 7);
        g.gig->attendance = expectedAttendance(g, 0, rep, standing);
        g.gig.write();
        settleGigMoney(g, rep);
    } else {
        g.festival.readIfPresent(g.tour->festival);
        dropUnfitFestivalActs(g);
        int16_t standing = 0;
        g.gig->attendance = expectedAttendance(g, 0, 0, standing);
        g.gig.write();
    }

    const int size = billSize(g.gig.rec);
    rateGigPerformance(g, size);
    float sum = 0;
    int played = 0;
    const GigRecord gig = g.gig.rec;
    for (int i = 0; i < std::min<int>(g.tour->gigCount, 40); ++i) {
        int32_t n = g.tour->gigs[static_cast<std::size_t>(i)];
        if (n < 1) continue;
        g.gig.read(n);
        if (g.gig->gigDate > gig.gigDate) continue;
        sum += static_cast<float>(g.gig->overallQuality);
        ++played;
    }
    g.gig.rec = gig;
    if (played > 0) g.tour->averageQuality = sum / static_cast<float>(played);
    g.tour.write();

    bool festivalReviewed = false;
    const bool lastOfTour = g.tour->gigCount > 0 && g.tour->gigs[g.tour->gigCount - 1u] == gig.gigNumber;
    for (int p = 0; p < size; ++p) {
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        applyGigStanding(g, p);
        g.gig.rec = gig;
        g.band.read(gig.bill[static_cast<std::size_t>(p)]);
        bool players = g.band->label == g.player.playerLabel && g.player.playerLabel > 0;
        if (!players) continue;
        if (p == 0 && !festival) {
            writeGigReview(g);
            g.gig.rec = gig;
        } else if (festival && lastOfTour && !festivalReviewed) {
            writeFestivalReview(g);
            festivalReviewed = true;
            g.gig.rec = gig;
        }
    }
}

}  // namespace trovane
