#pragma once
// Story events and crimes, award ceremonies, achievements and high scores.
#include "world/record_codec.h"

namespace trovane {

// Who a story may happen to. The six bounds test ability, charisma,
// controversy, attitude, angst and morale: 0 no test, a positive value a
// minimum, a negative one a maximum. boundChange is what the stage adds to
// the same six attributes.
#define EVENT_CONDITION_FIELDS(X)          \
    X(genderRule, uint8_t)                 \
    X(bandRule, int16_t)                   \
    X(labelRule, int16_t)                  \
    X(age, int16_t)                        \
    X(job, int16_t)                        \
    X(bounds, std::array<int16_t, 6>)      \
    X(money, int32_t)                      \
    X(boundChange, std::array<int16_t, 6>) \
    X(reserved37, Reserved<10>)
TROVANE_RECORD_NOID(EventCondition, 47, EVENT_CONDITION_FIELDS);

// isRoot is -1 when the event can fire by itself. replyEffect holds, per
// reply, the chance, the next event and the money.
#define EVENT_FIELDS(X)                          \
    X(eventNumber, int16_t)                      \
    X(participantCount, uint8_t)                 \
    X(eventType, uint8_t)                        \
    X(conditions, std::array<EventCondition, 2>) \
    X(title, Text<256>)                          \
    X(body, Text<1024>)                          \
    X(chance, uint8_t)                           \
    X(isRoot, int16_t)                           \
    X(nextEvent, std::array<int16_t, 10>)        \
    X(minDelay, std::array<int16_t, 10>)         \
    X(maxDelay, std::array<int16_t, 10>)         \
    X(rollLow, std::array<uint8_t, 10>)          \
    X(rollHigh, std::array<uint8_t, 10>)         \
    X(reportAlways, uint8_t)                     \
    X(replyCount, uint8_t)                       \
    X(replyText, std::array<Text<256>, 3>)       \
    X(replyEffect, std::array<int16_t, 9>)       \
    X(noun1, Text<32>)                           \
    X(noun2, Text<32>)
TROVANE_RECORD(EventRecord, 2313, eventNumber, EVENT_FIELDS);

#define CRIME_FIELDS(X)        \
    X(crimeNumber, int16_t)    \
    X(crimeName, Text<32>)     \
    X(acquittalEvent, int16_t) \
    X(guiltyEvent, int16_t)    \
    X(sentence, int16_t)       \
    X(defensibility, uint8_t)
TROVANE_RECORD(CrimeRecord, 41, crimeNumber, CRIME_FIELDS);

#define AWARD_FIELDS(X)                           \
    X(id, int16_t)                                \
    X(name, Text<50>)                             \
    X(genderRule, uint8_t)                        \
    X(kind, uint8_t)                              \
    X(basis, uint8_t)                             \
    X(weight, uint8_t)                            \
    X(styleRule, uint8_t)                         \
    X(ageClass, uint8_t)                          \
    X(originRule, int16_t)                        \
    X(nomineeCount, uint8_t)                      \
    X(held, int16_t)                              \
    X(nominees, std::array<int16_t, 10>)          \
    X(nomineeNames, std::array<Text<65>, 10>)     \
    X(scores, std::array<uint8_t, 10>)            \
    X(winner, uint8_t)                            \
    X(commercialityRange, std::array<uint8_t, 2>) \
    X(controversyRange, std::array<uint8_t, 2>)   \
    X(spare, uint8_t)                             \
    X(sizeRule, uint8_t)                          \
    X(reserved750, Reserved<2>)
TROVANE_RECORD(AwardRecord, 752, id, AWARD_FIELDS);

// playerInvited is 65535 (-1) when the player accepted the invitation.
#define CEREMONY_FIELDS(X)              \
    X(id, int16_t)                      \
    X(name, Text<50>)                   \
    X(awardCount, int16_t)              \
    X(awards, std::array<int16_t, 40>)  \
    X(calendar, std::array<uint8_t, 6>) \
    X(country, uint8_t)                 \
    X(date, double)                     \
    X(flags, std::array<uint8_t, 2>)    \
    X(held, int16_t)                    \
    X(playerInvited, int16_t)
TROVANE_RECORD(CeremonyRecord, 155, id, CEREMONY_FIELDS);

// A line for the acceptance speeches; the five bytes after it hold its
// conditions and how often it has been used.
#define THANK_FIELDS(X) \
    X(id, int16_t)      \
    X(text, Text<256>)  \
    X(conditions, std::array<uint8_t, 5>)
TROVANE_RECORD(ThankRecord, 263, id, THANK_FIELDS);

// kind: 0 band, 1 artist, 2 label, 3 staff.
#define ACHIEVEMENT_FIELDS(X) \
    X(kind, uint8_t)          \
    X(text, Text<100>)        \
    X(date, double)           \
    X(who, int16_t)           \
    X(row, int32_t)
TROVANE_RECORD(AchievementRecord, 115, row, ACHIEVEMENT_FIELDS);

#define HIGHSCORE_FIELDS(X) \
    X(id, int16_t)          \
    X(score, int32_t)       \
    X(player, Text<65>)     \
    X(labelName, Text<32>)  \
    X(game, int32_t)
TROVANE_RECORD(HighScoreRecord, 107, id, HIGHSCORE_FIELDS);

}  // namespace trovane
