#pragma once
// Every record format of the game, nested parts included, for typed tests.
#include <gtest/gtest.h>

#include <set>
#include <string_view>

#include "world/records.h"

namespace trovane::test {

template <class... R>
struct RecordList {
    using Types = ::testing::Types<R...>;
    static std::set<std::string_view> names() { return {R::kTypeName...}; }
};

using AllRecords =
    RecordList<CountryRecord, CityRecord, VenueRecord, ForenameRecord, SurnameRecord, JobRecord, StyleRecord,
               ArtistRecord, BandRecord, ProductRecord, LabelRecord, LedgerPeriod, Department, StaffRecord, LookRecord,
               AssRecord, DayRecord, NewBandRecord, NewsRecord, ScheduleRecord, DiscRecord, SongRecord, OfferRecord,
               BusinessRecord, NewSongRecord, PrefsRecord, SvarRecord, PlayerBlock, TourRecord, GigRecord,
               FestivalRecord, EventRecord, EventCondition, CrimeRecord, AwardRecord, CeremonyRecord, ShortlistRecord,
               ChartRow, ChartRecords, ChartHolder, MediaRecord, AchievementRecord, ThankRecord, FactRecord,
               HighScoreRecord, NewAlbumRecord, Scratch4Record, ChartRunRecord, LedgerRecord>;

}  // namespace trovane::test
