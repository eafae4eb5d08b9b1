#pragma once
// A rise in an act's standing reaches the discs that chart.
#include <cstdint>
#include <vector>

namespace trovane {

class Game;

// Adds `rise` to hype[t] (held 1 to 100) of each disc in territory t's album
// and single charts that belongs to `who`: in mode 0 a label, in mode 1 a
// band, in mode 2 the disc itself. Each disc is written. The chart file is
// opened for the walk and closed after unless it is open already. Leaves the
// disc buffer on the last disc read.
void spreadHypeRise(Game& g, int mode, int t, int32_t who, int rise);

// While one lives, a rise spread over the open chart takes each row's disc,
// and that disc's label and band, from a copy made when it was made, instead
// of from the chart's and the discs' bytes. For a walk over one open chart
// during which no row's disc and no disc's label or band changes.
class HeldChartRows {
public:
    explicit HeldChartRows(Game& g);
    ~HeldChartRows();
    HeldChartRows(const HeldChartRows&) = delete;
    HeldChartRows& operator=(const HeldChartRows&) = delete;

    struct Row {
        int16_t disc = 0;  // 0: the row's disc is not a disc of the table
        int16_t id = 0;    // the disc's fields
        int16_t label = 0;
        int16_t band = 0;
    };
    // The rows of g's open chart, or nullptr when none are held for it.
    static const std::vector<Row>* of(const Game& g);

private:
    const Game& g_;
    uint64_t chartGeneration_;
    std::vector<Row> rows_;  // by row number; [0] unused
    HeldChartRows* outer_;
};

}  // namespace trovane
