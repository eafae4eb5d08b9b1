#pragma once
// The game's one random source. A draw is a single in [0, 1); a random whole
// number between two bounds, both included, is the low bound plus the whole
// part of draw times the width. Seeded from the clock by the desktop game,
// explicitly by tests and trovane-sim, and then a whole game repeats exactly.
//
// The numbers are those of the 64-bit Mersenne Twister (std::mt19937_64),
// kept here so that a run of draws whose values are not wanted can move the
// state on without tempering each one, and so the state is renewed in plain
// loops the compiler can widen.
#include <array>
#include <cstdint>

namespace trovane {

class Random {
public:
    explicit Random(uint64_t seed = 1) { this->seed(seed); }

    void seed(uint64_t s) {
        state_[0] = s;
        for (std::size_t i = 1; i < kN; ++i) {
            const uint64_t prev = state_[i - 1];
            state_[i] = 6364136223846793005ULL * (prev ^ (prev >> 62)) + i;
        }
        next_ = kN;
    }

    float draw() { return static_cast<float>(bits()) / 16777216.0f; }

    // A random whole number from low to high, both included.
    int32_t between(int32_t low, int32_t high) { return scale(bits(), low, high); }

    // Moves on as many draws as `count` would take, their values unused.
    void discard(uint64_t count) {
        while (count > 0) {
            if (next_ >= kN) renew();
            const uint64_t step = count < kN - next_ ? count : kN - next_;
            next_ += static_cast<std::size_t>(step);
            count -= step;
        }
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
    static constexpr std::size_t kN = 312;
    static constexpr std::size_t kM = 156;

    // 24 random bits: every draw made of them is an exact single below 1.
    uint32_t bits() {
        if (next_ >= kN) renew();
        uint64_t y = state_[next_++];
        y ^= (y >> 29) & 0x5555555555555555ULL;
        y ^= (y << 17) & 0x71D67FFFEDA60000ULL;
        y ^= (y << 37) & 0xFFF7EEE000000000ULL;
        y ^= y >> 43;
        return static_cast<uint32_t>(y >> 40);
    }

    static uint64_t twist(uint64_t upper, uint64_t lower, uint64_t far) {
        const uint64_t y = (upper & 0xFFFFFFFF80000000ULL) | (lower & 0x7FFFFFFFULL);
        return far ^ (y >> 1) ^ ((0 - (y & 1)) & 0xB5026F5AA96619E9ULL);
    }

    void renew() {
        for (std::size_t i = 0; i < kN - kM; ++i) state_[i] = twist(state_[i], state_[i + 1], state_[i + kM]);
        for (std::size_t i = kN - kM; i < kN - 1; ++i) state_[i] = twist(state_[i], state_[i + 1], state_[i + kM - kN]);
        state_[kN - 1] = twist(state_[kN - 1], state_[0], state_[kM - 1]);
        next_ = 0;
    }

    std::array<uint64_t, kN> state_{};
    std::size_t next_ = kN;
};

}  // namespace trovane
