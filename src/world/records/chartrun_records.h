#pragma once
// The history of the charts: each Sunday, every published row of every chart.
#include "world/record_codec.h"

namespace trovane {

// week: the Sunday of the chart; chart 0 to 9; position from 1.
#define CHART_RUN_FIELDS(X) \
    X(id, int32_t)          \
    X(week, double)         \
    X(chart, uint8_t)       \
    X(position, int16_t)    \
    X(disc, int16_t)        \
    X(sales, int32_t)
TROVANE_RECORD(ChartRunRecord, 21, id, CHART_RUN_FIELDS);

}  // namespace trovane
