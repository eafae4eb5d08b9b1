#include "session/invariants.h"

#include <algorithm>
#include <array>
#include <vector>

#include <fmt/format.h>

#include "label/departments.h"
#include "label/finances.h"
#include "schedule/schedule_types.h"
#include "world/game.h"

namespace trovane {

namespace {

// A record read without touching the table's buffer.
template <class R>
R copyOf(const Table<R>& t, int32_t n) {
    R r{};
    decodeRecord(t.bytesOf(n).data(), r);
    return r;
}

std::string money(Money m) { return fmt::format("{:.4f}", moneyToDouble(m)); }

InvariantBreak labelBreak(int32_t n, std::string field, const char* rule, std::string detail) {
    return {"label", n, std::move(field), rule, std::move(detail)};
}

// What a period has gained over its base: expenses are booked as negative
// amounts, so income less expense is the sum of every category.
Money gainOver(const LedgerPeriod& now, const LedgerPeriod& base) {
    Money gain = 0;
    for (std::size_t i = 0; i < now.income.size(); ++i) gain += now.income[i] - base.income[i];
    for (std::size_t i = 0; i < now.expense.size(); ++i) gain += now.expense[i] - base.expense[i];
    return gain;
}

// A label's cash is its last ledger row's cash plus what this month has
// gained since. After a month's close this month starts from nothing but the
// royalties paid, which run on; after the opening row it starts from the
// opening figures.
std::optional<InvariantBreak> labelCashMatchesLedger(Game& g) {
    const int32_t labels = g.label.recordCount() - 1;
    std::vector<int32_t> last(static_cast<std::size_t>(labels) + 1, 0);
    std::vector<int32_t> rows(static_cast<std::size_t>(labels) + 1, 0);
    for (int32_t n = 1; n != g.ledger.recordCount(); ++n) {
        const LedgerRecord row = copyOf(g.ledger, n);
        if (row.label < 1 || row.label > labels)
            return InvariantBreak{"ledger", n, "label", "ledgerRowNamesALabel",
                                  fmt::format("label {} of {}", row.label, labels)};
        last[static_cast<std::size_t>(row.label)] = n;
        ++rows[static_cast<std::size_t>(row.label)];
    }
    for (int32_t n = 1; n <= labels; ++n) {
        const LabelRecord l = copyOf(g.label, n);
        const auto at = static_cast<std::size_t>(n);
        if (last[at] == 0) return labelBreak(n, "cashBalance", "labelCashMatchesLedger", "the label has no books");
        const LedgerRecord row = copyOf(g.ledger, last[at]);
        LedgerPeriod base{};
        if (rows[at] == 1) {
            base = row.figures;
        } else {
            const std::size_t royalties = ledgerRoyaltiesPaid - ledgerWages;
            base.expense[royalties] = row.figures.expense[royalties];
        }
        const Money expected = row.cash + gainOver(l.period[0], base);
        if (l.cashBalance != expected)
            return labelBreak(n, "cashBalance", "labelCashMatchesLedger",
                              fmt::format("holds {}, the books (ledger row {}) say {}", money(l.cashBalance), last[at],
                                          money(expected)));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> staffLevelsWithinBounds(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d)
            for (std::size_t i = 0; i < kLevelBounds.size(); ++i)
                if (l.department[d].staffAtLevel[i] > kLevelBounds[i])
                    return labelBreak(
                        n, fmt::format("department[{}].staffAtLevel[{}]", d, i), "staffLevelsWithinBounds",
                        fmt::format("{} staff, at most {}", l.department[d].staffAtLevel[i], kLevelBounds[i]));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> departmentHeadsWorkThere(Game& g) {
    const int32_t staff = g.staff.recordCount() - 1;
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d) {
            const int16_t head = l.department[d].head;
            if (head == 0) continue;
            const std::string field = fmt::format("department[{}].head", d);
            if (head < 0 || head > staff)
                return labelBreak(n, field, "departmentHeadsWorkThere", fmt::format("staff {} of {}", head, staff));
            const StaffRecord s = copyOf(g.staff, head);
            if (s.employer != n || s.department != d)
                return labelBreak(
                    n, field, "departmentHeadsWorkThere",
                    fmt::format("staff {} works for label {} in department {}", head, s.employer, s.department));
        }
    }
    return std::nullopt;
}

std::optional<InvariantBreak> departmentRatingsFollowStaff(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        for (std::size_t d = 0; d < l.department.size(); ++d) {
            const Department& dep = l.department[d];
            if (dep.head < 0 || dep.head >= g.staff.recordCount()) continue;  // the heads' rule reports it
            const int ability = dep.head > 0 ? copyOf(g.staff, dep.head).ability : -1;
            const int expected = departmentRatingOf(dep, ability);
            if (dep.rating != expected)
                return labelBreak(n, fmt::format("department[{}].rating", d), "departmentRatingsFollowStaff",
                                  fmt::format("holds {}, its staff give {}", dep.rating, expected));
        }
    }
    return std::nullopt;
}

std::optional<InvariantBreak> wageBillIsItsDepartments(Game& g) {
    for (int32_t n = 1; n != g.label.recordCount(); ++n) {
        const LabelRecord l = copyOf(g.label, n);
        Money expected = 0;
        for (const Department& dep : l.department) {
            int64_t pay = 0;
            for (std::size_t i = 0; i < kLevelPay.size(); ++i)
                pay += static_cast<int64_t>(dep.staffAtLevel[i]) * kLevelPay[i];
            expected += moneyUnits(pay);
            if (dep.head > 0 && dep.head < g.staff.recordCount()) expected += copyOf(g.staff, dep.head).wage;
        }
        if (l.wageBill != expected)
            return labelBreak(n, "wageBill", "wageBillIsItsDepartments",
                              fmt::format("holds {}, its departments cost {}", money(l.wageBill), money(expected)));
    }
    return std::nullopt;
}

std::optional<InvariantBreak> playerCashIsTheLabels(Game& g) {
    const int16_t player = g.player.playerLabel;
    if (player < 1 || player >= g.label.recordCount())
        return InvariantBreak{"session", 0, "playerLabel", "playerCashIsTheLabels",
                              fmt::format("label {} of {}", player, g.label.recordCount() - 1)};
    const LabelRecord l = copyOf(g.label, player);
    if (g.player.playerLabelCash != l.cashBalance)
        return InvariantBreak{
            "session", 0, "playerLabelCash", "playerCashIsTheLabels",
            fmt::format("holds {}, label {} has {}", money(g.player.playerLabelCash), player, money(l.cashBalance))};
    return std::nullopt;
}

// A reference field holds 0 (none) or a record of its table.
bool refersWithin(int32_t value, int32_t records) { return value >= 0 && value <= records; }

InvariantBreak outside(const char* table, int32_t n, std::string field, const char* rule, int32_t value,
                       int32_t records) {
    return {table, n, std::move(field), rule, fmt::format("{} of {}", value, records)};
}

std::optional<InvariantBreak> bandsHoldTheirFields(Game& g) {
    const int32_t labels = g.label.recordCount() - 1;
    const int32_t artists = g.artist.recordCount() - 1;
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        const BandRecord b = copyOf(g.band, n);
        if (!refersWithin(b.label, labels)) return outside("band", n, "label", "bandsHoldTheirFields", b.label, labels);
        if (b.memberCount > b.members.size())
            return InvariantBreak{"band", n, "memberCount", "bandsHoldTheirFields",
                                  fmt::format("{} members, at most {}", b.memberCount, b.members.size())};
        for (std::size_t i = 0; i < b.memberCount; ++i)
            if (!refersWithin(b.members[i], artists))
                return outside("band", n, fmt::format("members[{}]", i), "bandsHoldTheirFields", b.members[i], artists);
        if (b.albumStatus > 3)
            return InvariantBreak{"band", n, "albumStatus", "bandsHoldTheirFields",
                                  fmt::format("{}, at most 3", b.albumStatus)};
        if (b.retired != 0) continue;
        for (std::size_t m = 0; m < b.reputation.size(); ++m) {
            if (b.reputation[m] < 2 || b.reputation[m] > 100)
                return InvariantBreak{"band", n, fmt::format("reputation[{}]", m), "bandsHoldTheirFields",
                                      fmt::format("{}, not within 2 to 100", b.reputation[m])};
            if (b.hype[m] < -100 || b.hype[m] > 100)
                return InvariantBreak{"band", n, fmt::format("hype[{}]", m), "bandsHoldTheirFields",
                                      fmt::format("{}, not within -100 to 100", b.hype[m])};
        }
    }
    return std::nullopt;
}

