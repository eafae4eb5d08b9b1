#pragma once
// Number conversions as the game does them everywhere: a floating value that
// becomes an integer rounds half to even unless Int is asked for, and a value
// that does not fit its field stops the game instead of wrapping around.
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include "world/fatal_error.h"

namespace trovane {

// Currency: a 64-bit count of ten-thousandths of the game's base unit.
using Money = int64_t;
inline constexpr Money kMoneyUnit = 10000;
inline constexpr Money moneyUnits(int64_t whole) { return whole * kMoneyUnit; }
inline double moneyToDouble(Money m) { return static_cast<double>(m) / kMoneyUnit; }

// Round half to even (the game's default conversion).
inline double roundHalfEven(double v) { return std::nearbyint(v); }

// Int: the largest whole number not above v (truncation toward minus infinity).
inline double intFloor(double v) { return std::floor(v); }

[[noreturn]] void throwOverflow(const char* targetKind, double value);

template <class T>
constexpr const char* integerKindName() {
    if constexpr (std::is_same_v<T, uint8_t>)
        return "byte";
    else if constexpr (std::is_same_v<T, int16_t>)
        return "16-bit";
    else if constexpr (std::is_same_v<T, int32_t>)
        return "32-bit";
    else if constexpr (std::is_same_v<T, uint16_t>)
        return "unsigned 16-bit";
    else
        return "64-bit";
}

// Checked narrowing of a whole number to a field's type.
template <class T, class V>
T narrow(V value) {
    static_assert(std::is_integral_v<T>);
    if constexpr (std::is_floating_point_v<V>) {
        if (!(value >= static_cast<V>(std::numeric_limits<T>::min()) &&
              value <= static_cast<V>(std::numeric_limits<T>::max())))
            throwOverflow(integerKindName<T>(), static_cast<double>(value));
        return static_cast<T>(value);
    } else {
        if (!std::in_range<T>(value)) throwOverflow(integerKindName<T>(), static_cast<double>(value));
        return static_cast<T>(value);
    }
}

// A floating value converted to an integer field: rounded half to even, then checked.
template <class T>
T roundTo(double value) {
    return narrow<T>(roundHalfEven(value));
}

// Int of a floating value into an integer field: floored, then checked.
template <class T>
T intTo(double value) {
    return narrow<T>(intFloor(value));
}

inline int16_t toInteger(double v) { return roundTo<int16_t>(v); }
inline uint8_t toByte(double v) { return roundTo<uint8_t>(v); }
inline int32_t toLong(double v) { return roundTo<int32_t>(v); }

// 16-bit booleans as records hold them.
inline constexpr int16_t kTrue = -1;
inline constexpr int16_t kFalse = 0;
inline constexpr int16_t boolean(bool b) { return b ? kTrue : kFalse; }

}  // namespace trovane
