// Every record format puts its fields at the byte offsets of the files: the
// first and last field of each (a record's id is always at 0, so it is listed
// only where little else is), every field after a reserved gap, and the fields
// whose place was settled by hand (label, staff, band, look, product, event
// conditions).
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>

#include "world/record_dump.h"
#include "world/record_types.h"
#include "world/records.h"

using namespace trovane;

namespace {

// Each format's fields and their byte offsets, as "field offset" pairs.
const std::map<std::string_view, std::string_view>& fileOffsets() {
    static const std::map<std::string_view, std::string_view> offsets = {
        {"CountryRecord", "id 0 name 2 adjective 34 region 66"},
        {"CityRecord", "id 0 name 2 size 22 country 23"},
        {"VenueRecord", "id 0 capacity 34 city 38 rating 40 counter 42"},
        {"ForenameRecord", "id 0 countryLinks 34 countryWeights 39 isMale 44"},
        {"SurnameRecord", "id 0 name 2 countryLinks 34 countryWeights 39"},
        {"JobRecord", "id 0 titleFemale 34 rank 66 department 68"},
        {"StyleRecord",
         "lifeSpan 34 bandJobs 44 soloJob 51 contentWeight 64 reserved65 65 abilityWeight 66 reserved67 67 parentStyle "
         "68 genderRule 69"},
        {"ArtistRecord",
         "forename 12 age 108 birthDate 109 male 125 listed 149 energy 155 drugHabit 158 wealth 159 picture 164 "
         "storyUnderWay 189"},
        {"BandRecord",
         "picture 62 contractEnd 96 reserved111 111 stamina 112 firstInstallmentDue 114 hype 235 reserved245 245 "
         "initialAdvance 246 signedOn 274 bestShare 291 biggestGig 295 gigCount 299 averageGigQuality 303 "
         "bestWeekSingle 307 chartPeaks 331 complaints 347 monthsUnsigned 350"},
        {"ProductRecord", "name 2 minimumReputation 34 regionWeights 35 area 40 minControversy 41 maxControversy 42"},
        {"LabelRecord",
         "picture 39 parentLabel 59 minControversy 61 maxControversy 62 reputationTarget 63 maxBands 68 strengthClass "
         "69 cashBalance 70 wageBill 78 cashReserve 86 reserved94 94 period 102 department 462 reserved522 522 "
         "labelStyle 524 points 525 bandCount 560 biggestAlbum 632 chartPeaks 634"},
        {"LedgerPeriod", "income 0 expense 48 reserved112 112"},
        {"Department", "staffAtLevel 0 rating 5 head 6 reserved8 8"},
        {"StaffRecord",
         "birthDate 66 picture 80 employer 117 wage 120 offerLabel 144 offerYears 146 offerWage 147 aptitude 155 "
         "points 165"},
        {"LookRecord", "id 0 name 2 bounds 22 sex 38 reserved39 39"},
        {"AssRecord", "id 0 a 2 b 3 weight 4"},
        {"DayRecord", "entries 0 count 4000"},
        {"NewBandRecord", "id 0 name 2 style 34"},
        {"NewsRecord", "date 2 kind 10 title 11 text 267 scheduleLink 1291 mustReply 1301 extra 1303 deleted 1815"},
        {"ScheduleRecord",
         "type 0 date 1 gig 15 mediaOption 21 mediaFlag 22 disc 29 value 37 offer 43 id 47 ceremony 51"},
        {"DiscRecord",
         "coverImage 52 distributor 197 reserved207 207 peakPosition 227 releaseDate 244 isSingle 284 reserved287 287 "
         "studio 288 band 290 reserved292 292 label 294 income 296 tracks 304 reserved386 386 recordingDue 391"},
        {"SongRecord", "id 0 title 4 writer 118 disc 124 written 126 singleDisc 135"},
        {"OfferRecord", "id 0 decisionDate 4 initialAdvance 14 band 24 royalty 26"},
        {"BusinessRecord", "id 0 kind 52 owner 56 open 58 runningCost 62"},
        {"NewSongRecord", "id 0 title 4 style 54 uses 55"},
        {"PrefsRecord",
         "slotUsed 0 forename 20 continent 148 birthMonth 246 birthYear 256 currencySymbol 259 exchangeRate 260 "
         "minutesPlayed 268"},
        {"SvarRecord",
         "saveName 0 gameDate 32 lastScheduleYear2 44 eventRollsPerDay 46 player 47 player.playerLabel 111 "
         "player.playerLabelCash 145 player.gameNumber 163"},
        {"PlayerBlock", "playerForename 0 playerLabel 64 dateBegun 108 gameNumber 116"},
        {"TourRecord", "tourNumber 0 gigs 3 areaCode 163 band 165 festival 170 sponsorProduct 173 averageQuality 175"},
        {"GigRecord", "gigNumber 0 bill 4 venue 84 quality 92 overallSinging 212 gigDate 215 profit 223"},
        {"FestivalRecord",
         "festivalNumber 0 travelling 3 days 9 weekday 10 fixedVenue 110 territory 210 areaCode 211 festivalName 212"},
        {"EventRecord",
         "eventNumber 0 conditions 4 title 98 body 354 chance 1378 rollHigh 1451 replyText 1463 replyEffect 2231 noun1 "
         "2249 noun2 2281"},
        {"EventCondition",
         "genderRule 0 bandRule 1 labelRule 3 age 5 job 7 bounds 9 money 21 boundChange 25 reserved37 37"},
        {"CrimeRecord", "crimeNumber 0 crimeName 2 acquittalEvent 34 sentence 38 defensibility 40"},
        {"AwardRecord",
         "genderRule 52 originRule 58 held 61 nominees 63 nomineeNames 83 scores 733 winner 743 spare 748 sizeRule 749 "
         "reserved750 750"},
        {"CeremonyRecord", "awards 54 calendar 134 country 140 date 141 flags 149 playerInvited 153"},
        {"ShortlistRecord", "id 0 band 4 label 6"},
        {"ChartRow", "row 0 previousPosition 4 disc 5 lastHype 7 territory 8"},
        {"ChartRecords", "spare 0 holder 1 labelSales 1521 labelSlot 1925"},
        {"ChartHolder", "value 0 who 4 text 8"},
        {"MediaRecord",
         "mediaNumber 0 airDay 55 issueDay 69 bothValue 77 reserved78 78 smallMinimum 82 country 89 reserved90 90"},
        {"AchievementRecord", "kind 0 text 1 date 101 who 109 row 111"},
        {"ThankRecord", "id 0 text 2 conditions 258"},
        {"FactRecord", "id 0 text 2"},
        {"HighScoreRecord", "id 0 score 2 player 6 labelName 71 game 103"},
        {"NewAlbumRecord", "id 0 style 2 title 3"},
        {"ChartRunRecord", "id 0 week 4 chart 12 position 13 disc 15 sales 17"},
        {"Scratch4Record", "value 0"},
        {"LedgerRecord", "id 0 label 4 date 6 figures 14 cash 134"},
    };
    return offsets;
}

template <class R>
class RecordLayout : public ::testing::Test {};
TYPED_TEST_SUITE(RecordLayout, test::AllRecords::Types);

TYPED_TEST(RecordLayout, FieldsSitAtTheirFileOffsets) {
    auto it = fileOffsets().find(TypeParam::kTypeName);
    ASSERT_NE(it, fileOffsets().end()) << "no offsets listed for " << TypeParam::kTypeName;
    std::istringstream pairs{std::string(it->second)};
    std::string field;
    std::size_t offset = 0;
    int checked = 0;
    while (pairs >> field >> offset) {
        EXPECT_EQ(fieldOffset<TypeParam>(field), std::optional<std::size_t>(offset)) << field;
        ++checked;
    }
    EXPECT_TRUE(pairs.eof() && checked > 0) << it->second;
}

TEST(RecordLayout, EveryFileNumberHasACheckedFormatOfItsLengthAndUnknownFieldsNoOffset) {
    auto checked = test::AllRecords::names();
    for (const auto& entry : catalogue()) {
        if (entry.number == FileNo::fileTemp) continue;  // takes the length of the table it rewrites
        withRecordType(entry.number, [&]<class R>(std::type_identity<R>) {
            EXPECT_TRUE(checked.contains(R::kTypeName)) << entry.table;
            EXPECT_EQ(R::kLength, entry.recordLength) << entry.table;
        });
    }
    EXPECT_FALSE(fieldOffset<BandRecord>("gigcount"));
    EXPECT_FALSE(fieldOffset<SvarRecord>("player.nothing"));
    EXPECT_FALSE(fieldOffset<SvarRecord>("gameDate.year"));  // not a nested record
    EXPECT_FALSE(fieldOffset<SvarRecord>(""));
}

}  // namespace
