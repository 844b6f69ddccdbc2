#include "ui/column_grid.h"

#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

// What all of it takes, loose and tight.
constexpr int loose = 200 + 3 * 400 + 120 + 420 + 120 + 480 + 120 + 3 * 420 + 2 * 120 + 380;
constexpr int tight = 200 + 400 + 45 + 420 + 45 + 480 + 45 + 3 * 420 + 2 * 45 + 75;

ColumnRows Fit(int height) {
    return FitColumn({.frameHeight = height, .nameLine = 400, .drivesHeight = 480});
}

TEST(ColumnGrid, HighFrameHasItLoose) {
    for (const int height : {loose, 20000}) {
        const ColumnRows rows = Fit(height);
        EXPECT_EQ(rows.gap, 120);
        EXPECT_EQ(rows.below, 380);
        EXPECT_FALSE(rows.outside);
        EXPECT_EQ(rows.TopOf(0), 800);
        EXPECT_EQ(rows.TopOf(2), 800 + 2 * 540);
        EXPECT_EQ(rows.AboveRows(), 2000);
    }
}

TEST(ColumnGrid, LowerFrameDrawsItTogether) {
    EXPECT_LT(Fit(loose - 1).gap, 120);
    EXPECT_FALSE(Fit(tight).outside);
    EXPECT_EQ(Fit(tight).gap, 45);
    // A further line of the name is worth more than air.
    EXPECT_EQ(Fit(tight + 400).gap, 45);
    EXPECT_EQ(Fit(tight + 800).gap, 45);
    int gap = 0;
    for (int height = tight + 800; height <= loose; ++height) {
        EXPECT_GE(Fit(height).gap, gap) << height;
        gap = Fit(height).gap;
    }
}

TEST(ColumnGrid, StillLowerFrameHasDrivesAndFavouritesOnIt) {
    EXPECT_TRUE(Fit(tight - 1).outside);
    EXPECT_EQ(Fit(tight - 1).hidden, 0);
    EXPECT_EQ(Fit(200 + 400 + 45 + 3 * 420 + 2 * 45 + 75).hidden, 0);
}

TEST(ColumnGrid, LowestFrameKeepsTheRowsThatItHasRoomFor) {
    EXPECT_EQ(Fit(3 * 420 + 2 * 45 + 75).hidden, 0);
    EXPECT_EQ(Fit(3 * 420 + 2 * 45 + 74).hidden, 1);
    EXPECT_EQ(Fit(700).hidden, 2);
    EXPECT_EQ(Fit(0).hidden, 2);
}

}  // namespace
}  // namespace kivu::ui
