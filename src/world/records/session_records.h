#pragma once
// The two one-record files: the preferences that outlive every game, and the
// session record of a saved game.
#include "world/record_codec.h"

namespace trovane {

// birthMonth is a month name; gender is 0 male, 1 female.
#define PREFS_FIELDS(X)                  \
    X(slotUsed, std::array<int16_t, 10>) \
    X(forename, Text<32>)                \
    X(surname, Text<32>)                 \
    X(nationality, Text<32>)             \
    X(labelName, Text<32>)               \
    X(continent, Text<13>)               \
    X(labelNationality, Text<32>)        \
    X(city, Text<20>)                    \
    X(style, Text<32>)                   \
    X(birthDay, uint8_t)                 \
    X(birthMonth, Text<10>)              \
    X(birthYear, int16_t)                \
    X(gender, uint8_t)                   \
    X(currencySymbol, Text<1>)           \
    X(exchangeRate, float)               \
    X(gameNumber, int32_t)               \
    X(minutesPlayed, int32_t)
TROVANE_RECORD_NOID(PrefsRecord, 272, PREFS_FIELDS);

// The player block: held in memory as the session block and copied whole.
#define PLAYER_BLOCK_FIELDS(X)   \
    X(playerForename, Text<32>)  \
    X(playerSurname, Text<32>)   \
    X(playerLabel, int16_t)      \
    X(playerLabelName, Text<32>) \
    X(playerLabelCash, Money)    \
    X(playerStaff, int16_t)      \
    X(dateBegun, double)         \
    X(gameNumber, int32_t)
TROVANE_RECORD_NOID(PlayerBlock, 120, PLAYER_BLOCK_FIELDS);

#define SVAR_FIELDS(X)            \
    X(saveName, Text<32>)         \
    X(gameDate, double)           \
    X(lastScheduleYear, int16_t)  \
    X(firstScheduleYear, int16_t) \
    X(lastScheduleYear2, int16_t) \
    X(eventRollsPerDay, uint8_t)  \
    X(player, PlayerBlock)
TROVANE_RECORD_NOID(SvarRecord, 167, SVAR_FIELDS);

}  // namespace trovane
