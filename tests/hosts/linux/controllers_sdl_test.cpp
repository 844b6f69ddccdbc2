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
using std::chrono::milliseconds;
using ::testing::IsEmpty;

class ControllersSdl : public kivu::testing::SdlControllersTest {};

TEST_F(ControllersSdl, AMouseAndAKeyboardStandInFront) {
    Open();
    ASSERT_GE(list.size(), 2U);
    EXPECT_EQ(list[0].name, "Mouse");
    EXPECT_EQ(list[1].name, "Keyboard");
    ControllerState state = At(1, 2);
    EXPECT_TRUE(controllers.Read(1, state));
    EXPECT_EQ(state, ControllerState());
    EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(ControllersSdl, OnesBehindTheListAreGone) {
    Open();
    ControllerState state = At(1, 2);
    EXPECT_FALSE(controllers.Read(list.size(), state));
    EXPECT_FALSE(controllers.Read(static_cast<std::size_t>(-1), state));
    EXPECT_EQ(state, ControllerState());
}

TEST_F(ControllersSdl, NamesAndButtonsAreTheDevices) {
    const VirtualPad pad("Pad", {.buttons = 20}), small("Small", {.buttons = 4});
    Open();
    ASSERT_TRUE(IsThere("Pad"));
    EXPECT_EQ(list[Place("Pad")].buttons, 20);
    ASSERT_TRUE(IsThere("Small"));
    EXPECT_EQ(list[Place("Small")].buttons, 4);
    EXPECT_LT(Place("Pad"), Place("Small"));
}

TEST_F(ControllersSdl, OfAPadThatNobodyKnowsTheFirstTwoAxesAreXAndY) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 2});
    Open();
    EXPECT_EQ(Read(), ControllerState());
    pad.SetAxis(0, 32767);
    EXPECT_EQ(Read(), At(65535, 32768));
    pad.SetAxis(0, -32768);
    pad.SetAxis(1, 32767);
    EXPECT_EQ(Read(), At(0, 65535));
    pad.SetAxis(0, 16384);
    pad.SetAxis(1, -20000);
    EXPECT_EQ(Read(), At(32768, 12768));
}

TEST_F(ControllersSdl, ItsOtherAxesAreTriggersForAllThatIsKnown) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 2});
    Open();
    Read();
    for (int axis = 2; axis < 6; ++axis) {
        for (const int value : {-32768, 32767}) {
            pad.SetAxis(axis, value);
            EXPECT_EQ(Read(), ControllerState()) << axis;
        }
    }
}

TEST_F(ControllersSdl, AxesThatAreNotThereAreInTheCentre) {
    VirtualPad none("None", {.axes = 0, .buttons = 2}), one("One", {.axes = 1, .buttons = 2});
    Open();
    EXPECT_EQ(Read("None"), ControllerState());
    EXPECT_EQ(Read("One"), ControllerState());
    one.SetAxis(0, 32767);
    EXPECT_EQ(Read("One"), At(65535, 32768));
}

TEST_F(ControllersSdl, OfAKnownPadRzIsTheRightSticksHorizontal) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 11, .known = true});
    Open();
    EXPECT_EQ(Read(), ControllerState());
    pad.SetAxis(SDL_CONTROLLER_AXIS_LEFTX, -32768);
    pad.SetAxis(SDL_CONTROLLER_AXIS_RIGHTX, 32767);
    EXPECT_EQ(Read(), At(0, 32768, 65535));
    pad.SetAxis(SDL_CONTROLLER_AXIS_LEFTX, 0);
    pad.SetAxis(SDL_CONTROLLER_AXIS_LEFTY, -32768);
    pad.SetAxis(SDL_CONTROLLER_AXIS_RIGHTX, 0);
    pad.SetAxis(SDL_CONTROLLER_AXIS_RIGHTY, 32767);
    EXPECT_EQ(Read(), At(32768, 0));
    pad.SetAxis(SDL_CONTROLLER_AXIS_LEFTY, 0);
    pad.SetAxis(SDL_CONTROLLER_AXIS_TRIGGERLEFT, 32767);
    pad.SetAxis(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, 32767);
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, ButtonsHaveTheirNumbers) {
    VirtualPad pad("Pad", {.buttons = 40});
    Open();
    pad.SetButton(0, true);
    pad.SetButton(17, true);
    pad.SetButton(31, true);
    pad.SetButton(32, true);
    EXPECT_EQ(Read(), Down({0, 17, 31}));
    EXPECT_EQ(Read(), Down({0, 17, 31}));
    pad.SetButton(0, false);
    EXPECT_EQ(Read(), Down({17, 31}));
}

TEST_F(ControllersSdl, ArrowButtonsAreDirectionsAndNoButtons) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 15, .known = true});
    Open();
    Read();
    EXPECT_EQ(list[Place("Pad")].buttons, 15);
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_LEFT, true);
    EXPECT_EQ(Read(), At(0, 32768));
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_LEFT, false);
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_RIGHT, true);
    EXPECT_EQ(Read(), At(65535, 32768));
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_RIGHT, false);
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_UP, true);
    EXPECT_EQ(Read(), At(32768, 0));
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_UP, false);
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_DOWN, true);
    pad.SetButton(SDL_CONTROLLER_BUTTON_A, true);
    ControllerState both = Down({SDL_CONTROLLER_BUTTON_A});
    both.y = 65535;
    EXPECT_EQ(Read(), both);
}