// A label's bandCount is the number of its bands that have not retired.
std::optional<InvariantBreak> bandCountIsItsBands(Game& g) {
    const int32_t labels = g.label.recordCount() - 1;
    std::vector<int32_t> signedTo(static_cast<std::size_t>(labels) + 1, 0);
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        const BandRecord b = copyOf(g.band, n);
        if (b.retired == 0 && b.label > 0 && b.label <= labels) ++signedTo[static_cast<std::size_t>(b.label)];
    }
    for (int32_t n = 1; n <= labels; ++n) {
        const LabelRecord l = copyOf(g.label, n);
        if (l.bandCount != signedTo[static_cast<std::size_t>(n)])
            return labelBreak(
                n, "bandCount", "bandCountIsItsBands",
                fmt::format("holds {}, {} bands carry the label", l.bandCount, signedTo[static_cast<std::size_t>(n)]));
    }
    return std::nullopt;
}

// An offer names a band (or -1, void) and a label of their tables; a
// shortlist row names both or neither.
std::optional<InvariantBreak> offersAndShortlistPointWithin(Game& g) {
    const int32_t bands = g.band.recordCount() - 1;
    const int32_t labels = g.label.recordCount() - 1;
    for (int32_t n = 1; n != g.offer.recordCount(); ++n) {
        const OfferRecord o = copyOf(g.offer, n);
        if (o.band != -1 && !refersWithin(o.band, bands))
            return outside("offer", n, "band", "offersAndShortlistPointWithin", o.band, bands);
        if (!refersWithin(o.label, labels))
            return outside("offer", n, "label", "offersAndShortlistPointWithin", o.label, labels);
    }
    for (int32_t n = 1; n != g.shortlist.recordCount(); ++n) {
        const ShortlistRecord r = copyOf(g.shortlist, n);
        if (!refersWithin(r.band, bands))
            return outside("shortlist", n, "band", "offersAndShortlistPointWithin", r.band, bands);
        if (!refersWithin(r.label, labels))
            return outside("shortlist", n, "label", "offersAndShortlistPointWithin", r.label, labels);
    }
    return std::nullopt;
}

