#pragma once
// A side index over a table whose records are only ever added: the record
// numbers of each key, brought up to date from the bytes of the new records,
// so a lookup never touches the table's buffer.
#include <array>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace trovane {

struct SideIndex {
    uint64_t generation = UINT64_MAX;  // the table's generation it was built for
    int32_t covered = 0;               // records 1 to covered are indexed
    std::vector<std::vector<int32_t>> byKey;

    void reset(uint64_t gen) {
        generation = gen;
        covered = 0;
        byKey.clear();
    }
    void add(int32_t key, int32_t record) {
        if (key < 0) return;
        const auto k = static_cast<std::size_t>(key);
        if (byKey.size() <= k) byKey.resize(k + 1);
        byKey[k].push_back(record);
    }
    const std::vector<int32_t>& of(int32_t key) const {
        static const std::vector<int32_t> none;
        if (key < 0 || static_cast<std::size_t>(key) >= byKey.size()) return none;
        return byKey[static_cast<std::size_t>(key)];
    }
};

// Record numbers by whole day, for a key that a record may change: the owner
// removes a record from its old days before adding it to its new ones.
struct DayIndex {
    uint64_t generation = UINT64_MAX;
    int32_t covered = 0;
    std::unordered_map<int64_t, std::vector<int32_t>> byDay;

    void reset(uint64_t gen) {
        generation = gen;
        covered = 0;
        byDay.clear();
    }
    void add(int64_t day, int32_t record) {
        auto& list = byDay[day];
        for (int32_t r : list)
            if (r == record) return;
        list.push_back(record);
    }
    void remove(int64_t day, int32_t record) {
        auto it = byDay.find(day);
        if (it == byDay.end()) return;
        std::erase(it->second, record);
        if (it->second.empty()) byDay.erase(it);
    }
    const std::vector<int32_t>& of(int64_t day) const {
        static const std::vector<int32_t> none;
        auto it = byDay.find(day);
        return it == byDay.end() ? none : it->second;
    }
};

// The schedule entries that may engage each band, by day: an entry of the
// band's own that occupies it, or an entry whose gig has the band anywhere on
// its bill. Kept in step with the schedule, the gigs and the day files by the
// schedule layer (see schedule/engagement_index.h).
struct EngagementIndex {
    struct Item {
        int32_t day;  // the day serial
        int32_t pos;  // the entry's place in the day's list
        int32_t id;
    };
    struct Listing {
        int32_t day = 0;  // 0: the entry is on no day
        int32_t pos = 0;
    };

    bool built = false;
    uint64_t scheduleGeneration = UINT64_MAX;
    uint64_t gigGeneration = UINT64_MAX;
    std::vector<std::vector<Item>> byBand;                           // each sorted by day, then place
    std::vector<Listing> firstListing;                               // by entry number
    std::unordered_map<int32_t, std::vector<Listing>> moreListings;  // an entry listed on several days
    std::vector<std::vector<int32_t>> entriesOfGig;                  // entries that ever named the gig
    // The open day file, as its path was last read: the serial of its 1 January,
    // 0 for a file that is not one of this game's years.
    uint64_t dayFileGeneration = UINT64_MAX;
    int32_t dayFileJanuary1 = 0;

    void reset() { *this = EngagementIndex{}; }
};

// The discs each chart's rows name, with the fields of each disc that a rise
// of hype over the chart tests (see production/chart_hype.cpp). A chart's
// copy stands while its rows name the same discs, the disc table is the one
// it was made from, no disc's id, label or band has been changed since, and
// no disc a row named past the table's end has been added.
struct ChartRowKeys {
    struct Row {
        int16_t disc = 0;  // 0: the row names no disc of the table
        int16_t id = 0;
        int16_t label = 0;
        int16_t band = 0;
    };
    struct Chart {
        uint64_t discGeneration = UINT64_MAX;
        uint64_t keysVersion = UINT64_MAX;
        std::vector<int16_t> named;    // the disc field of each row, from row 1
        int32_t discCount = 0;         // the disc table's record count when made
        bool namesPastTheEnd = false;  // a row named a disc the table did not yet hold
        int16_t lastDisc = 0;          // the disc of the last row that names one
        std::vector<Row> rows;         // the rows that name a disc, in order
        // The discs of those rows by label, by band and by id, sorted by key:
        // each made at the second rise by that key since the copy was made.
        std::array<std::vector<std::pair<int16_t, int16_t>>, 3> discsBy;
        std::array<uint8_t, 3> risesBy{};
        // The chart table's generation and chartWrites when the rows were last
        // compared with the copy: while both stand, the copy needs no compare.
        uint64_t checkedOpen = UINT64_MAX;
        uint64_t checkedWrites = 0;
    };
    bool watching = false;
    uint64_t keysVersion = 0;  // moves with each change to a disc's id, label or band
    uint64_t chartWrites = 0;  // moves with each row added to a chart or given another disc
    std::array<Chart, 10> charts;
};

// The bands whose sales totals, chart counts or points may have changed since
// each chart last looked for its record holders (see
// production/chart_records.cpp). Holders only ever rise, so a band left as it
// was when a chart last looked cannot take a record from them.
struct ChangedBands {
    bool watching = false;
    uint64_t generation = UINT64_MAX;  // the band table's generation the marks are for
    std::vector<uint16_t> marks;       // by band number: a bit for each chart yet to look
    std::vector<int32_t> listed;       // the bands with any mark, in the order marked
    struct Chart {
        bool looked = false;            // the chart looked at every band since the marks began
        std::array<int32_t, 3> held{};  // its band holders' values when it last looked
    };
    std::array<Chart, 10> charts;
};

}  // namespace trovane
