#pragma once
// The game's one random source. A draw is a single in [0, 1); a random whole
// number between two bounds, both included, is the low bound plus the whole
// part of draw times the width. Seeded from the clock by the desktop game,
// explicitly by tests and trovane-sim, and then a whole game repeats exactly.
#include <cstdint>
#include <random>

namespace trovane {

class Random {
public:
    explicit Random(uint64_t seed = 1) : engine_(seed) {}

    void seed(uint64_t s) { engine_.seed(s); }

    float draw() { return static_cast<float>(bits()) / 16777216.0f; }

    // A random whole number from low to high, both included.
    int32_t between(int32_t low, int32_t high) { return scale(bits(), low, high); }

    // Moves on as many draws as `count` would take, their values unused.
    void discard(uint64_t count) {
        for (; count != 0; --count) static_cast<void>(engine_());
    }

    // The whole number from low to high that a draw of these 24 bits gives.
    // The draw times the width, in doubles, is exact while the width is below
    // 2^29 (a 24-bit draw by a 29-bit width stays within a double's 53 bits),
    // and its whole part is then the product's bits above the 24th; wider or
    // empty spans keep the floating-point reading.
    static int32_t scale(uint32_t bits, int32_t low, int32_t high) {
        const int64_t width = static_cast<int64_t>(high) - static_cast<int64_t>(low) + 1;
        if (width > 0 && width < (int64_t{1} << 29))
            return low + static_cast<int32_t>((static_cast<uint64_t>(bits) * static_cast<uint64_t>(width)) >> 24);
        const double fraction = static_cast<double>(static_cast<float>(bits) / 16777216.0f);
        return low + static_cast<int32_t>(fraction * static_cast<double>(width));
    }

private:
    // 24 random bits: every draw made of them is an exact single below 1.
    uint32_t bits() { return static_cast<uint32_t>(engine_() >> 40); }

    std::mt19937_64 engine_;
};

}  // namespace trovane
