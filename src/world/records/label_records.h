#pragma once
// Labels, their books and departments, their staff, and the shared shortlist.
#include "world/record_codec.h"

namespace trovane {

// One period of a label's books: income categories 108 to 113, then expense
// categories 100 to 107, each a currency value.
#define LEDGER_PERIOD_FIELDS(X)      \
    X(income, std::array<Money, 6>)  \
    X(expense, std::array<Money, 8>) \
    X(reserved112, Reserved<8>)
TROVANE_RECORD_NOID(LedgerPeriod, 120, LEDGER_PERIOD_FIELDS);

// staffAtLevel counts the staff at each of five levels, best first.
#define DEPARTMENT_FIELDS(X)                \
    X(staffAtLevel, std::array<uint8_t, 5>) \
    X(rating, uint8_t)                      \
    X(head, int16_t)                        \
    X(reserved8, Reserved<2>)
TROVANE_RECORD_NOID(Department, 10, DEPARTMENT_FIELDS);

// period: 0 this month, 1 last month, 2 this year. department order: Artist
// and Repertoire, Finance and Law, Hospitality, Marketing, Public Relations, Security.
#define LABEL_FIELDS(X)                         \
    X(id, int16_t)                              \
    X(name, Text<32>)                           \
    X(boss, int16_t)                            \
    X(founded, uint8_t)                         \
    X(city, int16_t)                            \
    X(picture, Text<20>)                        \
    X(parentLabel, int16_t)                     \
    X(minControversy, uint8_t)                  \
    X(maxControversy, uint8_t)                  \
    X(reputationTarget, std::array<uint8_t, 5>) \
    X(maxBands, uint8_t)                        \
    X(strengthClass, uint8_t)                   \
    X(cashBalance, Money)                       \
    X(wageBill, Money)                          \
    X(cashReserve, Money)                       \
    X(reserved94, Reserved<8>)                  \
    X(period, std::array<LedgerPeriod, 3>)      \
    X(department, std::array<Department, 6>)    \
    X(reserved522, Reserved<2>)                 \
    X(labelStyle, uint8_t)                      \
    X(points, std::array<int32_t, 5>)           \
    X(reputation, std::array<uint8_t, 5>)       \
    X(hype, std::array<int16_t, 5>)             \
    X(bandCount, int16_t)                       \
    X(salesTotals, std::array<int32_t, 10>)     \
    X(chartCounts, std::array<int16_t, 8>)      \
    X(bestWeekSingleCopies, int32_t)            \
    X(bestWeekAlbumCopies, int32_t)             \
    X(bestWeekSingle, int16_t)                  \
    X(bestWeekAlbum, int16_t)                   \
    X(biggestSingle, int16_t)                   \
    X(biggestAlbum, int16_t)                    \
    X(chartPeaks, std::array<uint8_t, 16>)
TROVANE_RECORD(LabelRecord, 650, id, LABEL_FIELDS);

// A label's boss or department head, or a person out of work. The last byte
// of aptitude is the preferred style.
#define STAFF_FIELDS(X)                   \
    X(id, int16_t)                        \
    X(forename, Text<32>)                 \
    X(surname, Text<32>)                  \
    X(birthDate, double)                  \
    X(age, uint8_t)                       \
    X(male, int16_t)                      \
    X(country, int16_t)                   \
    X(ability, uint8_t)                   \
    X(picture, Text<32>)                  \
    X(reputation, std::array<uint8_t, 5>) \
    X(employer, int16_t)                  \
    X(department, uint8_t)                \
    X(wage, Money)                        \
    X(contractEnd, double)                \
    X(hiredOn, double)                    \
    X(offerLabel, int16_t)                \
    X(offerYears, uint8_t)                \
    X(offerWage, Money)                   \
    X(aptitude, std::array<uint8_t, 10>)  \
    X(points, std::array<int32_t, 5>)
TROVANE_RECORD(StaffRecord, 185, id, STAFF_FIELDS);

// A label watching a band; band 0 and label 0 mark a freed row.
#define SHORTLIST_FIELDS(X) \
    X(id, int32_t)          \
    X(band, int16_t)        \
    X(label, int16_t)
TROVANE_RECORD(ShortlistRecord, 8, id, SHORTLIST_FIELDS);

}  // namespace trovane
