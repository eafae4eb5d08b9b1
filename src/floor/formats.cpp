#include "floor/formats.h"

#include <array>
#include <cmath>

#include <fmt/format.h>

#include "world/dates.h"
#include "world/game.h"

namespace trovane {

namespace {

constexpr std::array<std::string_view, 7> kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 12> kMonths = {"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};

}  // namespace

std::string_view weekdayName(int weekday) {
    return weekday >= 1 && weekday <= 7 ? kWeekdays[static_cast<std::size_t>(weekday - 1)] : "";
}

std::string_view monthName(unsigned month) { return month >= 1 && month <= 12 ? kMonths[month - 1] : ""; }

std::string formatNumber(double value, std::string_view mask) {
    auto point = mask.find('.');
    std::string_view intMask = mask.substr(0, point);
    std::size_t decimals = 0;
    if (point != std::string_view::npos)
        for (char c : mask.substr(point + 1))
            if (c == '0' || c == '#') ++decimals;
    bool group = intMask.find(',') != std::string_view::npos;
    std::size_t minDigits = 0;
    for (char c : intMask)
        if (c == '0') ++minDigits;

    double scale = std::pow(10.0, static_cast<double>(decimals));
    double scaled = std::round(std::fabs(value) * scale);  // halves away from zero
    bool negative = value < 0 && scaled != 0;
    std::string digits = fmt::format("{:.0f}", scaled);
    std::string fraction;
    if (decimals > 0) {
        if (digits.size() <= decimals) digits.insert(0, decimals - digits.size() + 1, '0');
        fraction = digits.substr(digits.size() - decimals);
        digits.erase(digits.size() - decimals);
    }
    // The whole part: leading zeros beyond what the mask's '0's ask for are dropped.
    std::size_t firstNonZero = digits.find_first_not_of('0');
    std::string whole = firstNonZero == std::string::npos ? "" : digits.substr(firstNonZero);
    if (whole.size() < minDigits) whole.insert(0, minDigits - whole.size(), '0');
    if (group && whole.size() > 3) {
        std::string grouped;
        std::size_t lead = whole.size() % 3;
        if (lead == 0) lead = 3;
        grouped = whole.substr(0, lead);
        for (std::size_t i = lead; i < whole.size(); i += 3) grouped += "," + whole.substr(i, 3);
        whole = grouped;
    }
    std::string out = negative ? "-" : "";
    out += whole;
    if (decimals > 0) out += "." + fraction;
    return out;
}

std::string formatDate(double serial, std::string_view mask) {
    CivilDate d = civilFromSerial(serial);
    std::string out;
    std::size_t i = 0;
    auto runOf = [&](char c) {
        std::size_t n = 0;
        while (i + n < mask.size() && (mask[i + n] == c || mask[i + n] == c - 'a' + 'A')) ++n;
        return n;
    };
    while (i < mask.size()) {
        char c = mask[i];
        char lower = (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
        if (lower == 'd') {
            std::size_t n = runOf('d');
            if (n == 1)
                out += std::to_string(d.day);
            else if (n == 2)
                out += fmt::format("{:02}", d.day);
            else if (n == 3)
                out += weekdayName(weekdayOf(serial)).substr(0, 3);
            else
                out += weekdayName(weekdayOf(serial));
            i += n;
        } else if (lower == 'm') {
            std::size_t n = runOf('m');
            if (n == 1)
                out += std::to_string(d.month);
            else if (n == 2)
                out += fmt::format("{:02}", d.month);
            else if (n == 3)
                out += monthName(d.month).substr(0, 3);
            else
                out += monthName(d.month);
            i += n;
        } else if (lower == 'y') {
            std::size_t n = runOf('y');
            if (n <= 2)
                out += fmt::format("{:02}", d.year % 100);
            else
                out += std::to_string(d.year);
            i += n;
        } else {
            out += c;
            ++i;
        }
    }
    return out;
}

std::string formatMoney(const Game& g, Money amount, std::string_view mask) {
    return formatMoneyValue(g, moneyToDouble(amount), mask);
}

std::string formatMoneyValue(const Game& g, double units, std::string_view mask) {
    double rate = static_cast<double>(g.prefs.rec.exchangeRate);
    if (rate == 0) rate = 1;  // a record never given a currency shows pounds, not zeros
    return g.prefs.rec.currencySymbol.value + formatNumber(units * rate, mask);
}

}  // namespace trovane
