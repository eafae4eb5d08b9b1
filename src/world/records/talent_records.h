#pragma once
// Acts, their members, and the offers labels make for them.
#include "world/record_codec.h"

namespace trovane {

// An act: a solo artist or a band. Market arrays are UK, US, Europe, Oceania, Global.
#define BAND_FIELDS(X)                      \
    X(id, int16_t)                          \
    X(name, Text<50>)                       \
    X(age, uint8_t)                         \
    X(ability, uint8_t)                     \
    X(style, uint8_t)                       \
    X(label, int16_t)                       \
    X(formedInCity, int16_t)                \
    X(formedIn, int16_t)                    \
    X(memberCount, uint8_t)                 \
    X(picture, Text<32>)                    \
    X(retired, int16_t)                     \
    X(contractEnd, double)                  \
    X(visual, uint8_t)                      \
    X(live, uint8_t)                        \
    X(flair, uint8_t)                       \
    X(dancing, uint8_t)                     \
    X(topAttitudeLevel, uint8_t)            \
    X(charisma, uint8_t)                    \
    X(controversy, uint8_t)                 \
    X(reserved111, Reserved<1>)             \
    X(stamina, uint8_t)                     \
    X(albumStatus, uint8_t)                 \
    X(firstInstallmentDue, int32_t)         \
    X(members, std::array<int16_t, 10>)     \
    X(salesTotals, std::array<int32_t, 10>) \
    X(chartCounts, std::array<int16_t, 8>)  \
    X(bandPoints, std::array<int32_t, 5>)   \
    X(grossIncome, Money)                   \
    X(costs, Money)                         \
    X(reputation, std::array<uint8_t, 5>)   \
    X(hype, std::array<int16_t, 5>)         \
    X(reserved245, Reserved<1>)             \
    X(initialAdvance, Money)                \
    X(additionalAdvance, Money)             \
    X(advanceToPay, Money)                  \
    X(offerStage, uint8_t)                  \
    X(optionLength, uint8_t)                \
    X(optionsRemaining, uint8_t)            \
    X(optionMonthsLeft, uint8_t)            \
    X(signedOn, double)                     \
    X(additionalAdvanceCount, uint8_t)      \
    X(royaltyRate, uint8_t)                 \
    X(songsWritten, int32_t)                \
    X(materialBudget, uint8_t)              \
    X(bestShareYear, int16_t)               \
    X(bestShare, float)                     \
    X(biggestGig, int32_t)                  \
    X(gigCount, int32_t)                    \
    X(averageGigQuality, float)             \
    X(bestWeekSingle, int32_t)              \
    X(bestWeekSingleCopies, int32_t)        \
    X(bestWeekAlbum, int32_t)               \
    X(bestWeekAlbumCopies, int32_t)         \
    X(biggestSingle, int32_t)               \
    X(biggestAlbum, int32_t)                \
    X(chartPeaks, std::array<uint8_t, 16>)  \
    X(complaints, std::array<uint8_t, 3>)   \
    X(monthsUnsigned, uint8_t)
TROVANE_RECORD(BandRecord, 351, id, BAND_FIELDS);

// storyUnderWay[t] is non-zero while a story of event type t runs for the artist.
#define ARTIST_FIELDS(X)                  \
    X(id, int16_t)                        \
    X(retired, int16_t)                   \
    X(retirementDate, double)             \
    X(forename, Text<32>)                 \
    X(surname, Text<32>)                  \
    X(nickname, Text<32>)                 \
    X(age, uint8_t)                       \
    X(birthDate, double)                  \
    X(job, uint8_t)                       \
    X(ability, uint8_t)                   \
    X(abilityProgress, int16_t)           \
    X(style, uint8_t)                     \
    X(country, uint8_t)                   \
    X(city, int16_t)                      \
    X(male, int16_t)                      \
    X(band, int16_t)                      \
    X(reputation, std::array<uint8_t, 5>) \
    X(talentCeiling, uint8_t)             \
    X(potential, uint8_t)                 \
    X(charisma, uint8_t)                  \
    X(controversy, uint8_t)               \
    X(composure, uint8_t)                 \
    X(flair, uint8_t)                     \
    X(dancing, uint8_t)                   \
    X(visual, uint8_t)                    \
    X(live, uint8_t)                      \
    X(stamina, uint8_t)                   \
    X(attitudeLevel, uint8_t)             \
    X(attitude, uint8_t)                  \
    X(angst, uint8_t)                     \
    X(imageRating, uint8_t)               \
    X(look, uint8_t)                      \
    X(listed, int16_t)                    \
    X(songQuality, uint8_t)               \
    X(writingRate, uint8_t)               \
    X(songCommerciality, uint8_t)         \
    X(writingFocus, uint8_t)              \
    X(energy, int16_t)                    \
    X(morale, uint8_t)                    \
    X(drugHabit, uint8_t)                 \
    X(wealth, int32_t)                    \
    X(royaltyShare, uint8_t)              \
    X(picture, Text<25>)                  \
    X(storyUnderWay, std::array<int16_t, 11>)
TROVANE_RECORD(ArtistRecord, 211, id, ARTIST_FIELDS);

// A label's offer for a band; band 65535 (-1) marks a void offer.
#define OFFER_FIELDS(X)                \
    X(id, int32_t)                     \
    X(decisionDate, double)            \
    X(label, int16_t)                  \
    X(initialAdvance, int32_t)         \
    X(additionalAdvance, int32_t)      \
    X(additionalAdvanceCount, uint8_t) \
    X(optionLength, uint8_t)           \
    X(band, int16_t)                   \
    X(royalty, uint8_t)
TROVANE_RECORD(OfferRecord, 27, id, OFFER_FIELDS);

}  // namespace trovane
