#include "floor/number_helpers.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "world/game.h"
#include "world/numbers.h"

namespace trovane {

namespace {

struct StepBand {
    int32_t upTo;  // the last amount of the band
    int32_t step;
};

constexpr std::array<StepBand, 11> kMoneySteps = {{
    {99, 5},
    {999, 50},
    {4'999, 250},
    {24'999, 500},
    {49'999, 1'000},
    {99'999, 5'000},
    {249'999, 10'000},
    {499'999, 25'000},
    {999'999, 50'000},
    {4'999'999, 100'000},
    {9'999'999, 250'000},
}};
constexpr int32_t kLargestStep = 500'000;

// One market of a new band: base = R / divisor as a byte, then the base plus
// a random part of up to base / spread, less base / cut, again as a byte.
uint8_t newBandShare(Game& g, double reputation, double divisor, double spread, double cut) {
    uint8_t base = roundTo<uint8_t>(reputation / divisor);
    double share = base + intFloor(base / spread * static_cast<double>(g.rng.draw())) - base / cut;
    return std::max<uint8_t>(roundTo<uint8_t>(share), 2);
}

}  // namespace

int16_t clampInteger(int16_t& value, int16_t low, int16_t high) {
    if (value < low)
        value = low;
    else if (value > high)
        value = high;
    return value;
}

int32_t clampLong(int32_t& value, int32_t low, int32_t high) {
    if (value < low)
        value = low;
    else if (value > high)
        value = high;
    return value;
}

int32_t moneyStep(int32_t value) {
    if (value < 0) return kLargestStep;
    for (const StepBand& band : kMoneySteps)
        if (value <= band.upTo) return band.step;
    return kLargestStep;
}

int32_t roundToMoneyStep(int32_t& value) {
    int32_t step = moneyStep(value);
    value = roundTo<int32_t>(roundHalfEven(static_cast<double>(value) / step) * step);
    return value;
}

int32_t stepMoney(bool up, int32_t& value) {
    int64_t step = moneyStep(value);
    if (up) {
        value = narrow<int32_t>(int64_t{value} + step);
    } else {
        value = static_cast<int32_t>(std::max<int64_t>(int64_t{value} - step, 0));
    }
    return value;
}

int32_t digitsOf(std::string_view text) {
    int64_t number = 0;
    bool anyDigit = false;
    for (char c : text) {
        if (c < '0' || c > '9') continue;
        anyDigit = true;
        number = number * 10 + (c - '0');
        if (number > INT32_MAX) throwOverflow("32-bit", static_cast<double>(number));
    }
    if (!anyDigit) throw FatalError(fmt::format("Type mismatch: \"{}\" holds no digit to read as a number", text));
    return static_cast<int32_t>(number);
}

int32_t bandGlobalReputation(const Game& g) {
    const auto& r = g.band.rec.reputation;
    return int32_t{r[0]} * 8 + int32_t{r[1]} * 10 + int32_t{r[2]} * 7 + int32_t{r[3]} * 5 + int32_t{r[4]} * 3;
}

void setRegionalShares(Game& g, int mode, uint8_t& a, uint8_t& b, uint8_t& c, uint8_t& d, uint8_t& e) {
    if (mode == 1) {
        a = 40;
        b = 20;
        c = 15;
        d = 10;
        e = 5;
    } else if (mode == 2) {
        double reputation = g.band->ability;
        a = newBandShare(g, reputation, 7, 5, 10);
        b = newBandShare(g, reputation, 10, 3, 8);
        c = newBandShare(g, reputation, 12, 3, 7);
        d = newBandShare(g, reputation, 15, 3, 6);
        e = newBandShare(g, reputation, 20, 3, 4);
    }
}

}  // namespace trovane
