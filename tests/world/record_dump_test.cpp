// Records as text and as JSON, the way trovane-sim and trovane-world show them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>

#include "support/game_test.h"
#include "support/temp_folder.h"
#include "world/record_dump.h"

using namespace trovane;

namespace {

LabelRecord sampleLabel() {
    LabelRecord l{.id = 3, .name = "Rival \"Q\" Records", .cashBalance = -50000, .hype = {1, -2, 0, 0, 300}};
    l.period[1].expense[2] = 12345;
    l.department[5].head = 77;
    return l;
}

TEST(RecordDump, TextShowsEachFieldOnItsLineAndJsonEscapesControlsAndGivesNullForWhatItCannotHold) {
    std::string text = recordToString(sampleLabel(), DumpFormat::text);
    EXPECT_TRUE(text.starts_with("id: 3\nname: \"Rival \\\"Q\\\" Records\"\n")) << text;
    EXPECT_NE(text.find("\nhype: [1, -2, 0, 0, 300]\n"), std::string::npos);
    EXPECT_NE(text.find("\ncashBalance: -50000\n"), std::string::npos);
    EXPECT_NE(text.find("\"expense\":[0,0,12345,0,0,0,0,0]"), std::string::npos);
    EXPECT_NE(text.find("\"head\":77"), std::string::npos);
    EXPECT_EQ(text.substr(text.rfind('\n') + 1, 12), "chartPeaks: ");

    for (auto [serial, shown] : {std::pair{38204.0, "38204 (2004-08-05)"}, {1.0, "1 (1899-12-31)"}, {0.0, "0"}}) {
        const ScheduleRecord s{.date = serial};
        EXPECT_NE(recordToString(s, DumpFormat::text).find(std::string("\ndate: ") + shown + "\n"), std::string::npos)
            << shown;
    }
    // Text shows a number it cannot hold as it is; only JSON needs null.
    const std::string tour = recordToString(TourRecord{.averageQuality = std::nanf("")}, DumpFormat::text);
    EXPECT_NE(tour.find("\naverageQuality: nan"), std::string::npos) << tour;
    const std::string json = recordToString(sampleLabel(), DumpFormat::json);
    EXPECT_TRUE(json.starts_with("{\"id\":3,\"name\":\"Rival \\\"Q\\\" Records\",")) << json;
    EXPECT_NE(json.find(",\"hype\":[1,-2,0,0,300],"), std::string::npos);
    EXPECT_EQ(json.back(), '}');

    const TourRecord t{.areaCode = std::string("\0\t\x1f", 3),
                       .averageQuality = std::numeric_limits<float>::quiet_NaN()};
    const std::string jsonTour = recordToString(t, DumpFormat::json);
    EXPECT_NE(jsonTour.find("\"areaCode\":\"\\u0000\\t\\u001f\""), std::string::npos) << jsonTour;
    EXPECT_NE(jsonTour.find("\"averageQuality\":null"), std::string::npos);
}

TEST(RecordDump, FileNamesTellTheirTableWhichDumpsEveryRecordAndADamagedFileIsRefused) {
    test::TempFolder folder;
    auto file = folder.path() / "shortlist.sg2";
    {
        std::ofstream out(file, std::ios::binary);
        for (int32_t n = 1; n <= 2; ++n) {
            ShortlistRecord r{.id = n, .band = static_cast<int16_t>(-n), .label = static_cast<int16_t>(10 * n)};
            uint8_t bytes[ShortlistRecord::kLength];
            encodeRecord(r, bytes);
            out.write(reinterpret_cast<const char*>(bytes), sizeof bytes);
        }
    }
    ASSERT_EQ(tableOfFile(file), FileNo::fileShortlist);
    EXPECT_EQ(dumpTableFile(file, FileNo::fileShortlist, DumpFormat::text),
              "# record 1\nid: 1\nband: -1\nlabel: 10\n\n# record 2\nid: 2\nband: -2\nlabel: 20\n\n");
    EXPECT_EQ(dumpTableFile(file, FileNo::fileShortlist, DumpFormat::json),
              "[{\"id\":1,\"band\":-1,\"label\":10},\n{\"id\":2,\"band\":-2,\"label\":20}]\n");

    // A file of 17 bytes is no whole number of 8-byte records.
    std::ofstream(file, std::ios::binary | std::ios::app) << 'x';
    EXPECT_THAT(test::fatalMessage([&] { dumpTableFile(file, FileNo::fileShortlist, DumpFormat::text); }),
                ::testing::HasSubstr("shortlist.sg2"));
    EXPECT_EQ(tableOfFile("Data/band.sg3"), FileNo::fileBand);
    EXPECT_EQ(tableOfFile("Data/2005.vel"), FileNo::fileDay);
    EXPECT_EQ(tableOfFile("Data/chart7.vel"), FileNo::fileChart);
    EXPECT_EQ(tableOfFile("Data/highscore.gam"), FileNo::fileHighScore);
    EXPECT_EQ(tableOfFile("Data/unknown.vel"), std::nullopt);
}

}  // namespace