TEST_F(ControllersSdl, HatsAreDirections) {
    VirtualPad pad("Pad", {.buttons = 4, .hats = 2});
    Open();
    Read();
    pad.SetHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(Read(), At(0, 32768));
    pad.SetHat(0, SDL_HAT_RIGHTDOWN);
    EXPECT_EQ(Read(), At(65535, 65535));
    pad.SetHat(0, SDL_HAT_CENTERED);
    pad.SetHat(1, SDL_HAT_UP);
    EXPECT_EQ(Read(), At(32768, 0));
    pad.SetHat(1, SDL_HAT_CENTERED);
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, AShortTapIsSeenOnce) {
    VirtualPad pad("Pad", {.buttons = 4, .hats = 1}), other("Other", {.buttons = 4});
    Open();
    Read();
    pad.Tap(2);
    EXPECT_EQ(Read("Other"), ControllerState());
    EXPECT_EQ(Read(), Down({2}));
    EXPECT_EQ(Read(), ControllerState());
    pad.TapHat(0, SDL_HAT_UP);
    EXPECT_EQ(Read(), At(32768, 0));
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, WhatIsHeldIsPressedOnceAndWhatIsHammeredEachTime) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    pad.SetButton(1, true);
    Read();
    EXPECT_EQ(pressed, Down({1}).buttons);
    for (int time = 0; time < 2; ++time) {
        pad.Tap(2);
        EXPECT_EQ(Read(), Down({1, 2}));
        EXPECT_EQ(pressed, Down({2}).buttons);
    }
    EXPECT_EQ(Read(), Down({1}));
    EXPECT_EQ(pressed, ControllerState().pressed);
}

TEST_F(ControllersSdl, AShortTapOnAnArrowButtonIsAStep) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 15, .known = true});
    Open();
    Read();
    pad.Tap(SDL_CONTROLLER_BUTTON_DPAD_DOWN);
    EXPECT_EQ(Read(), At(32768, 65535));
    EXPECT_EQ(Read(), ControllerState());
}

// Its cross are buttons.
TEST_F(ControllersSdl, AnotherHatOfAKnownPadIsNeitherHeldNorTapped) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 15, .hats = 1, .known = true});
    Open();
    Read();
    pad.SetHat(0, SDL_HAT_UP);
    EXPECT_EQ(Read(), ControllerState());
    pad.TapHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(Read(), ControllerState());
    pad.Tap(SDL_CONTROLLER_BUTTON_DPAD_UP);
    EXPECT_EQ(Read(), At(32768, 0));
}

TEST_F(ControllersSdl, ACrossThatIsAHatIsHeldAndTapped) {
    // SDL knows pads by their names, too.
    VirtualPad pad("Cross", {.axes = 6, .buttons = 11, .hats = 2});
    ASSERT_TRUE(pad.MapCrossToHat(1));
    Open();
    Read("Cross");
    pad.SetHat(1, SDL_HAT_RIGHT);
    EXPECT_EQ(Read("Cross"), At(65535, 32768));
    pad.SetHat(1, SDL_HAT_CENTERED);
    EXPECT_EQ(Read("Cross"), ControllerState());
    pad.TapHat(1, SDL_HAT_LEFTDOWN);
    EXPECT_EQ(Read("Cross"), At(0, 65535));
    EXPECT_EQ(Read("Cross"), ControllerState());
    pad.TapHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(Read("Cross"), ControllerState());
}

TEST_F(ControllersSdl, AHeldDirectionOfAHatIsNoTapWhenAnotherJoinsIt) {
    VirtualPad pad("Pad", {.hats = 1});
    Open();
    Read();
    pad.SetHat(0, SDL_HAT_UP);
    EXPECT_EQ(Read(), At(32768, 0));
    pad.TapHat(0, SDL_HAT_LEFTUP);
    EXPECT_EQ(Read(), At(0, 32768));
}

// The launcher stops reading while another program is in front.
TEST_F(ControllersSdl, WhatIsTappedWhileNobodyReadsIsForgotten) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    Read();
    pad.Tap(2);
    clock.MoveOn(milliseconds(400));
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, WhatIsTappedBeforeItIsOpenedIsNotSeen) {
    VirtualPad pad("Pad", {.buttons = 4});
    Open();
    pad.Tap(1);
    controllers.Close();
    pad.Tap(2);
    Open();
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, AStickHeldOverWhenOpenedWaitsForItsRest) {
    VirtualPad pad("Pad", {});
    pad.SetAxis(0, 32767);
    Open();
    EXPECT_EQ(Read(), ControllerState());
    pad.SetAxis(0, 0);
    EXPECT_EQ(Read(), ControllerState());
    pad.SetAxis(0, 32767);
    EXPECT_EQ(Read(), At(65535, 32768));
    // Opened anew, it waits anew.
    Open();
    EXPECT_EQ(Read(), ControllerState());
}

TEST_F(ControllersSdl, AnArrowHeldOverOpenWaitsForItsRest) {
    VirtualPad pad("Pad", {.axes = 6, .buttons = 15, .known = true}), hat("Hat", {.hats = 1});
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_DOWN, true);
    hat.SetHat(0, SDL_HAT_LEFT);
    Open();
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(Read(), ControllerState());
        EXPECT_EQ(Read("Hat"), ControllerState());
    }
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_DOWN, false);
    hat.SetHat(0, SDL_HAT_CENTERED);
    EXPECT_EQ(Read(), ControllerState());
    EXPECT_EQ(Read("Hat"), ControllerState());
    pad.SetButton(SDL_CONTROLLER_BUTTON_DPAD_DOWN, true);
    hat.SetHat(0, SDL_HAT_LEFT);
    EXPECT_EQ(Read(), At(32768, 65535));
    EXPECT_EQ(Read("Hat"), At(0, 32768));
}

}  // namespace
}  // namespace kivu::hosts
