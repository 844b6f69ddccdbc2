#include "hosts/windows/display_windows.h"

namespace kivu::hosts {
namespace {

// A session may have no display at all; one that is there tells all of its mode.
TEST(DisplayWindows, ThePresentModeIsWholeAndCanBeSetAgain) {
    WindowsDisplay display;
    const auto current = display.Current();
    if (!current) {
        EXPECT_FALSE(display.Change({640, 480, 32, 60}));
        GTEST_SKIP() << "no display";
    }
    EXPECT_GT(current->width, 0);
    EXPECT_GT(current->height, 0);
    EXPECT_GT(current->bits, 0);
    EXPECT_GT(current->frequency, 1);
    EXPECT_TRUE(display.Change(*current));
    EXPECT_EQ(display.Current(), current);
}

TEST(DisplayWindows, FourZerosChangeNothing) {
    WindowsDisplay display;
    const auto before = display.Current();
    EXPECT_TRUE(display.Change({}));
    EXPECT_EQ(display.Current(), before);
}

TEST(DisplayWindows, AModeThatNoScreenHasIsRefused) {
    WindowsDisplay display;
    const auto before = display.Current();
    EXPECT_FALSE(display.Change({12345, 6789, 32, 60}));
    EXPECT_FALSE(display.Change({-640, 480, 32, 60}));
    EXPECT_EQ(display.Current(), before);
}

}  // namespace
}  // namespace kivu::hosts
