// Records as text and as JSON, the way trovane-sim and trovane-world show them.
#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <fstream>
#include <limits>

#include "support/temp_folder.h"
#include "world/fatal_error.h"
#include "world/record_dump.h"

using namespace trovane;

namespace {

// Just enough of a JSON reader to tell whether a text is one JSON value.
class JsonChecker {
public:
    static bool valid(std::string_view s) {
        JsonChecker c{s};
        return c.value() && (c.skipBlanks(), c.at_ == s.size());
    }

private:
    explicit JsonChecker(std::string_view s) : s_(s) {}
    std::string_view s_;
    std::size_t at_ = 0;

    void skipBlanks() {
        while (at_ < s_.size() && std::isspace(static_cast<unsigned char>(s_[at_]))) ++at_;
    }
    bool take(char c) {
        skipBlanks();
        if (at_ < s_.size() && s_[at_] == c) return ++at_, true;
        return false;
    }
    bool word(std::string_view w) {
        if (s_.substr(at_, w.size()) != w) return false;
        return at_ += w.size(), true;
    }
    bool string() {
        if (!take('"')) return false;
        while (at_ < s_.size() && s_[at_] != '"') {
            if (static_cast<unsigned char>(s_[at_]) < 0x20) return false;
            at_ += s_[at_] == '\\' ? 2 : 1;
        }
        return take('"');
    }
    bool number() {
        std::size_t start = at_;
        if (at_ < s_.size() && s_[at_] == '-') ++at_;
        while (at_ < s_.size() && (std::isdigit(static_cast<unsigned char>(s_[at_])) ||
                                   std::string_view(".eE+-").find(s_[at_]) != std::string_view::npos))
            ++at_;
        return at_ > start && std::isdigit(static_cast<unsigned char>(s_[at_ - 1]));
    }
    template <class Item>
    bool list(char open, char close, Item item) {
        if (!take(open)) return false;
        if (take(close)) return true;
        do {
            if (!item()) return false;
        } while (take(','));
        return take(close);
    }
    bool value() {
        skipBlanks();
        if (at_ >= s_.size()) return false;
        switch (s_[at_]) {
        case '{': return list('{', '}', [&] { return string() && take(':') && value(); });
        case '[': return list('[', ']', [&] { return value(); });
        case '"': return string();
        case 't': return word("true");
        case 'f': return word("false");
        case 'n': return word("null");
        default: return number();
        }
    }
};

LabelRecord sampleLabel() {
    LabelRecord l{};
    l.id = 3;
    l.name = "Rival \"Q\" Records";
    l.hype = {1, -2, 0, 0, 300};
    l.period[1].expense[2] = 12345;
    l.department[5].head = 77;
    l.cashBalance = -50000;
    return l;
}

TEST(RecordDump, TextShowsEveryFieldOnItsOwnLine) {
    std::string text = recordToString(sampleLabel(), DumpFormat::text);
    EXPECT_TRUE(text.starts_with("id: 3\nname: ")) << text;
    EXPECT_NE(text.find("\nname: \"Rival \\\"Q\\\" Records\"\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nhype: [1, -2, 0, 0, 300]\n"), std::string::npos);
    EXPECT_NE(text.find("\ncashBalance: -50000\n"), std::string::npos);
    EXPECT_NE(text.find("\"expense\":[0,0,12345,0,0,0,0,0]"), std::string::npos);
    EXPECT_NE(text.find("\"head\":77"), std::string::npos);
    EXPECT_EQ(text.substr(text.rfind('\n') + 1, 12), "chartPeaks: ");

    ScheduleRecord s{};
    s.date = 38204;
    EXPECT_NE(recordToString(s, DumpFormat::text).find("\ndate: 38204 (2004-08-05)\n"), std::string::npos);
}

TEST(RecordDump, JsonIsOneObjectWithNestedRecordsAndArrays) {
    LabelRecord l = sampleLabel();
    std::string json = recordToString(l, DumpFormat::json);
    EXPECT_TRUE(JsonChecker::valid(json)) << json;
    EXPECT_TRUE(json.starts_with("{\"id\":3,\"name\":\"Rival \\\"Q\\\" Records\",")) << json;
    EXPECT_NE(json.find("\"hype\":[1,-2,0,0,300]"), std::string::npos);
    EXPECT_NE(json.find("\"expense\":[0,0,12345,0,0,0,0,0]"), std::string::npos);

    // Control characters are escaped, and numbers JSON cannot hold become null.
    TourRecord t{};
    t.areaCode.value = std::string(1, '\0');
    t.averageQuality = std::numeric_limits<float>::quiet_NaN();
    std::string tour = recordToString(t, DumpFormat::json);
    EXPECT_TRUE(JsonChecker::valid(tour)) << tour;
    EXPECT_NE(tour.find("\"areaCode\":\"\\u0000\""), std::string::npos);
    EXPECT_NE(tour.find("\"averageQuality\":null"), std::string::npos);
    EXPECT_FALSE(JsonChecker::valid("{\"a\":nan}"));
}

TEST(RecordDump, TableFileDumpsEveryRecordAndRefusesADamagedFile) {
    test::TempFolder folder;
    auto file = folder.path() / "offer.sg2";
    {
        std::ofstream out(file, std::ios::binary);
        for (int32_t n = 1; n <= 2; ++n) {
            OfferRecord o{};
            o.id = n;
            o.royalty = static_cast<uint8_t>(10 * n);
            uint8_t bytes[OfferRecord::kLength];
            encodeRecord(o, bytes);
            out.write(reinterpret_cast<const char*>(bytes), sizeof bytes);
        }
    }
    ASSERT_EQ(tableOfFile(file), FileNo::fileOffer);
    std::string text = dumpTableFile(file, FileNo::fileOffer, DumpFormat::text);
    EXPECT_NE(text.find("# record 2\nid: 2\n"), std::string::npos) << text;
    EXPECT_NE(text.find("royalty: 20"), std::string::npos);
    std::string json = dumpTableFile(file, FileNo::fileOffer, DumpFormat::json);
    EXPECT_TRUE(JsonChecker::valid(json)) << json;
    EXPECT_EQ(json.front(), '[');
    EXPECT_NE(json.find("\"royalty\":10}"), std::string::npos);

    std::ofstream(file, std::ios::binary | std::ios::app) << 'x';
    try {
        dumpTableFile(file, FileNo::fileOffer, DumpFormat::text);
        FAIL() << "a file of 55 bytes was dumped as 27-byte records";
    } catch (const FatalError& e) { EXPECT_NE(std::string(e.what()).find("offer.sg2"), std::string::npos) << e.what(); }
}

TEST(RecordDump, FileNamesTellTheirTable) {
    EXPECT_EQ(tableOfFile("Data/band.sg3"), FileNo::fileBand);
    EXPECT_EQ(tableOfFile("Data/2005.vel"), FileNo::fileDay);
    EXPECT_EQ(tableOfFile("Data/chart7.vel"), FileNo::fileChart);
    EXPECT_EQ(tableOfFile("Data/highscore.gam"), FileNo::fileHighScore);
    EXPECT_EQ(tableOfFile("Data/unknown.vel"), std::nullopt);
}

}  // namespace
