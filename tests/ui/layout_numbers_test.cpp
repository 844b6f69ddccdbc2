#include "ui/layout_numbers.h"

#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

TEST(LayoutNumbers, WorksOutTheColumnsOfTheDesignWindow) {
    const LayoutNumbers numbers = ComputeLayout(14400, 10200, 300, 1300);
    EXPECT_EQ(numbers.ListWidth, 9033);  // int(14000 / 6 * 4) - 300
    EXPECT_EQ(numbers.Col2Left, 9433);
    EXPECT_EQ(numbers.Col2Width, 2250);  // 14100 / 6 - 100
    EXPECT_EQ(numbers.Col3Left, 11783);
    EXPECT_EQ(numbers.Col3Width, 2250);
    EXPECT_EQ(numbers.ListHeight, 8600);
    EXPECT_EQ(numbers.DriveBoxHeight, 4500);
    EXPECT_EQ(numbers.ThirdWidth, 4800);
    EXPECT_EQ(numbers.QuarterWidth, 3500);
    EXPECT_EQ(numbers.HalfWidth, 7100);
}

TEST(LayoutNumbers, CutsTheListWidthAndRoundsTheSecondColumn) {
    const LayoutNumbers numbers = ComputeLayout(14403, 10200, 300, 1300);
    EXPECT_EQ(numbers.ListWidth, 9035);  // 9335.33 is cut
    EXPECT_EQ(numbers.Col2Width, 2250);  // 2250.5 goes to the even neighbour
    EXPECT_EQ(ComputeLayout(14409, 10200, 300, 1300).Col2Width, 2252);  // 2251.5 too
    EXPECT_EQ(ComputeLayout(14401, 10200, 300, 1300).Col2Width, 2250);
}

TEST(LayoutNumbers, HoldsAScreenOfFourThousandPixels) {
    const LayoutNumbers numbers = ComputeLayout(57600, 32400, 300, 1300);
    EXPECT_EQ(numbers.ListWidth, 37833);
    EXPECT_EQ(numbers.Col2Left, 38233);
}

TEST(LayoutNumbers, NeverGivesTheDriveBoxMoreThanTheListsHeight) {
    for (int width = 0; width < 60000; width += 171) {
        for (int height = 0; height < 40000; height += 1733) {
            const LayoutNumbers numbers = ComputeLayout(width, height, 300, 1300);
            EXPECT_LE(numbers.DriveBoxHeight, numbers.ListHeight) << width << " x " << height;
        }
    }
}

TEST(LayoutNumbers, LetsTheListShrinkInASmallWindow) {
    EXPECT_LT(ComputeLayout(3000, 1500, 300, 1300).ListHeight, 0);
}

// Each tab's width, negative where its count has gone.
std::vector<int> Fit(const std::vector<TabNeed>& needs, std::size_t current, int room, int least) {
    std::vector<int> widths;
    for (const TabWidth& tab : FitTabWidths(needs, current, room, least))
        widths.push_back(tab.counted ? tab.width : -tab.width);
    return widths;
}

using Widths = std::vector<int>;

TEST(FitTabWidths, TabsThatFitHaveWhatTheyWant) {
    EXPECT_EQ(Fit({{100, 80}, {200, 150}, {300, 90}}, 1, 600, 50), (Widths{100, 200, 300}));
    EXPECT_EQ(Fit({}, 0, 600, 50), Widths{});
    EXPECT_EQ(Fit({{700, 600}}, 3, 600, 50), Widths{700});
}

TEST(FitTabWidths, CountsGoFirstAndThatInFrontLast) {
    EXPECT_EQ(Fit({{100, 80}, {200, 150}, {300, 90}}, 1, 599, 50), (Widths{-80, 200, -90}));
    EXPECT_EQ(Fit({{100, 80}, {200, 150}, {300, 90}}, 1, 370, 50), (Widths{-80, 200, -90}));
    EXPECT_EQ(Fit({{100, 80}, {200, 150}, {300, 90}}, 1, 369, 50), (Widths{-80, -150, -90}));
    // A caption without a count has none to lose.
    EXPECT_EQ(Fit({{100, 100}, {200, 150}}, 1, 260, 50), (Widths{100, -150}));
}

TEST(FitTabWidths, ThenAllButTheCurrentOneGiveWay) {
    EXPECT_EQ(Fit({{100, 100}, {200, 200}, {300, 300}}, 2, 450, 20), (Widths{50, 100, 300}));
    EXPECT_EQ(Fit({{110, 100}, {200, 200}, {310, 300}}, 0, 350, 20), (Widths{-100, 100, -150}));
}

TEST(FitTabWidths, NoneIsNarrowerThanTheLeast) {
    const std::vector<TabNeed> three{{100, 100}, {200, 200}, {300, 300}};
    EXPECT_EQ(Fit(three, 2, 380, 40), (Widths{40, 53, 300}));
    EXPECT_EQ(Fit(three, 2, 200, 40), (Widths{40, 53, 120}));
    EXPECT_EQ(Fit(three, 2, -500, 40), (Widths{40, 40, 40}));
    EXPECT_EQ(Fit({{10, 10}, {200, 200}}, 1, 100, 40), (Widths{10, 60}));
    EXPECT_EQ(Fit({{300, 300}}, 0, 100, 40), Widths{100});
}

}  // namespace
}  // namespace kivu::ui
