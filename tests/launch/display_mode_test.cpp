#include "launch/display_mode.h"

#include <gmock/gmock.h>

#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using platform::DisplayMode;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DisplayModeTest : public ::testing::Test {
 protected:
    testing::ScriptedDisplay display;
    testing::ScriptedLog log;
    ChangeScreenRes screen{display, log};

    std::vector<DisplayMode> Sent() { return std::exchange(display.sent, {}); }
};

constexpr DisplayMode fixed{800, 600, 16, 60};

TEST_F(DisplayModeTest, TheStartSetsTheFixedModeAndAKillPutsTheDesktopsBack) {
    screen.SaveAndSetDisplayMode();
    EXPECT_THAT(Sent(), ElementsAre(fixed));
    EXPECT_EQ(screen.SavedMode(), (DisplayMode{1920, 1080, 32, 60}));
    EXPECT_EQ(screen.LastMode(), fixed);
    EXPECT_EQ(screen.Printed(), "800x600x16x60");
    screen.RestoreDisplayMode();
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{1920, 1080, 32, 60}));
    EXPECT_EQ(screen.Printed(), "1920x1080x32x60");
    EXPECT_EQ(display.current, (DisplayMode{1920, 1080, 32, 60}));
}

TEST_F(DisplayModeTest, AfterASwitchTheFixedModeIsTheRememberedOne) {
    screen.SaveAndSetDisplayMode();
    screen.SaveAndSetDisplayMode();
    EXPECT_EQ(screen.SavedMode(), fixed);
    Sent();
    screen.RestoreDisplayMode();
    EXPECT_THAT(Sent(), ElementsAre(fixed));
}

TEST_F(DisplayModeTest, ARefusedModeLeavesTheDesktopsToBeSavedAgain) {
    display.accepts = false;
    screen.SaveAndSetDisplayMode();
    screen.SaveAndSetDisplayMode();
    EXPECT_EQ(screen.SavedMode(), (DisplayMode{1920, 1080, 32, 60}));
    EXPECT_EQ(screen.LastMode(), fixed);
    EXPECT_EQ(screen.Printed(), "800x600x16x60");
    EXPECT_EQ(log.lines.back(), "display mode refused: 800x600x16x60");
}

TEST_F(DisplayModeTest, NothingIsChangedThatCouldNotBePutBack) {
    display.current.reset();
    screen.SaveAndSetDisplayMode();
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_EQ(screen.Printed(), "");
    screen.RestoreDisplayMode();
    EXPECT_THAT(Sent(), IsEmpty());
}

TEST_F(DisplayModeTest, RestoringBeforeAnySaveSendsNothing) {
    screen.RestoreDisplayMode();
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(DisplayModeTest, PartsAreCompletedByWhatWasAskedForLast) {
    screen.ChangeDisplayMode(1024, 768, 0, 0);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{1024, 768, 0, 0}));
    screen.ChangeDisplayMode(0, 0, 32, 0);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{1024, 768, 32, 0}));
    screen.ChangeDisplayMode(0, 0, 0, 75);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{1024, 768, 32, 75}));
    EXPECT_EQ(screen.LastMode(), (DisplayMode{1024, 768, 32, 75}));
    screen.ChangeDisplayMode(640, 480, 0, 0);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{640, 480, 32, 75}));
}

TEST_F(DisplayModeTest, NothingGivenDoesNothing) {
    screen.ChangeDisplayMode(1024, 768, 32, 75);
    Sent();
    log.lines.clear();
    screen.ChangeDisplayMode(0, 0, 0, 0);
    EXPECT_THAT(Sent(), IsEmpty());
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_EQ(screen.Printed(), "1024x768x32x75");
}

struct Mix {
    const char* name;
    DisplayMode given;
};

class MixedValues : public DisplayModeTest, public ::testing::WithParamInterface<Mix> {};

TEST_P(MixedValues, SendTheOldOnesAgainAndRememberNothing) {
    screen.ChangeDisplayMode(1024, 768, 32, 75);
    Sent();
    const DisplayMode& given = GetParam().given;
    screen.ChangeDisplayMode(given.width, given.height, given.bits, given.frequency);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{1024, 768, 32, 75}));
    EXPECT_EQ(screen.LastMode(), (DisplayMode{1024, 768, 32, 75}));
}

INSTANTIATE_TEST_SUITE_P(
    , MixedValues,
    ::testing::Values(Mix{"Width", {640, 0, 0, 0}}, Mix{"Height", {0, 480, 0, 0}},
                      Mix{"SizeAndBits", {640, 480, 16, 0}},
                      Mix{"SizeAndFrequency", {640, 480, 0, 60}},
                      Mix{"BitsAndFrequency", {0, 0, 16, 60}}, Mix{"WidthAndBits", {640, 0, 16, 0}},
                      Mix{"HeightAndFrequency", {0, 480, 0, 60}},
                      Mix{"AllButWidth", {0, 480, 16, 60}}, Mix{"AllButHeight", {640, 0, 16, 60}}),
    [](const auto& parameter) { return parameter.param.name; });

TEST_F(DisplayModeTest, AMixBeforeAnyChangeSendsFourZeros) {
    screen.ChangeDisplayMode(640, 0, 0, 0);
    EXPECT_THAT(Sent(), ElementsAre(DisplayMode{}));
    EXPECT_EQ(screen.Printed(), "0x0x0x0");
    EXPECT_EQ(screen.LastMode(), DisplayMode{});
}

TEST_F(DisplayModeTest, AMixAfterAReadingSendsTheModeThatWasRead) {
    // What was read last stands in the same record, and a fixed mode has gone over it.
    screen.SaveAndSetDisplayMode();
    Sent();
    screen.ChangeDisplayMode(640, 0, 0, 0);
    EXPECT_THAT(Sent(), ElementsAre(fixed));
}

}  // namespace
}  // namespace kivu::launch
