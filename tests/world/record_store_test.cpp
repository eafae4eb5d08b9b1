#include <gtest/gtest.h>

#include "support/empty_game.h"

using namespace trovane;

TEST(RecordStore, EmptyTableCountsOneAndFirstAppendIsRecordOne) {
    test::EmptyGame eg;
    EXPECT_EQ(recordCount(eg.g, FileNo::fileNews), 1);
    eg.g.band.rec.name = "First";
    EXPECT_EQ(eg.g.band.append(), 1);
    EXPECT_EQ(eg.g.band->id, 1);
}
