// The industry's source compiles into its records, with the figures the
// compiler derives by the game's rules.
#include <gtest/gtest.h>

#include <tuple>

#include "support/temp_folder.h"
#include "world/dates.h"
#include "world/records.h"
#include "worldtool/tiny_industry.h"
#include "worldtool/world_compiler.h"

using namespace trovane;
using namespace trovane::worldtool;

namespace {

class IndustryBuild : public testing::Test {
protected:
    void SetUp() override {
        test::writeTinyWorldWithIndustry(folder.path());
        Diagnostics diag;
        set = compileWorld(folder.path(), diag);
        for (const auto& p : diag.sorted()) ADD_FAILURE() << describe(p);
    }

    template <PackedRecord R>
    R record(const std::string& file, std::size_t n) const {
        const auto& bytes = set.files.at(file);
        R rec{};
        if (bytes.size() >= n * R::kLength)
            decodeRecord(bytes.data() + (n - 1) * R::kLength, rec);
        else
            ADD_FAILURE() << file << " has no record " << n;
        return rec;
    }
    std::size_t count(const std::string& file, std::size_t length) const { return set.files.at(file).size() / length; }

    test::TempFolder folder;
    BaseSet set;
};

TEST_F(IndustryBuild, ActsTakeTheirFiguresFromTheirMembers) {
    ASSERT_EQ(count("band.gam", BandRecord::kLength), 2u) << "acts.toml and acts_indies.toml both count";
    auto band = record<BandRecord>("band.gam", 1);
    EXPECT_EQ(band.memberCount, 2);
    EXPECT_EQ(band.members, (std::array<int16_t, 10>{1, 2}));
    EXPECT_EQ(std::tuple(band.label, band.formedIn, band.formedInCity), std::tuple(1, 1, kTrue));
    // Means round half to even: (64 + 51) / 2, (65 + 70) / 2 and (80 + 61) / 2.
    EXPECT_EQ(std::tuple(band.ability, band.live, band.stamina), std::tuple(58, 68, 70));
    // The highest of the members.
    EXPECT_EQ(std::tuple(band.charisma, band.controversy, band.topAttitudeLevel), std::tuple(70, 55, 9));
    EXPECT_EQ(band.contractEnd, kNoDate);

    auto solo = record<BandRecord>("band.gam", 2);
    EXPECT_EQ(std::tuple(solo.formedIn, solo.formedInCity, solo.members[0]), std::tuple(6, kFalse, 3));

    auto drummer = record<ArtistRecord>("artist.gam", 2);
    EXPECT_EQ(std::tuple(drummer.band, drummer.job, drummer.style), std::tuple(1, 2, 1));
    EXPECT_EQ(drummer.reputation, band.reputation);
    EXPECT_EQ(std::tuple(drummer.energy, drummer.morale), std::tuple(100, 100));
    EXPECT_EQ(record<ArtistRecord>("artist.gam", 3).band, 2);
}

TEST_F(IndustryBuild, DiscsAndSongsAreNumberedAndRated) {
    auto album = record<DiscRecord>("disc.gam", 1);
    EXPECT_EQ(std::tuple(album.band, album.label, album.studio, album.distributor[0]), std::tuple(1, 1, 1, 3));
    EXPECT_EQ(std::tuple(album.trackCount, album.tracksRecorded, album.tracks[0], album.tracks[1]),
              std::tuple(2, 2, 1, 2));
    EXPECT_EQ(std::tuple(album.quality, album.commerciality), std::tuple(60, 66));  // (70 + 51) / 2, half to even
    EXPECT_EQ(album.lifetimeSales, album.totalSales);
    EXPECT_EQ(album.releaseDate[1], serialFromCivil(2003, 10, 6));
    EXPECT_EQ(album.releaseDate[2], 0.0);

    auto single = record<DiscRecord>("disc.gam", 2);
    // The album's song by title, then a song of the single's own; the lead song's figures.
    EXPECT_EQ(std::tuple(single.tracks[0], single.tracks[1], single.quality, single.commerciality),
              std::tuple(1, 3, 70, 62));

    auto lead = record<SongRecord>("song.gam", 1);
    EXPECT_EQ(std::tuple(lead.writer, lead.disc, lead.style), std::tuple(1, 1, 1));
    EXPECT_EQ(lead.writerSurname.str(), "Hartigan");
    // Released in the UK and the rest of the world: the Other territory is the third slot.
    EXPECT_EQ(lead.singleDisc, (std::array<int16_t, 5>{2, 0, 2, 0, 0}));
    auto boughtIn = record<SongRecord>("song.gam", 2);
    EXPECT_EQ(std::tuple(boughtIn.writer, boughtIn.writerForename.str()), std::tuple(0, "Unknown"));
    EXPECT_EQ(record<SongRecord>("song.gam", 3).disc, 2);
}

TEST_F(IndustryBuild, LabelsTakeTheirFiguresFromStaffAndActs) {
    auto halcyon = record<LabelRecord>("label.gam", 1);
    EXPECT_EQ(std::tuple(halcyon.boss, halcyon.bandCount, halcyon.department[0].head), std::tuple(1, 1, 2));
    EXPECT_EQ(halcyon.strengthClass, 44);  // 1950 squared / 87120
    EXPECT_EQ(halcyon.hype, (std::array<int16_t, 5>{-75, -55, -65, -45, -40}));
    // 39 weighted staff give 24, a head of 80 adds 4.
    EXPECT_EQ(std::tuple(halcyon.department[0].rating, halcyon.department[1].rating), std::tuple(28, 0));
    // Staff by level 15,050 and 1,500, and the head's 900.
    EXPECT_EQ(halcyon.wageBill, moneyUnits(17450));
    auto kestrel = record<LabelRecord>("label.gam", 2);
    EXPECT_EQ(std::tuple(kestrel.parentLabel, kestrel.bandCount), std::tuple(1, 0));

    auto boss = record<StaffRecord>("staff.gam", 1);
    EXPECT_EQ(boss.wage, moneyUnits(3367));  // the game's rate: standing 38, ability 72
    EXPECT_EQ(boss.aptitude[9], 2);          // the preferred style
    EXPECT_EQ(record<StaffRecord>("staff.gam", 2).wage, moneyUnits(900));
}

TEST_F(IndustryBuild, HiddenActsGoToTheirOwnBank) {
    ASSERT_EQ(count("cb.gam", BandRecord::kLength), 1u);
    ASSERT_EQ(count("ca.gam", ArtistRecord::kLength), 1u);
    auto hidden = record<BandRecord>("cb.gam", 1);
    EXPECT_EQ(std::tuple(hidden.members[0], hidden.ability), std::tuple(1, 77));
    EXPECT_EQ(record<ArtistRecord>("ca.gam", 1).band, 1);
}

TEST_F(IndustryBuild, CeremoniesHoldTheirAwardsAndEventsLeadToEachOtherByNumber) {
    auto ceremony = record<CeremonyRecord>("ceremony.gam", 1);
    EXPECT_EQ(std::tuple(ceremony.country, ceremony.awardCount, ceremony.awards[0], ceremony.awards[1]),
              std::tuple(1, 2, 1, 2));
    auto album = record<AwardRecord>("award.gam", 1);
    EXPECT_EQ(std::tuple(album.originRule, album.styleRule), std::tuple(1, 1));
    auto newcomer = record<AwardRecord>("award.gam", 2);
    EXPECT_EQ(newcomer.originRule, -3);
    EXPECT_EQ(newcomer.controversyRange, (std::array<uint8_t, 2>{0, 100}));

    auto arrest = record<EventRecord>("event.gam", 1);
    EXPECT_EQ(arrest.nextEvent[0], 2);
    const EventCondition& c = arrest.conditions[0];
    EXPECT_EQ(std::tuple(c.job, c.labelRule), std::tuple(2, 1));
    EXPECT_EQ(c.bounds, (std::array<int16_t, 6>{0, 0, 40, 0, 0, -30}));
    EXPECT_EQ(c.boundChange, (std::array<int16_t, 6>{0, 0, 5, 0, 0, 0}));
    auto trial = record<EventRecord>("event.gam", 2);
    EXPECT_EQ(trial.replyCount, 2);
    EXPECT_EQ(trial.replyEffect, (std::array<int16_t, 9>{50, 3, -500, 0, 0, 0, 0, 0, 0}));
    auto crime = record<CrimeRecord>("crime.gam", 1);
    EXPECT_EQ(std::tuple(crime.acquittalEvent, crime.guiltyEvent), std::tuple(3, 2));
}

}  // namespace
