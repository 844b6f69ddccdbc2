#include "hosts/linux/display_choice.h"

namespace kivu::hosts {
namespace {

using platform::DisplayMode;

// A desktop at 1920x1080.
ScreenModes Desktop() {
    return {{{1, 1920, 1080, 59.94},
             {2, 1920, 1080, 60.0},
             {3, 1920, 1080, 50.0},
             {4, 1024, 768, 60.004},
             {5, 1024, 768, 75.03},
             {6, 800, 600, 60.317},
             {7, 800, 600, 56.25}},
            2,
            24};
}

TEST(DisplayChoice, BitsAreThoseThatAPixelTakesInMemory) {
    EXPECT_EQ(BitsOfDepth(8), 8);
    EXPECT_EQ(BitsOfDepth(15), 16);
    EXPECT_EQ(BitsOfDepth(16), 16);
    EXPECT_EQ(BitsOfDepth(24), 32);
    EXPECT_EQ(BitsOfDepth(30), 32);
}

TEST(DisplayChoice, TheCurrentModeIsRounded) {
    EXPECT_EQ(CurrentMode(Desktop()), (DisplayMode{1920, 1080, 32, 60}));
    ScreenModes screen = Desktop();
    screen.current = 5;
    EXPECT_EQ(CurrentMode(screen), (DisplayMode{1024, 768, 32, 75}));
    screen.current = 1;
    EXPECT_EQ(CurrentMode(screen), (DisplayMode{1920, 1080, 32, 60}));
    screen.current = 99;
    EXPECT_EQ(CurrentMode(screen), std::nullopt);
}

TEST(DisplayChoice, AModeWithoutTimingTells60AndFitsAnyFrequency) {
    const ScreenModes screen{{{1, 1280, 800, 0}, {2, 640, 480, 0}, {3, 320, 200, 0.2}}, 1, 24};
    EXPECT_EQ(CurrentMode(screen), (DisplayMode{1280, 800, 32, 60}));
    EXPECT_EQ(ChooseMode(screen, {640, 480, 32, 75}), 2U);
    EXPECT_EQ(ChooseMode(screen, {640, 480, 32, 60}), 2U);
    ScreenModes slow = screen;
    slow.current = 3;
    EXPECT_EQ(CurrentMode(slow), (DisplayMode{320, 200, 32, 60}));
}

TEST(DisplayChoice, SizeAndFrequencyMustBeOffered) {
    EXPECT_EQ(ChooseMode(Desktop(), {800, 600, 32, 60}), 6U);
    EXPECT_EQ(ChooseMode(Desktop(), {800, 600, 32, 56}), 7U);
    EXPECT_EQ(ChooseMode(Desktop(), {801, 600, 32, 60}), std::nullopt);
    EXPECT_EQ(ChooseMode(Desktop(), {800, 601, 32, 60}), std::nullopt);
    EXPECT_EQ(ChooseMode(Desktop(), {800, 600, 32, 75}), std::nullopt);
    EXPECT_EQ(ChooseMode(Desktop(), {-800, 600, 32, 60}), std::nullopt);
}

TEST(DisplayChoice, AFrequencyMayBeOneHertzOff) {
    EXPECT_EQ(ChooseMode(Desktop(), {1024, 768, 32, 74}), 5U);
    EXPECT_EQ(ChooseMode(Desktop(), {1024, 768, 32, 76}), 5U);
    EXPECT_EQ(ChooseMode(Desktop(), {1024, 768, 32, 77}), std::nullopt);
    EXPECT_EQ(ChooseMode(Desktop(), {1024, 768, 32, 73}), std::nullopt);
    // As 59.94 hertz are told on the other host.
    EXPECT_EQ(ChooseMode(Desktop(), {1920, 1080, 32, 59}), 1U);
}

TEST(DisplayChoice, TheNearestFrequencyComesFirst) {
    ScreenModes screen = Desktop();
    EXPECT_EQ(ChooseMode(screen, {1920, 1080, 32, 60}), 2U);
    screen.current = 6;
    EXPECT_EQ(ChooseMode(screen, {1920, 1080, 32, 60}), 2U);
}

TEST(DisplayChoice, OfModesAlikeTheOneThatIsSetStays) {
    ScreenModes screen{{{1, 800, 600, 60}, {2, 800, 600, 60}, {3, 640, 480, 60}}, 2, 24};
    EXPECT_EQ(ChooseMode(screen, {800, 600, 32, 60}), 2U);
    screen.current = 3;
    EXPECT_EQ(ChooseMode(screen, {800, 600, 32, 60}), 1U);
}

TEST(DisplayChoice, BitsMustBeThePresentOnes) {
    EXPECT_EQ(ChooseMode(Desktop(), {800, 600, 16, 60}), std::nullopt);
    EXPECT_EQ(ChooseMode(Desktop(), {800, 600, 24, 60}), std::nullopt);
    ScreenModes screen = Desktop();
    screen.depth = 16;
    EXPECT_EQ(ChooseMode(screen, {800, 600, 16, 60}), 6U);
    EXPECT_EQ(ChooseMode(screen, {800, 600, 32, 60}), std::nullopt);
}

TEST(DisplayChoice, AZeroKeepsThePresentValue) {
    EXPECT_EQ(ChooseMode(Desktop(), {1024, 768, 0, 0}), 4U);
    EXPECT_EQ(ChooseMode(Desktop(), {0, 0, 0, 50}), 3U);
    EXPECT_EQ(ChooseMode(Desktop(), {0, 0, 32, 0}), 2U);
    EXPECT_EQ(ChooseMode(Desktop(), {}), 2U);
    EXPECT_EQ(ChooseMode(Desktop(), {800, 0, 0, 0}), std::nullopt);
}

TEST(DisplayChoice, ASizeThatLacksThePresentFrequencyTakesTheNearest) {
    const ScreenModes screen{{{1, 1920, 1080, 144}, {2, 800, 600, 60}, {3, 800, 600, 75}}, 1, 24};
    EXPECT_EQ(ChooseMode(screen, {800, 600, 0, 0}), 3U);
    EXPECT_EQ(ChooseMode(screen, {800, 600, 32, 144}), std::nullopt);
}

TEST(DisplayChoice, AScreenWithoutACurrentModeOffersNothing) {
    EXPECT_EQ(ChooseMode({}, {800, 600, 32, 60}), std::nullopt);
    ScreenModes screen = Desktop();
    screen.current = 0;
    EXPECT_EQ(ChooseMode(screen, {800, 600, 32, 60}), std::nullopt);
}

}  // namespace
}  // namespace kivu::hosts
