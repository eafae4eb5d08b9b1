#include "schedule/engagement_index.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <span>
#include <string>

#include "schedule/schedule.h"
#include "schedule/schedule_types.h"
#include "world/dates.h"
#include "world/fatal_error.h"
#include "world/game.h"
#include "world/record_bytes.h"
#include "world/record_store.h"

namespace trovane {

namespace {

using Item = EngagementIndex::Item;
using Listing = EngagementIndex::Listing;
using Bytes = std::span<const uint8_t>;

const std::size_t kEntryType = offsetIn<ScheduleRecord>("type");
const std::size_t kEntryBand = offsetIn<ScheduleRecord>("band");
const std::size_t kEntryGig = offsetIn<ScheduleRecord>("gig");
const std::size_t kGigBill = offsetIn<GigRecord>("bill");
const std::size_t kGigTour = offsetIn<GigRecord>("tour");
const std::size_t kTourFestival = offsetIn<TourRecord>("festival");
const std::size_t kTourSupport = offsetIn<TourRecord>("supportCount");
const std::size_t kFestivalBillSize = offsetIn<FestivalRecord>("billSize");
const std::size_t kDayEntries = offsetIn<DayRecord>("entries");
const std::size_t kDayCount = offsetIn<DayRecord>("count");
constexpr int kBillSlots = static_cast<int>(std::tuple_size_v<decltype(GigRecord::bill)>);

struct Entry {
    uint8_t type = 255;
    int16_t band = 0;
    int32_t gig = 0;
};

Entry entryIn(Bytes bytes) {
    if (bytes.empty()) return {};
    return {fieldAt<uint8_t>(bytes, kEntryType), fieldAt<int16_t>(bytes, kEntryBand),
            fieldAt<int32_t>(bytes, kEntryGig)};
}

Entry entryNumbered(Game& g, int32_t id) {
    if (id < 1 || id >= g.schedule.recordCount()) return {};
    return entryIn(g.schedule.bytesOf(id));
}

bool namesABill(const Entry& e) { return scheduleTypeInfo(e.type).occupiesTheBill && e.gig >= 1; }

Bytes gigBytes(Game& g, int32_t gig) {
    if (gig < 1 || gig >= g.gig.recordCount()) return {};
    return g.gig.bytesOf(gig);
}

// The acts anywhere on a bill but the entry's own, each once.
void addBillBands(std::vector<int16_t>& out, const Entry& e, Bytes gig) {
    if (gig.empty()) return;
    for (int slot = 0; slot < kBillSlots; ++slot) {
        const auto b = fieldAt<int16_t>(gig, kGigBill + 2 * static_cast<std::size_t>(slot));
        if (b >= 1 && b != e.band && std::find(out.begin(), out.end(), b) == out.end()) out.push_back(b);
    }
}

// The bands an entry may engage, with the gig's bill as it is in the table.
std::vector<int16_t> bandsOf(Game& g, const Entry& e) {
    std::vector<int16_t> out;
    if (scheduleTypeInfo(e.type).occupiesBand && e.band >= 1) out.push_back(e.band);
    if (namesABill(e)) addBillBands(out, e, gigBytes(g, e.gig));
    return out;
}

bool before(const Item& a, const Item& b) { return a.day != b.day ? a.day < b.day : a.pos < b.pos; }

void addItem(EngagementIndex& x, int16_t band, Item item) {
    const auto b = static_cast<std::size_t>(band);
    if (x.byBand.size() <= b) x.byBand.resize(b + 1);
    auto& items = x.byBand[b];
    items.insert(std::upper_bound(items.begin(), items.end(), item, before), item);
}

void removeItem(EngagementIndex& x, int16_t band, Item item) {
    const auto b = static_cast<std::size_t>(band);
    if (x.byBand.size() <= b) return;
    auto& items = x.byBand[b];
    auto it = std::lower_bound(items.begin(), items.end(), item, before);
    for (; it != items.end() && it->day == item.day && it->pos == item.pos; ++it)
        if (it->id == item.id) {
            items.erase(it);
            return;
        }
}

std::vector<Listing> listingsOf(const EngagementIndex& x, int32_t id) {
    std::vector<Listing> out;
    if (id < 1 || static_cast<std::size_t>(id) >= x.firstListing.size()) return out;
    if (x.firstListing[static_cast<std::size_t>(id)].day != 0)
        out.push_back(x.firstListing[static_cast<std::size_t>(id)]);
    if (auto it = x.moreListings.find(id); it != x.moreListings.end())
        out.insert(out.end(), it->second.begin(), it->second.end());
    return out;
}

void noteGig(EngagementIndex& x, const Entry& e, int32_t id) {
    if (!namesABill(e)) return;
    const auto gig = static_cast<std::size_t>(e.gig);
    if (x.entriesOfGig.size() <= gig) x.entriesOfGig.resize(gig + 1);
    auto& ids = x.entriesOfGig[gig];
    if (std::find(ids.begin(), ids.end(), id) == ids.end()) ids.push_back(id);
}

void listEntry(Game& g, int32_t id, Listing at) {
    EngagementIndex& x = g.engagements;
    if (id < 1) return;
    const auto n = static_cast<std::size_t>(id);
    if (x.firstListing.size() <= n) x.firstListing.resize(n + 1);
    if (x.firstListing[n].day == 0)
        x.firstListing[n] = at;
    else
        x.moreListings[id].push_back(at);
    const Entry e = entryNumbered(g, id);
    noteGig(x, e, id);
    for (int16_t b : bandsOf(g, e)) addItem(x, b, {at.day, at.pos, id});
}

void unlistEntry(Game& g, int32_t id, Listing at) {
    EngagementIndex& x = g.engagements;
    if (id < 1 || static_cast<std::size_t>(id) >= x.firstListing.size()) return;
    for (int16_t b : bandsOf(g, entryNumbered(g, id))) removeItem(x, b, {at.day, at.pos, id});
    Listing& first = x.firstListing[static_cast<std::size_t>(id)];
    auto more = x.moreListings.find(id);
    auto same = [&](const Listing& l) { return l.day == at.day && l.pos == at.pos; };
    if (same(first)) {
        first = Listing{};
        if (more != x.moreListings.end()) {
            first = more->second.front();
            more->second.erase(more->second.begin());
        }
    } else if (more != x.moreListings.end()) {
        std::erase_if(more->second, same);
    }
    if (more != x.moreListings.end() && more->second.empty()) x.moreListings.erase(more);
}

// Moves an entry's listings from one set of bands to another.
void rebind(EngagementIndex& x, int32_t id, const std::vector<int16_t>& from, const std::vector<int16_t>& to) {
    if (from == to) return;
    for (const Listing& l : listingsOf(x, id)) {
        for (int16_t b : from) removeItem(x, b, {l.day, l.pos, id});
        for (int16_t b : to) addItem(x, b, {l.day, l.pos, id});
    }
}

// The number of entries a day's bytes list (none for no bytes), and the i-th.
std::size_t countIn(Bytes day) {
    if (day.empty()) return 0;
    return static_cast<std::size_t>(std::clamp(fieldAt<int32_t>(day, kDayCount), 0, kMaxEntriesPerDay));
}

int32_t entryAt(Bytes day, std::size_t i) { return fieldAt<int32_t>(day, kDayEntries + i * sizeof(int32_t)); }

std::vector<int32_t> entriesIn(Bytes day) {
    if (day.empty()) return {};
    const int32_t count = std::clamp(fieldAt<int32_t>(day, kDayCount), 0, kMaxEntriesPerDay);
    std::vector<int32_t> ids(static_cast<std::size_t>(count));
    if (count > 0) std::memcpy(ids.data(), day.data() + kDayEntries, ids.size() * sizeof(int32_t));
    return ids;
}

bool isCurrent(Game& g) {
    const EngagementIndex& x = g.engagements;
    return x.built && g.schedule.isOpen() && g.gig.isOpen() && x.scheduleGeneration == g.schedule.generation() &&
           x.gigGeneration == g.gig.generation();
}

// The day serial a write to the open day file is about, or 0 for a file that
// is not one of this game's years.
int32_t januaryFirstOfDayFile(Game& g) {
    // The name is read from the path's text: "<folder>/<year>.vel".
    const std::string& path = g.dayIndex.path().native();
    const std::size_t slash = path.find_last_of('/');
    const std::size_t from = slash == std::string::npos ? 0 : slash + 1;
    constexpr std::string_view kExt = ".vel";
    if (path.size() <= from + kExt.size() || path.compare(path.size() - kExt.size(), kExt.size(), kExt) != 0) return 0;
    const std::string_view stem(path.data() + from, path.size() - kExt.size() - from);
    if (stem.size() > 6 || !std::all_of(stem.begin(), stem.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return 0;
    int year = 0;
    for (char c : stem) year = year * 10 + (c - '0');
    if (path != dayFilePath(g, year).native()) return 0;
    return static_cast<int32_t>(serialFromCivil(year, 1, 1));
}

int32_t daySerialOfWrite(Game& g, int32_t n) {
    EngagementIndex& x = g.engagements;
    if (x.dayFileGeneration != g.dayIndex.generation()) {  // the path is read once each time a file is opened
        x.dayFileJanuary1 = januaryFirstOfDayFile(g);
        x.dayFileGeneration = g.dayIndex.generation();
    }
    return x.dayFileJanuary1 == 0 ? 0 : x.dayFileJanuary1 + n - 1;
}

// A write to a day of the open day file: the entries it drops leave the
// index and those it adds join it. The lists are compared in the bytes;
// usually one entry is added at the end.
void noteDayWrite(Game& g, int32_t n, Bytes before, Bytes after) {
    if (!isCurrent(g)) return;
    const int32_t day = daySerialOfWrite(g, n);
    if (day == 0) return;
    const std::size_t was = countIn(before), is = countIn(after);
    std::size_t same = std::min(was, is);
    if (same > 0 && std::memcmp(before.data() + kDayEntries, after.data() + kDayEntries, same * sizeof(int32_t)) != 0) {
        std::size_t i = 0;
        while (entryAt(before, i) == entryAt(after, i)) ++i;
        same = i;
    }
    for (std::size_t i = same; i < was; ++i) unlistEntry(g, entryAt(before, i), {day, static_cast<int32_t>(i)});
    for (std::size_t i = same; i < is; ++i) listEntry(g, entryAt(after, i), {day, static_cast<int32_t>(i)});
}

void watchTheCalendar(Game& g) {
    g.schedule.watchWrites(&g.engagements, [&g](int32_t n, Bytes before, Bytes after) {
        if (!isCurrent(g)) return;
        const Entry was = entryIn(before), is = entryIn(after);
        noteGig(g.engagements, is, n);
        if (!before.empty() && was.type == is.type && was.band == is.band && was.gig == is.gig) return;
        rebind(g.engagements, n, bandsOf(g, was), bandsOf(g, is));
    });
    g.gig.watchWrites(&g.engagements, [&g](int32_t n, Bytes before, Bytes after) {
        if (!isCurrent(g)) return;
        EngagementIndex& x = g.engagements;
        if (static_cast<std::size_t>(n) >= x.entriesOfGig.size()) return;
        if (!before.empty() && std::memcmp(before.data() + kGigBill, after.data() + kGigBill, 2 * kBillSlots) == 0)
            return;
        const std::vector<int32_t> ids = x.entriesOfGig[static_cast<std::size_t>(n)];
        for (int32_t id : ids) {
            const Entry e = entryNumbered(g, id);
            if (!namesABill(e) || e.gig != n) continue;
            std::vector<int16_t> from, to;
            if (scheduleTypeInfo(e.type).occupiesBand && e.band >= 1) from = to = {e.band};
            addBillBands(from, e, before);
            addBillBands(to, e, after);
            rebind(x, id, from, to);
        }
    });
    // A day's list changes only with its count: an entry is filed in the slot
    // past the count before the count takes it in, and never moved after.
    g.dayIndex.watchWrites(&g.engagements,
                           [&g](int32_t n, Bytes before, Bytes after) { noteDayWrite(g, n, before, after); },
                           {{kDayCount, sizeof(int32_t)}});
}

// Reads every day file of the game into a new index. The years with a file
// run without a gap up to the last one made.
void rebuild(Game& g) {
    EngagementIndex& x = g.engagements;
    x.reset();
    x.scheduleGeneration = g.schedule.generation();
    x.gigGeneration = g.gig.generation();
    x.firstListing.resize(static_cast<std::size_t>(g.schedule.recordCount()));
    int first = g.lastScheduleYear;
    while (first > 0 && hasDayFile(g, first - 1)) --first;
    for (int year = first; year > 0 && year <= g.lastScheduleYear; ++year) {
        if (!hasDayFile(g, year)) continue;
        openDayFile(g, year);
        const auto jan1 = static_cast<int32_t>(serialFromCivil(year, 1, 1));
        const int32_t days = g.dayIndex.recordCount() - 1;
        for (int32_t n = 1; n <= days; ++n) {
            const std::vector<int32_t> ids = entriesIn(g.dayIndex.bytesOf(n));
            for (std::size_t i = 0; i < ids.size(); ++i) listEntry(g, ids[i], {jan1 + n - 1, static_cast<int32_t>(i)});
        }
        closeDayFile(g);
    }
    x.built = true;
    watchTheCalendar(g);
}

// The calendar's test of a place on another act's bill, on the bytes of the
// gig, its tour and its festival.
bool onTheBill(Game& g, const Entry& e, int16_t band) {
    const Bytes gig = g.gig.bytesOf(e.gig);
    const auto tour = fieldAt<int16_t>(gig, kGigTour);
    int first = 1;
    int last = 0;
    if (tour > 0) {
        const Bytes t = g.tour.bytesOf(tour);
        last = fieldAt<uint8_t>(t, kTourSupport);
        if (const auto festival = fieldAt<int16_t>(t, kTourFestival); festival != 0) {
            first = 0;
            last = fieldAt<uint8_t>(g.festival.bytesOf(festival), kFestivalBillSize) - 1;
        }
    }
    last = std::min(last, kBillSlots - 1);
    for (int slot = first; slot <= last; ++slot)
        if (fieldAt<int16_t>(gig, kGigBill + 2 * static_cast<std::size_t>(slot)) == band) return true;
    return false;
}

}  // namespace

std::optional<int32_t> indexedEngagement(Game& g, int16_t band, double date) {
    if (band < 1 || !g.schedule.isOpen() || !g.gig.isOpen()) return std::nullopt;
    if (!isCurrent(g)) {
        if (g.dayIndex.isOpen()) return std::nullopt;
        rebuild(g);
    }
    const EngagementIndex& x = g.engagements;
    // The day's serial: the date's whole days.
    const auto day = static_cast<int32_t>(std::floor(date));
    if (static_cast<std::size_t>(band) >= x.byBand.size()) return 0;
    const auto& items = x.byBand[static_cast<std::size_t>(band)];
    int32_t supporting = 0;
    auto it = std::lower_bound(items.begin(), items.end(), Item{day, -1, 0}, before);
    for (; it != items.end() && it->day == day; ++it) {
        const Entry e = entryNumbered(g, it->id);
        if (e.band == band) {
            if (scheduleTypeInfo(e.type).occupiesBand) return it->id;
        } else if (scheduleTypeInfo(e.type).occupiesTheBill && e.gig >= 1 && onTheBill(g, e, band)) {
            supporting = it->id;
        }
    }
    return supporting;
}

}  // namespace trovane