// Songs and discs point within their tables: a song's disc is a disc, or one
// of the marks of a song not yet on a disc (65535) or passed over (65534).
std::optional<InvariantBreak> songsAndDiscsPointWithin(Game& g) {
    const int32_t bands = g.band.recordCount() - 1;
    const int32_t labels = g.label.recordCount() - 1;
    const int32_t discs = g.disc.recordCount() - 1;
    const int32_t songs = g.song.recordCount() - 1;
    for (int32_t n = 1; n != g.song.recordCount(); ++n) {
        const SongRecord s = copyOf(g.song, n);
        if (!refersWithin(s.band, bands)) return outside("song", n, "band", "songsAndDiscsPointWithin", s.band, bands);
        if (s.disc < 65534 && !refersWithin(s.disc, discs))
            return outside("song", n, "disc", "songsAndDiscsPointWithin", s.disc, discs);
    }
    for (int32_t n = 1; n != g.disc.recordCount(); ++n) {
        const DiscRecord d = copyOf(g.disc, n);
        if (!refersWithin(d.band, bands)) return outside("disc", n, "band", "songsAndDiscsPointWithin", d.band, bands);
        if (!refersWithin(d.label, labels))
            return outside("disc", n, "label", "songsAndDiscsPointWithin", d.label, labels);
        if (d.trackCount > d.tracks.size() || d.tracksRecorded > d.trackCount)
            return InvariantBreak{"disc", n, "tracksRecorded", "songsAndDiscsPointWithin",
                                  fmt::format("{} of {} tracks recorded, at most 20", d.tracksRecorded, d.trackCount)};
        for (std::size_t i = 0; i < d.trackCount; ++i)
            if (!refersWithin(d.tracks[i], songs))
                return outside("disc", n, fmt::format("tracks[{}]", i), "songsAndDiscsPointWithin", d.tracks[i], songs);
    }
    return std::nullopt;
}

