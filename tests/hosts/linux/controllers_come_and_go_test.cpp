#include <filesystem>
#include <gmock/gmock.h>

#include "hosts/linux/sdl_controllers.h"
#include "testing/controller_states.h"
#include "virtual_pad.h"

namespace kivu::hosts {
namespace {

using kivu::testing::At;
using kivu::testing::Down;
using kivu::testing::VirtualPad;
using platform::ControllerState;
using ::testing::ElementsAre;
using ::testing::StartsWith;

// Devices that come and go.
class ControllersComeAndGo : public kivu::testing::SdlControllersTest {};

TEST_F(ControllersComeAndGo, ADeviceThatIsUnpluggedIsGoneAndReadsAtRest) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    pad.SetAxis(0, 32767);
    pad.SetButton(1, true);
    Read();
    pad.Unplug();
    for (int time = 0; time < 3; ++time) {
        ControllerState state = At(5, 5);
        EXPECT_FALSE(controllers.Read(Place("Pad"), state));
        EXPECT_EQ(state, ControllerState());
    }
    EXPECT_TRUE(controllers.Changed());
    EXPECT_FALSE(controllers.Changed());
    Open();
    EXPECT_FALSE(IsThere("Pad"));
}

TEST_F(ControllersComeAndGo, OneThatComesIsNewsOnce) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    EXPECT_FALSE(controllers.Changed());
    VirtualPad late("Late", {.buttons = 2});
    EXPECT_TRUE(controllers.Changed());
    EXPECT_FALSE(controllers.Changed());
    Open();
    EXPECT_TRUE(IsThere("Late"));
    EXPECT_FALSE(controllers.Changed());
}

TEST_F(ControllersComeAndGo, NewsThatAReadHasSeenIsNotLost) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    VirtualPad late("Late", {.buttons = 2});
    Read();
    EXPECT_TRUE(controllers.Changed());
}

TEST_F(ControllersComeAndGo, OneThatComesBackWorksAgainOnceItIsOpened) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    pad.Unplug();
    pad.Plug();
    pad.SetButton(1, true);
    ControllerState state;
    EXPECT_FALSE(controllers.Read(Place("Pad"), state));
    EXPECT_TRUE(controllers.Changed());
    Open();
    EXPECT_EQ(Read(), Down({1}));
}

TEST_F(ControllersComeAndGo, TheSecondGoesOnWhenTheFirstIsUnplugged) {
    VirtualPad first("First", {.buttons = 4}), second("Second", {.buttons = 4});
    Open();
    first.Unplug();
    second.SetButton(3, true);
    EXPECT_EQ(Read("Second"), Down({3}));
    second.Tap(2);
    EXPECT_EQ(Read("Second"), Down({2, 3}));
}

TEST_F(ControllersComeAndGo, ClosedNothingIsReadAndNothingIsNews) {
    VirtualPad pad("Pad", {.buttons = 4});
    ControllerState state;
    EXPECT_FALSE(controllers.Read(2, state));
    Open();
    controllers.Close();
    controllers.Close();
    VirtualPad late("Late", {.buttons = 2});
    EXPECT_FALSE(controllers.Read(Place("Pad"), state));
    EXPECT_FALSE(controllers.Changed());
}

// A pad's sticks send hundreds of events a second, and the queue holds some ten thousands.
TEST_F(ControllersComeAndGo, NewsComesThroughAfterAFloodOfEvents) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    for (int i = 0; i < 70'000; ++i) {
        pad.SetAxis(0, i % 2 == 0 ? 32767 : -32768);
        ControllerState state;
        controllers.Read(Place("Pad"), state);
    }
    pad.Tap(1);
    EXPECT_TRUE(Read().buttons[1]);
    VirtualPad late("Late", {.buttons = 2});
    EXPECT_TRUE(controllers.Changed());
}

// Neither a library that is not there nor one that is another.
TEST_F(ControllersComeAndGo, WithoutTheLibraryThereAreNoneAndItIsToldOnce) {
    for (const char* library : {"libKivuHasNone.so.0", "libm.so.6"}) {
        log.lines.clear();
        SdlControllers without(clock, log, library);
        for (int time = 0; time < 2; ++time) {
            const auto found = without.Open();
            ASSERT_TRUE(found.has_value());
            EXPECT_EQ(found->size(), 2U);
        }
        ControllerState state;
        EXPECT_TRUE(without.Read(0, state));
        EXPECT_FALSE(without.Read(2, state));
        EXPECT_FALSE(without.Changed());
        without.Close();
        EXPECT_THAT(log.lines, ElementsAre(StartsWith("no game controllers: ")));
    }
}

std::size_t OpenDescriptors() {
    const std::filesystem::directory_iterator all("/proc/self/fd");
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_F(ControllersComeAndGo, NothingStaysOpenBehindIt) {
    Open();
    controllers.Close();
    const std::size_t before = OpenDescriptors();
    for (int time = 0; time < 20; ++time) {
        Open();
        controllers.Close();
    }
    EXPECT_EQ(OpenDescriptors(), before);
}

}  // namespace
}  // namespace kivu::hosts
