// The nominees of a crowded field, one award of each kind and rule, held to
// the lists the judging gave before it learned to skip what cannot place.
#include <gtest/gtest.h>

#include <string>

#include "events/ceremony_judging.h"
#include "support/amend.h"
#include "support/gig_world.h"
#include "world/strings.h"

using namespace trovane;

namespace {

class CrowdedField : public test::GigWorld, public ::testing::Test {
protected:
    int16_t childStyle = 0, otherStyle = 0;

    // 36 acts of one to three members, their attributes spread by simple
    // arithmetic so that every rule keeps some and drops others, and two discs each.
    CrowdedField() {
        g.style.rec = StyleRecord{.parentStyle = static_cast<uint8_t>(style)};
        childStyle = static_cast<int16_t>(g.style.append());
        g.style.rec = StyleRecord{};
        otherStyle = static_cast<int16_t>(g.style.append());
        const int16_t styles[] = {style, childStyle, otherStyle};
        const int16_t cities[] = {leeds, paris, rio};
        const int16_t countries[] = {england, france, brazil};
        const auto u8 = [](int v) { return static_cast<uint8_t>(v); };
        for (int i = 0; i < 36; ++i) {
            g.band.rec = BandRecord{.name = "Act " + std::to_string(i),
                                    .age = u8(i % 4),
                                    .ability = u8(i * 37 % 101),
                                    .style = u8(styles[i % 3]),
                                    .formedInCity = static_cast<int16_t>(i % 2 == 0 ? -1 : 0),
                                    .formedIn = i % 2 == 0 ? cities[i / 2 % 3] : countries[i / 2 % 3],
                                    .memberCount = u8(1 + i % 3),
                                    .retired = i % 11 == 5 ? kTrue : kFalse,
                                    .live = u8(i * 53 % 101),
                                    .controversy = u8(i * 29 % 101)};
            for (std::size_t m = 0; m < 5; ++m) g.band->reputation[m] = u8((i * 17 + m * 23) % 101);
            const auto act = static_cast<int16_t>(g.band.append());
            for (int m = 0; m < 1 + i % 3; ++m) {
                g.artist.rec = ArtistRecord{.retired = (i * 3 + m) % 13 == 1 ? kTrue : kFalse,
                                            .forename = "Member" + std::to_string(m),
                                            .surname = "Of" + std::to_string(i),
                                            .age = u8((i + m) % 3),
                                            .ability = u8((i * 41 + m * 7) % 101),
                                            .style = u8(styles[(i + m) % 3]),
                                            .male = (i + m) % 2 == 0 ? kTrue : kFalse,
                                            .band = static_cast<int16_t>(i % 7 == 3 ? 0 : act),
                                            .charisma = u8((i * 19 + m * 31) % 101),
                                            .controversy = u8((i * 23 + m * 11) % 101),
                                            .imageRating = u8((i * 13 + m * 43) % 101)};
                for (std::size_t k = 0; k < 5; ++k) g.artist->reputation[k] = u8((i * 7 + m * 5 + k * 3) % 101);
                const auto who = static_cast<int16_t>(g.artist.append());
                amend(g.band, act, [&] { g.band->members[static_cast<std::size_t>(m)] = who; });
            }
            for (int d = 0; d < 2; ++d) {
                const int16_t disc = addDisc(("Disc " + std::to_string(i) + "." + std::to_string(d)).c_str(), 0, act,
                                             static_cast<uint8_t>(d));
                amend(g.disc, disc, [&] {
                    g.disc->quality = u8((i * 31 + d * 17) % 101);
                    g.disc->commerciality = u8((i * 43 + d * 5) % 101);
                    g.disc->releaseDate.fill(0);
                    g.disc->releaseDate[static_cast<std::size_t>(i % 5)] = g.gameDate - (i * 23 + d * 97) % 500;
                    g.disc->lifetimeSales = {i * 90'000, d * 250'000, 0, i * 11'000, 5};
                });
            }
        }
    }

    // The nominees of an award as "id:score" pairs, the first one's name after a bar.
    std::string judge(uint8_t kind, uint8_t basis, uint8_t weight, uint8_t styleRule, int16_t originRule,
                      uint8_t genderRule, uint8_t ageClass, uint8_t sizeRule) {
        g.award.rec = AwardRecord{.genderRule = genderRule,
                                  .kind = kind,
                                  .basis = basis,
                                  .weight = weight,
                                  .styleRule = styleRule,
                                  .ageClass = ageClass,
                                  .originRule = originRule,
                                  .commercialityRange = {5, 95},
                                  .controversyRange = {10, 90},
                                  .sizeRule = sizeRule};
        g.country.read(england);
        const NomineeList list = judgeAward(g);
        std::string out;
        for (int i = 0; i < list.count; ++i) {
            const auto& e = list.entries[static_cast<std::size_t>(i)];
            out += std::to_string(e.id) + ":" + std::to_string(e.score) + " ";
        }
        if (list.count > 0) out += "| " + list.entries[0].name;
        return out;
    }
};

TEST_F(CrowdedField, ArtistsBandsAlbumsAndSinglesByEachBasisAndRule) {
    EXPECT_EQ(judge(1, 0, 60, 0, 0, 0, 0, 0),
              "62:91 61:87 60:82 71:82 70:78 66:76 51:72 8:71 26:71 7:67 | Member2 Of29");
    EXPECT_EQ(judge(1, 2, 50, static_cast<uint8_t>(style), 0, 1, 0, 0),
              "61:83 22:80 49:76 8:67 25:62 51:60 70:56 68:52 58:50 56:44 | Member1 Of29");
    EXPECT_EQ(judge(1, 5, 0, 0, 0, 2, 1, 0), "74:90 62:89 50:88 26:86 52:21 40:20 16:18 4:17 | Member2 Of35");
    EXPECT_EQ(judge(2, 0, 70, 0, 0, 0, 0, 0), "10:76 21:74 32:72 31:71 12:68 34:63 4:62 15:60 26:57 25:56 | Act 8");
    EXPECT_EQ(judge(2, 4, 50, static_cast<uint8_t>(style), -3, 0, 0, 2), "15:48 3:27 27:18 | Act 13");
    // Men of the second age class, solo, from outside the UK: nobody qualifies.
    EXPECT_EQ(judge(2, 6, 40, 0, -4, 1, 1, 1), "");
    EXPECT_EQ(judge(0, 0, 50, 0, 0, 0, 0, 0),
              "59:76 23:70 19:66 47:66 45:64 11:60 69:60 9:58 7:56 65:56 | Disc 29.0 by Act 29");
    EXPECT_EQ(judge(0, 1, 50, static_cast<uint8_t>(style), -2, 0, 0, 0),
              "61:30 51:25 49:24 27:13 25:12 13:6 3:1 | Disc 30.0 by Act 30");
    EXPECT_EQ(judge(4, 4, 80, 0, 0, 2, 0, 0), "20:84 68:27 | Disc 9.1 by Act 9");
    // Duos formed in France put out no single this year.
    EXPECT_EQ(judge(4, 6, 30, 0, static_cast<int16_t>(france), 0, 0, 3), "");
}

TEST_F(CrowdedField, AnAlbumOutTodayIsOfTheYearOneOut365DaysAgoIsNot) {
    auto best = [&](const char* title, double out) {
        int32_t n = 1;
        while (trim((g.disc.read(n), g.disc->title.value)) != title) ++n;
        amend(g.disc, n, [&] {
            g.disc->quality = 100;
            g.disc->commerciality = 90;
            g.disc->releaseDate.fill(0);
            g.disc->releaseDate[0] = out;
        });
        return std::to_string(n) + ":";
    };
    const std::string today = best("Disc 1.0", g.gameDate), yearAgo = best("Disc 2.0", g.gameDate - 365);
    const std::string nominees = judge(0, 0, 100, 0, 0, 0, 0, 0);
    EXPECT_EQ(nominees.substr(0, today.size()), today) << nominees;
    EXPECT_EQ(nominees.find(" " + yearAgo), std::string::npos) << nominees;
}

}  // namespace