// A firm is open (-1) or being built (0), and its owner is a label or none.
std::optional<InvariantBreak> firmsHoldTheirFields(Game& g) {
    const int32_t labels = g.label.recordCount() - 1;
    for (int32_t n = 1; n != g.business.recordCount(); ++n) {
        const BusinessRecord b = copyOf(g.business, n);
        if (b.open != 0 && b.open != -1)
            return InvariantBreak{"business", n, "open", "firmsHoldTheirFields",
                                  fmt::format("{}, not 0 or -1", b.open)};
        if (!refersWithin(b.owner, labels))
            return outside("business", n, "owner", "firmsHoldTheirFields", b.owner, labels);
    }
    return std::nullopt;
}

// A gig names a venue, a tour and bands of their tables, each rated 0 to 100;
// a tour holds at most 40 gigs, each a gig of the table.
std::optional<InvariantBreak> gigsAndToursPointWithin(Game& g) {
    const int32_t bands = g.band.recordCount() - 1;
    const int32_t venues = g.venue.recordCount() - 1;
    const int32_t tours = g.tour.recordCount() - 1;
    const int32_t gigs = g.gig.recordCount() - 1;
    for (int32_t n = 1; n != g.gig.recordCount(); ++n) {
        const GigRecord r = copyOf(g.gig, n);
        if (!refersWithin(r.venue, venues))
            return outside("gig", n, "venue", "gigsAndToursPointWithin", r.venue, venues);
        if (!refersWithin(r.tour, tours)) return outside("gig", n, "tour", "gigsAndToursPointWithin", r.tour, tours);
        for (std::size_t i = 0; i < r.bill.size(); ++i) {
            if (!refersWithin(r.bill[i], bands))
                return outside("gig", n, fmt::format("bill[{}]", i), "gigsAndToursPointWithin", r.bill[i], bands);
            if (r.quality[i] > 100)
                return InvariantBreak{"gig", n, fmt::format("quality[{}]", i), "gigsAndToursPointWithin",
                                      fmt::format("{}, above 100", r.quality[i])};
        }
    }
    for (int32_t n = 1; n != g.tour.recordCount(); ++n) {
        const TourRecord t = copyOf(g.tour, n);
        if (t.gigCount > t.gigs.size())
            return InvariantBreak{"tour", n, "gigCount", "gigsAndToursPointWithin",
                                  fmt::format("{}, above 40", t.gigCount)};
        for (std::size_t i = 0; i < t.gigCount; ++i)
            if (!refersWithin(t.gigs[i], gigs))
                return outside("tour", n, fmt::format("gigs[{}]", i), "gigsAndToursPointWithin", t.gigs[i], gigs);
    }
    return std::nullopt;
}

// A tour's gigs stand in date order, each later than the one before.
std::optional<InvariantBreak> tourGigsInDateOrder(Game& g) {
    for (int32_t n = 1; n != g.tour.recordCount(); ++n) {
        const TourRecord t = copyOf(g.tour, n);
        double previous = 0;
        for (std::size_t i = 0; i < std::min<std::size_t>(t.gigCount, t.gigs.size()); ++i) {
            if (t.gigs[i] < 1 || t.gigs[i] >= g.gig.recordCount()) break;
            const double date = copyOf(g.gig, t.gigs[i]).gigDate;
            if (i > 0 && date <= previous)
                return InvariantBreak{"tour", n, fmt::format("gigs[{}]", i), "tourGigsInDateOrder",
                                      fmt::format("played on day {}, not after day {}", date, previous)};
            previous = date;
        }
    }
    return std::nullopt;
}

