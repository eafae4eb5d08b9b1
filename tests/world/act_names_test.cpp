// The names in use by acts not retired answer what a walk of the bands would,
// and move as acts are added, renamed and retired.
#include <gtest/gtest.h>

#include <algorithm>

#include "support/album_world.h"
#include "support/played_world.h"
#include "world/act_names.h"
#include "world/strings.h"

using namespace trovane;

namespace {

std::vector<std::string> namesWalked(Game& g) {
    std::vector<std::string> out;
    BandRecord b{};
    for (int32_t n = 1; n < g.band.recordCount(); ++n) {
        decodeRecord(g.band.bytesOf(n).data(), b);
        if (b.retired == kFalse) out.push_back(trim(b.name.value));
    }
    std::sort(out.begin(), out.end());
    return out;
}

void setBand(Game& g, int16_t n, auto change) {
    g.band.read(n);
    change(g.band.rec);
    g.band.write();
}

}  // namespace

TEST(ActNames, AgreeWithAWalkAfterAYearOfPlay) {
    test::PlayedWorld w;
    Game& g = w.g;
    (void)actNameInUse(g, "");  // built now, kept in step by the year's writes
    const std::size_t atStart = namesWalked(g).size();
    int32_t retiredAtStart = 0;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) retiredAtStart += g.band.readIfPresent(n) && g.band->retired;
    w.play(365);

    int32_t retired = 0;
    for (int32_t n = 1; n < g.band.recordCount(); ++n) retired += g.band.readIfPresent(n) && g.band->retired;
    EXPECT_GT(retired, retiredAtStart) << "the year ended some acts";
    g.band.read(2);
    const BandRecord held = g.band.rec;
    EXPECT_EQ(activeActNameList(g), namesWalked(g));
    EXPECT_EQ(activeActNameList(g).size(), atStart);
    EXPECT_EQ(g.band.rec, held);
}

TEST(ActNames, ANameIsFreeOnceNoActiveActBearsItAndARenameMovesIt) {
    test::AlbumWorld w;
    Game& g = w.g;
    const int16_t first = w.addBand("Duo", 0);
    EXPECT_FALSE(actNameInUse(g, "Trio"));  // the index is built now
    const int16_t second = w.addBand("Duo", 0);
    setBand(g, first, [](BandRecord& b) { b.retired = kTrue; });
    EXPECT_TRUE(actNameInUse(g, "Duo")) << "the second still bears it";
    setBand(g, second, [](BandRecord& b) { b.retired = kTrue; });
    EXPECT_FALSE(actNameInUse(g, "Duo"));
    setBand(g, second, [](BandRecord& b) { b.retired = kFalse; });
    EXPECT_TRUE(actNameInUse(g, "Duo")) << "brought back";
    setBand(g, second, [](BandRecord& b) { b.name = std::string("Quartet"); });
    EXPECT_EQ(std::pair(actNameInUse(g, "Duo"), actNameInUse(g, "Quartet")), std::pair(false, true));

    g.band.clearAll();  // as a load does before it reads the saved acts
    EXPECT_FALSE(actNameInUse(g, "Quartet"));
    w.addBand("Solo", 0, 1);
    EXPECT_TRUE(actNameInUse(g, "Solo"));
}
