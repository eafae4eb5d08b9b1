#include "floor/preferences.h"

#include <filesystem>
#include <system_error>

#include <fmt/format.h>

#include "floor/formats.h"
#include "world/record_store.h"

namespace trovane {

namespace {

constexpr const char* kReplacedTail = " The settings have been put back to those the game was delivered with.";

// Why a record read from prefs.gam could not have been written by the game;
// empty when it could.
std::string impossibleContent(const PrefsRecord& p) {
    for (int16_t flag : p.slotUsed)
        if (flag != kTrue && flag != kFalse) return fmt::format("a save slot flag reads {}", flag);
    bool knownCurrency = false;
    for (const Currency& c : kCurrencies)
        if (p.currencySymbol == c.symbol && p.exchangeRate == c.exchangeRate) knownCurrency = true;
    if (!knownCurrency)
        return fmt::format("the currency \"{}\" at a rate of {} is none of the game's", p.currencySymbol.value,
                           p.exchangeRate);
    if (p.gender > 1) return fmt::format("the gender reads {}", p.gender);
    if (p.birthDay > 31) return fmt::format("the day of birth reads {}", p.birthDay);
    if (!p.birthMonth.empty()) {
        bool isMonth = false;
        for (unsigned m = 1; m <= 12; ++m)
            if (p.birthMonth == monthName(m)) isMonth = true;
        if (!isMonth) return fmt::format("the month of birth reads \"{}\"", p.birthMonth.value);
    }
    if (p.gameNumber < 0) return fmt::format("the game counter reads {}", p.gameNumber);
    if (p.minutesPlayed < 0) return fmt::format("the minutes played read {}", p.minutesPlayed);
    return {};
}

void writeDelivered(Game& g, const std::filesystem::path& file) {
    std::error_code ec;
    std::filesystem::remove(file, ec);  // a longer damaged file must not keep its tail
    setDeliveredPrefs(g);
    writePrefs(g);
}

}  // namespace

void setDeliveredPrefs(Game& g) {
    g.prefs.rec = PrefsRecord{};
    g.prefs->currencySymbol = kCurrencies[0].symbol;
    g.prefs->exchangeRate = kCurrencies[0].exchangeRate;
}

PrefsReport readPrefs(Game& g) {
    auto file = dataFile(g, "prefs", "gam");
    std::error_code ec;
    auto size = std::filesystem::file_size(file, ec);
    if (ec || size == 0) {
        writeDelivered(g, file);
        return {PrefsState::created, {}};
    }
    if (size != PrefsRecord::kLength) {
        writeDelivered(g, file);
        return {PrefsState::replaced,
                fmt::format("The preferences file prefs.gam was damaged: it is {} bytes long instead of {}.{}", size,
                            PrefsRecord::kLength, kReplacedTail)};
    }
    g.prefs.open(file, IfMissing::createEmpty);
    g.prefs.read(1);
    g.prefs.close();
    std::string why = impossibleContent(g.prefs.rec);
    if (!why.empty()) {
        writeDelivered(g, file);
        return {PrefsState::replaced,
                fmt::format("The preferences file prefs.gam was damaged: {}.{}", why, kReplacedTail)};
    }
    return {PrefsState::read, {}};
}

void writePrefs(Game& g) {
    g.prefs.open(dataFile(g, "prefs", "gam"), IfMissing::createEmpty);
    g.prefs.write(1);
    g.prefs.close();
}

int currentCurrency(const Game& g) {
    for (std::size_t i = 0; i < kCurrencies.size(); ++i)
        if (g.prefs.rec.currencySymbol == kCurrencies[i].symbol) return static_cast<int>(i);
    return -1;
}

bool changeCurrency(Game& g, std::string_view symbol) {
    for (const Currency& c : kCurrencies) {
        if (c.symbol != symbol) continue;
        readPrefs(g);
        g.prefs->currencySymbol = c.symbol;
        g.prefs->exchangeRate = c.exchangeRate;
        writePrefs(g);
        return true;
    }
    return false;
}

}  // namespace trovane