// A band's own tour has at most 3 support acts.
std::optional<InvariantBreak> supportCountsWithinThree(Game& g) {
    for (int32_t n = 1; n != g.tour.recordCount(); ++n) {
        const TourRecord t = copyOf(g.tour, n);
        if (t.festival == 0 && t.supportCount > 3)
            return InvariantBreak{"tour", n, "supportCount", "supportCountsWithinThree",
                                  fmt::format("{}, above 3", t.supportCount)};
    }
    return std::nullopt;
}

// No act stands twice on one gig's bill.
std::optional<InvariantBreak> billsHoldNoActTwice(Game& g) {
    const int32_t gigs = g.gig.recordCount();
    for (int32_t n = 1; n != gigs; ++n) {
        const GigRecord r = copyOf(g.gig, n);
        for (std::size_t i = 0; i < r.bill.size() && r.bill[i] != 0; ++i)
            for (std::size_t j = 0; j < i; ++j)
                if (r.bill[j] == r.bill[i])
                    return InvariantBreak{"gig", n, fmt::format("bill[{}]", i), "billsHoldNoActTwice",
                                          fmt::format("act {} already at place {}", r.bill[i], j)};
    }
    return std::nullopt;
}

// An artist's look is one of the table's (0 before any is chosen), its image
// rating held 0 to 100; an achievement names a record of the table its kind names.
std::optional<InvariantBreak> looksAndAchievementsPointWithin(Game& g) {
    const int32_t looks = g.look.recordCount() - 1;
    for (int32_t n = 1; n != g.artist.recordCount(); ++n) {
        const ArtistRecord a = copyOf(g.artist, n);
        if (!refersWithin(a.look, looks))
            return outside("artist", n, "look", "looksAndAchievementsPointWithin", a.look, looks);
        if (a.imageRating > 100)
            return InvariantBreak{"artist", n, "imageRating", "looksAndAchievementsPointWithin",
                                  fmt::format("{}, above 100", a.imageRating)};
    }
    const int32_t counts[4] = {g.band.recordCount() - 1, g.artist.recordCount() - 1, g.label.recordCount() - 1,
                               g.staff.recordCount() - 1};
    for (int32_t n = 1; n != g.achieve.recordCount(); ++n) {
        const AchievementRecord r = copyOf(g.achieve, n);
        if (r.kind > 3)
            return InvariantBreak{"achieve", n, "kind", "looksAndAchievementsPointWithin",
                                  fmt::format("{}, not 0 to 3", r.kind)};
        if (r.who < 1 || r.who > counts[r.kind])
            return outside("achieve", n, "who", "looksAndAchievementsPointWithin", r.who, counts[r.kind]);
    }
    return std::nullopt;
}

// An active act's members are alive and name it; no artist names an act that
// has ended.
std::optional<InvariantBreak> actsAndMembersAgree(Game& g) {
    const int32_t artists = g.artist.recordCount() - 1;
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        const BandRecord b = copyOf(g.band, n);
        if (b.retired != kFalse) continue;
        for (std::size_t i = 0; i < b.memberCount && i < 10; ++i) {
            const int16_t m = b.members[i];
            if (m < 1 || m > artists) continue;
            const ArtistRecord a = copyOf(g.artist, m);
            if (a.retired != kFalse)
                return InvariantBreak{"band", n, fmt::format("members[{}]", i), "actsAndMembersAgree",
                                      fmt::format("artist {} has retired", m)};
            if (a.band != n)
                return InvariantBreak{"band", n, fmt::format("members[{}]", i), "actsAndMembersAgree",
                                      fmt::format("artist {} names band {}", m, a.band)};
        }
    }
    for (int32_t n = 1; n <= artists; ++n) {
        const ArtistRecord a = copyOf(g.artist, n);
        if (a.band < 1 || a.band >= g.band.recordCount()) continue;
        if (copyOf(g.band, a.band).retired != kFalse)
            return InvariantBreak{"artist", n, "band", "actsAndMembersAgree",
                                  fmt::format("names band {}, which has ended", a.band)};
    }
    return std::nullopt;
}

