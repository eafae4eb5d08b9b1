#include "browse/band_browse.h"

#include <algorithm>
#include <optional>

#include "floor/formats.h"
#include "label/scouting.h"
#include "schedule/band_calendar.h"
#include "world/game.h"
#include "world/strings.h"

namespace trovane {

double displayRate(const Game& g) {
    double rate = static_cast<double>(g.prefs.rec.exchangeRate);
    return rate == 0 ? 1.0 : rate;
}

// The filter's bounds are whole amounts: the float rate's last bits would
// otherwise leave 147,000 euros a hair under 100,000 pounds.
Money moneyFromDisplay(const Game& g, double displayAmount) {
    return moneyUnits(static_cast<int64_t>(roundHalfEven(displayAmount / displayRate(g))));
}

void resetBandFilter(const Game& g, BandFilter& filter) {
    filter = BandFilter{};
    filter.advanceMax = moneyFromDisplay(g, 50'000'000);
}

double stepAdvance(double shown, int direction) {
    if (direction > 0) {
        for (double step : kAdvanceSteps)
            if (step > shown) return step;
    } else {
        for (auto it = kAdvanceSteps.rbegin(); it != kAdvanceSteps.rend(); ++it)
            if (*it < shown) return *it;
    }
    return shown;
}

namespace {

constexpr int kMaxRows = 50'000;

GridColumn columnFor(int code) {
    switch (code) {
    case bcName: return {"Name", 2400};
    case bcStyle: return {"Style", 1500};
    case bcAdvance: return {"Advance", 1500};
    case bcLabel: return {"Label", 2200};
    case bcAdded: return {"Added", 800};
    case bcPos: return {"Pos", 500};
    case bcAdvanceValue: return {"", 0, true};
    case bcActivity: return {"Current Activity", 2500};
    default: return {"", 0, true};
    }
}

bool passes(Game& g, const BandFilter& f) {
    const BandRecord& b = g.band.rec;
    if (f.shortlistOnly) {
        const BandRecord keep = g.band.rec;
        g.label.read(g.player.playerLabel);
        g.band.rec = keep;
        if (!isShortlisted(g)) return false;
    }
    if (f.label != -1 && b.label != f.label) return false;
    if (f.style != 0 && b.style != f.style) return false;
    if (b.advanceToPay < f.advanceMin || b.advanceToPay > f.advanceMax) return false;
    if (b.royaltyRate < f.royaltyMin || b.royaltyRate > f.royaltyMax) return false;
    if (b.bestShare < f.gigMin || b.bestShare > f.gigMax) return false;
    if (b.age < f.ageMin || b.age > f.ageMax) return false;
    if (!trim(f.name).empty() && trim(b.name.value) != trim(f.name)) return false;
    for (std::size_t t = 0; t < 5; ++t)
        if (b.reputation[t] < f.reputationMin[t] || b.reputation[t] > f.reputationMax[t]) return false;
    return true;
}

// The bands of the bill held in the gig buffer, as many as the tour buffer says.
std::vector<int16_t> billInHand(Game& g, int mode) {
    int length = g.tour->supportCount + (mode == 2 ? 1 : 0);
    std::vector<int16_t> bill;
    for (int i = 0; i < length && i < static_cast<int>(g.gig->bill.size()); ++i)
        bill.push_back(g.gig->bill[static_cast<std::size_t>(i)]);
    return bill;
}

// Names of styles and labels, each read once in a filling.
struct NameCache {
    std::vector<std::optional<std::string>> styles, labels;

    const std::string& style(Game& g, int32_t n) {
        if (styles.empty()) styles.resize(static_cast<std::size_t>(std::max(g.style.recordCount(), 1)));
        auto& slot = styles[static_cast<std::size_t>(n)];
        if (!slot) {
            g.style.read(n);
            slot = trim(g.style->name.value);
        }
        return *slot;
    }
    const std::string& label(Game& g, int32_t n) {
        if (labels.empty()) labels.resize(static_cast<std::size_t>(std::max(g.label.recordCount(), 1)));
        auto& slot = labels[static_cast<std::size_t>(n)];
        if (!slot) {
            g.label.read(n);
            slot = trim(g.label->name.value);
        }
        return *slot;
    }
};

GridCell cellFor(Game& g, const BandRecord& band, int code, int pos, const std::vector<int16_t>& bill,
                 NameCache& names) {
    switch (code) {
    case bcName: return {trim(band.name.value), {}};
    case bcStyle: {
        if (band.style > 0 && band.style < g.style.recordCount()) return {names.style(g, band.style), {}};
        return {"", {}};
    }
    case bcAdvance:
        return {formatMoneyValue(g, moneyToDouble(band.advanceToPay), "###,###,###,##0"),
                moneyToDouble(band.advanceToPay)};
    case bcAdvanceValue: return {std::to_string(band.advanceToPay / kMoneyUnit), moneyToDouble(band.advanceToPay)};
    case bcLabel: {
        if (band.label <= 0 || band.label >= g.label.recordCount()) return {"Unsigned", {}};
        return {names.label(g, band.label), {}};
    }
    case bcAdded: {
        for (int16_t b : bill)
            if (b == band.id && b != 0) return {"Added", {}};
        return {"", {}};
    }
    case bcPos: return {std::to_string(pos), static_cast<double>(pos)};
    case bcActivity: {
        int32_t id = bandEngagement(g, 1, g.gameDate);
        std::string text = scheduleActivityText(g, id);
        g.band.rec = band;
        return {text, {}};
    }
    default: return {"", {}};
    }
}

}  // namespace

void populateBandGrid(Game& g, int mode, const BandFilter& filter, const std::vector<int>& columns,
                      const GridSort& sort, Grid& grid) {
    grid.columns.clear();
    for (int code : columns) grid.columns.push_back(columnFor(code));
    grid.rows.clear();
    grid.rows.reserve(kMaxRows);
    // The caller's reference band is read for the same-style and support
    // choices; neither drops a band here.
    if ((filter.sameStyleOnly || filter.supportOnly) && filter.referenceBand > 0 &&
        filter.referenceBand < g.band.recordCount())
        g.band.read(filter.referenceBand);

    NameCache names;
    auto writeRow = [&](const std::vector<int16_t>& bill) {
        GridRow row;
        row.record = g.band->id;
        row.cells.reserve(columns.size());
        const int pos = static_cast<int>(grid.rows.size()) + 1;
        const BandRecord band = g.band.rec;
        for (int code : columns) row.cells.push_back(cellFor(g, band, code, pos, bill, names));
        g.band.rec = band;
        grid.rows.push_back(std::move(row));
    };

    if (mode == 1) {
        // The booking list marks the bands already on the bill in hand.
        const bool marksBill = std::find(columns.begin(), columns.end(), int{bcAdded}) != columns.end();
        const std::vector<int16_t> bill = marksBill ? billInHand(g, 2) : std::vector<int16_t>{};
        const int32_t count = g.band.recordCount();
        for (int32_t n = 1; n < count && static_cast<int>(grid.rows.size()) < kMaxRows; ++n) {
            g.band.read(n);
            if (g.band->retired != 0) continue;
            if (!passes(g, filter)) continue;
            writeRow(bill);
        }
    } else {
        const std::vector<int16_t> bill = billInHand(g, mode);
        for (int16_t b : bill) {
            if (b <= 0 || b >= g.band.recordCount()) continue;
            g.band.read(b);
            writeRow(bill);
        }
    }
    grid.rows.shrink_to_fit();
    if (mode < 3) sortGrid(grid, sort);
}

}  // namespace trovane
