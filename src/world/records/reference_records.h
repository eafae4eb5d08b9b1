#pragma once
// The fixed world: geography, names, jobs, styles, products, looks, the
// weighted associations, and the banks of names and loading-screen lines.
#include "world/record_codec.h"

namespace trovane {

#define COUNTRY_FIELDS(X)  \
    X(id, int16_t)         \
    X(name, Text<32>)      \
    X(adjective, Text<32>) \
    X(region, Text<1>)
TROVANE_RECORD(CountryRecord, 67, id, COUNTRY_FIELDS);

#define CITY_FIELDS(X) \
    X(id, int16_t)     \
    X(name, Text<20>)  \
    X(size, uint8_t)   \
    X(country, uint8_t)
TROVANE_RECORD(CityRecord, 24, id, CITY_FIELDS);

#define VENUE_FIELDS(X)  \
    X(id, int16_t)       \
    X(name, Text<32>)    \
    X(capacity, int32_t) \
    X(city, int16_t)     \
    X(rating, uint8_t)   \
    X(flags, uint8_t)    \
    X(counter, int16_t)
TROVANE_RECORD(VenueRecord, 44, id, VENUE_FIELDS);

#define FORENAME_FIELDS(X)                    \
    X(id, int16_t)                            \
    X(name, Text<32>)                         \
    X(countryLinks, std::array<uint8_t, 5>)   \
    X(countryWeights, std::array<uint8_t, 5>) \
    X(isMale, int16_t)
TROVANE_RECORD(ForenameRecord, 46, id, FORENAME_FIELDS);

#define SURNAME_FIELDS(X)                   \
    X(id, int16_t)                          \
    X(name, Text<32>)                       \
    X(countryLinks, std::array<uint8_t, 5>) \
    X(countryWeights, std::array<uint8_t, 5>)
TROVANE_RECORD(SurnameRecord, 44, id, SURNAME_FIELDS);

#define JOB_FIELDS(X)        \
    X(id, int16_t)           \
    X(title, Text<32>)       \
    X(titleFemale, Text<32>) \
    X(rank, int16_t)         \
    X(department, uint8_t)
TROVANE_RECORD(JobRecord, 69, id, JOB_FIELDS);

#define STYLE_FIELDS(X)                   \
    X(id, int16_t)                        \
    X(name, Text<32>)                     \
    X(lifeSpan, uint8_t)                  \
    X(popularity, std::array<uint8_t, 5>) \
    X(commerciality, uint8_t)             \
    X(membersHigh, uint8_t)               \
    X(membersUsual, uint8_t)              \
    X(membersLow, uint8_t)                \
    X(bandJobs, std::array<uint8_t, 7>)   \
    X(soloJob, uint8_t)                   \
    X(baseCharisma, uint8_t)              \
    X(baseControversy, uint8_t)           \
    X(baseFlair, uint8_t)                 \
    X(baseDancing, uint8_t)               \
    X(baseLive, uint8_t)                  \
    X(baseAttitude, uint8_t)              \
    X(baseAngst, uint8_t)                 \
    X(baseVisual, uint8_t)                \
    X(soloPercent, uint8_t)               \
    X(writerPercent, uint8_t)             \
    X(singingWeight, uint8_t)             \
    X(dancingWeight, uint8_t)             \
    X(contentWeight, uint8_t)             \
    X(reserved65, Reserved<1>)            \
    X(abilityWeight, uint8_t)             \
    X(reserved67, Reserved<1>)            \
    X(parentStyle, uint8_t)               \
    X(genderRule, uint8_t)
TROVANE_RECORD(StyleRecord, 70, id, STYLE_FIELDS);

// Sponsors' products. regionWeights are the five country slots (country
// record numbers, 0 unused); area is a region letter, "X" for a world tour.
#define PRODUCT_FIELDS(X)                    \
    X(id, int16_t)                           \
    X(name, Text<32>)                        \
    X(minimumReputation, uint8_t)            \
    X(regionWeights, std::array<uint8_t, 5>) \
    X(area, Text<1>)                         \
    X(minControversy, uint8_t)               \
    X(maxControversy, uint8_t)
TROVANE_RECORD(ProductRecord, 43, id, PRODUCT_FIELDS);

// A look: for each of the eight style attributes (charisma, controversy,
// flair, dancing, live, attitude, angst, visual) a low and a high bound.
#define LOOK_FIELDS(X)                 \
    X(id, int16_t)                     \
    X(name, Text<20>)                  \
    X(bounds, std::array<uint8_t, 16>) \
    X(sex, uint8_t)                    \
    X(reserved39, Reserved<4>)
TROVANE_RECORD(LookRecord, 43, id, LOOK_FIELDS);

// assnation (nation, nation, weight), assstyle (style, style, weight) and
// asslook (look, style, bonus) all share this shape.
#define ASS_FIELDS(X) \
    X(id, int16_t)    \
    X(a, uint8_t)     \
    X(b, uint8_t)     \
    X(weight, uint8_t)
TROVANE_RECORD(AssRecord, 5, id, ASS_FIELDS);

#define NEWBAND_FIELDS(X) \
    X(id, int16_t)        \
    X(name, Text<32>)     \
    X(style, uint8_t)
TROVANE_RECORD(NewBandRecord, 35, id, NEWBAND_FIELDS);

#define NEWSONG_FIELDS(X) \
    X(id, int32_t)        \
    X(title, Text<50>)    \
    X(style, uint8_t)     \
    X(uses, uint8_t)
TROVANE_RECORD(NewSongRecord, 56, id, NEWSONG_FIELDS);

#define NEWALBUM_FIELDS(X) \
    X(id, int16_t)         \
    X(style, uint8_t)      \
    X(title, Text<50>)
TROVANE_RECORD(NewAlbumRecord, 53, id, NEWALBUM_FIELDS);

// A "did you know" line of the loading screen.
#define FACT_FIELDS(X) \
    X(id, int16_t)     \
    X(text, Text<1024>)
TROVANE_RECORD(FactRecord, 1026, id, FACT_FIELDS);

}  // namespace trovane