// A band recording an album (albumStatus 2) names in songsWritten a disc of its own.
std::optional<InvariantBreak> recordingBandsNameTheirDisc(Game& g) {
    const int32_t discs = g.disc.recordCount() - 1;
    for (int32_t n = 1; n != g.band.recordCount(); ++n) {
        const BandRecord b = copyOf(g.band, n);
        if (b.albumStatus != 2 || b.retired != 0) continue;
        if (b.songsWritten < 1 || b.songsWritten > discs)
            return outside("band", n, "songsWritten", "recordingBandsNameTheirDisc", b.songsWritten, discs);
        const DiscRecord d = copyOf(g.disc, b.songsWritten);
        if (d.band != n)
            return InvariantBreak{"band", n, "songsWritten", "recordingBandsNameTheirDisc",
                                  fmt::format("disc {} is of band {}", b.songsWritten, d.band)};
    }
    return std::nullopt;
}

// Every act that ends makes a new one, so the count of acts that have not
// retired stays what it was when the game was made or opened.
std::optional<InvariantBreak> activeActsKeepTheirCount(Game& g) {
    if (g.activeActsAtStart < 0) return std::nullopt;
    const int32_t now = countActiveActs(g);
    if (now != g.activeActsAtStart)
        return InvariantBreak{"band", 0, "retired", "activeActsKeepTheirCount",
                              fmt::format("{} acts are active, the game began with {}", now, g.activeActsAtStart)};
    return std::nullopt;
}

// The event type a story's stage belongs to: its root entry's event's type
// (the stage's own when the root is out of reach), or -1 without an event.
int storyTypeOf(Game& g, const ScheduleRecord& stage) {
    int16_t ev = stage.eventRecord;
    if (stage.offer > 0 && stage.offer < g.schedule.recordCount()) {
        const ScheduleRecord root = copyOf(g.schedule, stage.offer);
        if (root.type == static_cast<uint8_t>(ScheduleType::storyStage)) ev = root.eventRecord;
    }
    if (ev < 1 || ev >= g.event.recordCount()) return -1;
    return copyOf(g.event, ev).eventType;
}

// An artist is marked under way in a story type exactly while a stage of a
// story of that type, naming the artist in its cast, waits to be run.
std::optional<InvariantBreak> storyMarksFollowPendingStages(Game& g) {
    constexpr std::size_t kTypes = 11;
    const int32_t artists = g.artist.recordCount() - 1;
    std::vector<std::array<bool, kTypes>> pending(static_cast<std::size_t>(artists) + 1);
    for (int32_t n = 1; n != g.schedule.recordCount(); ++n) {
        const ScheduleRecord e = copyOf(g.schedule, n);
        if (e.type != static_cast<uint8_t>(ScheduleType::storyStage) || e.date < g.gameDate) continue;
        const int type = storyTypeOf(g, e);
        if (type < 0 || type >= static_cast<int>(kTypes)) continue;
        for (int16_t a : {e.artist, e.artist2})
            if (a >= 1 && a <= artists) pending[static_cast<std::size_t>(a)][static_cast<std::size_t>(type)] = true;
    }
    for (int32_t n = 1; n <= artists; ++n) {
        const ArtistRecord a = copyOf(g.artist, n);
        for (std::size_t t = 0; t < kTypes; ++t) {
            const bool marked = a.storyUnderWay[t] != 0;
            const bool waits = pending[static_cast<std::size_t>(n)][t];
            if (marked != waits)
                return InvariantBreak{"artist", n, fmt::format("storyUnderWay[{}]", t), "storyMarksFollowPendingStages",
                                      marked
                                          ? fmt::format("holds {}, no stage of such a story waits", a.storyUnderWay[t])
                                          : std::string("holds 0, a stage of such a story waits")};
        }
    }
    return std::nullopt;
}

// An award keeps at most ten nominees, each scored 0 to 100.
std::optional<InvariantBreak> awardsHoldTheirNominees(Game& g) {
    for (int32_t n = 1; n != g.award.recordCount(); ++n) {
        const AwardRecord a = copyOf(g.award, n);
        if (a.nomineeCount > a.nominees.size())
            return InvariantBreak{"award", n, "nomineeCount", "awardsHoldTheirNominees",
                                  fmt::format("{}, above 10", a.nomineeCount)};
        for (std::size_t i = 0; i < a.nomineeCount; ++i)
            if (a.scores[i] > 100)
                return InvariantBreak{"award", n, fmt::format("scores[{}]", i), "awardsHoldTheirNominees",
                                      fmt::format("{}, above 100", a.scores[i])};
    }
    return std::nullopt;
}

// An appearance in the media names an act, an outlet and one of the five kinds.
std::optional<InvariantBreak> appearancesPointWithin(Game& g) {
    const int32_t bands = g.band.recordCount() - 1;
    const int32_t outlets = g.media.recordCount() - 1;
    for (int32_t n = 1; n != g.schedule.recordCount(); ++n) {
        if (g.schedule.bytesOf(n)[0] != 17) continue;  // the type is the record's first byte
        const ScheduleRecord e = copyOf(g.schedule, n);
        if (e.band < 1 || e.band > bands)
            return outside("schedule", n, "band", "appearancesPointWithin", e.band, bands);
        if (e.media < 1 || e.media > outlets)
            return outside("schedule", n, "media", "appearancesPointWithin", e.media, outlets);
        if (e.mediaOption > 4)
            return InvariantBreak{"schedule", n, "mediaOption", "appearancesPointWithin",
                                  fmt::format("{}, above 4", e.mediaOption)};
    }
    return std::nullopt;
}

constexpr std::array kRules = {
    InvariantRule{"playerCashIsTheLabels", playerCashIsTheLabels},
    InvariantRule{"labelCashMatchesLedger", labelCashMatchesLedger},
    InvariantRule{"staffLevelsWithinBounds", staffLevelsWithinBounds},
    InvariantRule{"departmentHeadsWorkThere", departmentHeadsWorkThere},
    InvariantRule{"departmentRatingsFollowStaff", departmentRatingsFollowStaff},
    InvariantRule{"wageBillIsItsDepartments", wageBillIsItsDepartments},
    InvariantRule{"bandsHoldTheirFields", bandsHoldTheirFields},
    InvariantRule{"bandCountIsItsBands", bandCountIsItsBands},
    InvariantRule{"offersAndShortlistPointWithin", offersAndShortlistPointWithin},
    InvariantRule{"songsAndDiscsPointWithin", songsAndDiscsPointWithin},
    InvariantRule{"firmsHoldTheirFields", firmsHoldTheirFields},
    InvariantRule{"gigsAndToursPointWithin", gigsAndToursPointWithin},
    InvariantRule{"tourGigsInDateOrder", tourGigsInDateOrder},
    InvariantRule{"supportCountsWithinThree", supportCountsWithinThree},
    InvariantRule{"billsHoldNoActTwice", billsHoldNoActTwice},
    InvariantRule{"looksAndAchievementsPointWithin", looksAndAchievementsPointWithin},
    InvariantRule{"actsAndMembersAgree", actsAndMembersAgree},
    InvariantRule{"recordingBandsNameTheirDisc", recordingBandsNameTheirDisc},
    InvariantRule{"activeActsKeepTheirCount", activeActsKeepTheirCount},
    InvariantRule{"storyMarksFollowPendingStages", storyMarksFollowPendingStages},
    InvariantRule{"awardsHoldTheirNominees", awardsHoldTheirNominees},
    InvariantRule{"appearancesPointWithin", appearancesPointWithin},
};

}  // namespace

std::string describeBreak(const InvariantBreak& b) {
    return fmt::format("table {}, record {}, field {}: rule {} broken ({})", b.table, b.record, b.field, b.rule,
                       b.detail);
}

int32_t countActiveActs(Game& g) {
    int32_t active = 0;
    for (int32_t n = 1; n != g.band.recordCount(); ++n)
        if (copyOf(g.band, n).retired == kFalse) ++active;
    return active;
}

void noteActiveActs(Game& g) { g.activeActsAtStart = countActiveActs(g); }

std::span<const InvariantRule> invariantRules() { return kRules; }

std::optional<InvariantBreak> checkInvariants(Game& g) {
    for (const InvariantRule& rule : kRules)
        if (auto broken = rule.check(g)) return broken;
    return std::nullopt;
}

}  // namespace trovane
