#include <cwchar>

#include "hosts/windows/dinput_device.h"
#include "hosts/windows/scripted_dinput_device.h"
#include "testing/controller_states.h"

namespace kivu::hosts {
namespace {

using kivu::testing::At;
using kivu::testing::Down;
using platform::ControllerState;
using std::chrono::milliseconds;

std::string NameOf(BYTE type, const wchar_t* name) {
    DIDEVICEINSTANCEW device{};
    device.dwDevType = type | (1U << 8);
    std::wcsncpy(device.tszInstanceName, name, std::size(device.tszInstanceName) - 1);
    return ControllerName(device);
}

TEST(DirectInputName, OfAMouseAndAKeyboardIsThatOfTheirKind) {
    EXPECT_EQ(NameOf(DI8DEVTYPE_MOUSE, L"Souris"), "Mouse");
    EXPECT_EQ(NameOf(DI8DEVTYPE_KEYBOARD, L"Clavier"), "Keyboard");
    EXPECT_EQ(NameOf(DI8DEVTYPE_KEYBOARD, L""), "Keyboard");
}

TEST(DirectInputName, OfAControllerIsItsOwn) {
    EXPECT_EQ(NameOf(DI8DEVTYPE_GAMEPAD, L"Pad ä"), "Pad ä");
    EXPECT_EQ(NameOf(DI8DEVTYPE_JOYSTICK, L"Mouse X"), "Mouse X");
    EXPECT_EQ(NameOf(DI8DEVTYPE_SUPPLEMENTAL, L"USB To Pad"), "USB To Pad");
    EXPECT_EQ(NameOf(DI8DEVTYPE_GAMEPAD, L""), "Game controller");
}

TEST(DirectInputName, OfWhatIsNoControllerBeginsAsItDoesUntranslated) {
    EXPECT_EQ(NameOf(DI8DEVTYPE_DEVICE, L"HID-compliant device"), "HID-compliant device");
    EXPECT_EQ(NameOf(DI8DEVTYPE_DEVICE, L"Périphérique"), "HID-Périphérique");
    EXPECT_EQ(NameOf(DI8DEVTYPE_SCREENPOINTER, L"Pen"), "HID-Pen");
}

std::string ArrowsAt(DWORD place) {
    const Arrows arrows = ArrowsOfHat(place);
    std::string text;
    if (arrows.Has(Arrow::up)) text += "u";
    if (arrows.Has(Arrow::down)) text += "d";
    if (arrows.Has(Arrow::left)) text += "l";
    if (arrows.Has(Arrow::right)) text += "r";
    return text;
}

TEST(DirectInputHat, PointsToEightSides) {
    const char* sides[] = {"u", "ur", "r", "dr", "d", "dl", "l", "ul"};
    for (DWORD eighth = 0; eighth < 8; ++eighth) {
        EXPECT_EQ(ArrowsAt(eighth * 4500), sides[eighth]);
        EXPECT_EQ(ArrowsAt(eighth * 4500 + 2249), sides[eighth]);
        EXPECT_EQ(ArrowsAt((eighth * 4500 + 36000 - 2250) % 36000), sides[eighth]);
    }
    EXPECT_EQ(ArrowsAt(0xFFFFFFFF), "");
    EXPECT_EQ(ArrowsAt(0xFFFF), "");
    EXPECT_EQ(ArrowsAt(0xFFFFFFFE), ArrowsAt(0xFFFFFFFE % 36000));
}

class DirectInputDeviceTest : public ::testing::Test {
 protected:
    DirectInputDevice Opened() {
        return DirectInputDevice(ComPointer<IDirectInputDevice8W>(&script), now);
    }
    ControllerState Read(DirectInputDevice& device) {
        now += milliseconds(140);
        ControllerState state;
        EXPECT_TRUE(device.Read(now, state));
        pressed = std::exchange(state.pressed, {});
        return state;
    }

    kivu::testing::ScriptedDirectInputDevice script;
    milliseconds now{10'000};
    std::array<bool, 32> pressed{};  // at the last read
};

TEST_F(DirectInputDeviceTest, IsOpenedForTheBackgroundInJoystickFormat) {
    const DirectInputDevice device = Opened();
    EXPECT_EQ(device.Failure(), S_OK);
    EXPECT_EQ(device.Buttons(), 10);
    EXPECT_TRUE(script.isJoystickFormat);
    EXPECT_EQ(script.levelWindow, nullptr);
    EXPECT_EQ(script.level, 10U);
    EXPECT_GT(script.buffer, 0U);
}

TEST_F(DirectInputDeviceTest, IsReleasedOnce) {
    {
        DirectInputDevice device = Opened();
        const DirectInputDevice moved = std::move(device);
        EXPECT_EQ(script.released, 0);
    }
    EXPECT_EQ(script.released, 1);
}

TEST_F(DirectInputDeviceTest, WhatCannotBeOpenedSaysWhyAndRests) {
    script.formatResult = DIERR_INVALIDPARAM;
    DirectInputDevice device = Opened();
    EXPECT_EQ(device.Failure(), DIERR_INVALIDPARAM);
    EXPECT_EQ(script.released, 1);
    script.state.lX = 65535;
    EXPECT_EQ(Read(device), ControllerState());
    script.formatResult = S_OK;
    script.capabilitiesResult = E_FAIL;
    EXPECT_EQ(Opened().Failure(), E_FAIL);
}

TEST_F(DirectInputDeviceTest, AMissingAxisIsInTheCentre) {
    script.objects.clear();
    script.state.lX = script.state.lY = script.state.lRz = 0;
    DirectInputDevice device = Opened();
    EXPECT_EQ(Read(device), ControllerState());
}

TEST_F(DirectInputDeviceTest, AxesAndButtonsAreRead) {
    script.objects.insert(offsetof(DIJOYSTATE, lRz));
    script.state.lRz = 32768;
    DirectInputDevice device = Opened();
    EXPECT_EQ(Read(device), ControllerState());
    script.state.lX = 65535;
    script.state.lY = 0;
    script.state.lRz = 60000;
    script.state.rgbButtons[0] = script.state.rgbButtons[31] = 0x80;
    script.state.rgbButtons[1] = 0x7F;
    ControllerState expected = Down({0, 31});
    expected.x = 65535;
    expected.y = 0;
    expected.rz = 60000;
    EXPECT_EQ(Read(device), expected);
    EXPECT_EQ(script.acquired, 2);
    EXPECT_EQ(script.polled, 2);
}

TEST_F(DirectInputDeviceTest, NoValueLeavesTheRange) {
    DirectInputDevice device = Opened();
    Read(device);
    script.state.lX = 2'000'000'000;
    script.state.lY = -2'000'000'000;
    EXPECT_EQ(Read(device), At(65535, 0));
}

TEST_F(DirectInputDeviceTest, ATriggerThatRestsAtItsEndIsNoStick) {
    script.objects.insert(offsetof(DIJOYSTATE, lRz));
    script.state.lRz = 0;
    DirectInputDevice device = Opened();
    EXPECT_EQ(Read(device), ControllerState());
    script.state.lRz = 65535;
    EXPECT_EQ(Read(device), ControllerState());
}

TEST_F(DirectInputDeviceTest, AHatIsADirection) {
    script.objects.insert(offsetof(DIJOYSTATE, rgdwPOV));
    DirectInputDevice device = Opened();
    EXPECT_EQ(Read(device), ControllerState());
    script.state.rgdwPOV[0] = 0;
    EXPECT_EQ(Read(device), At(32768, 0));
    script.state.rgdwPOV[0] = 13500;
    EXPECT_EQ(Read(device), At(65535, 65535));
}

TEST_F(DirectInputDeviceTest, AHatHeldOverOpenWaitsForItsRest) {
    script.objects.insert(offsetof(DIJOYSTATE, rgdwPOV));
    script.state.rgdwPOV[0] = 18000;
    DirectInputDevice device = Opened();
    EXPECT_EQ(Read(device), ControllerState());
    EXPECT_EQ(Read(device), ControllerState());
    script.state.rgdwPOV[0] = 0xFFFFFFFF;
    EXPECT_EQ(Read(device), ControllerState());
    script.state.rgdwPOV[0] = 18000;
    EXPECT_EQ(Read(device), At(32768, 65535));
}

TEST_F(DirectInputDeviceTest, AHatThatIsNotThereIsInTheCentre) {
    DirectInputDevice device = Opened();
    std::fill(std::begin(script.state.rgdwPOV), std::end(script.state.rgdwPOV), 0);
    script.Event(offsetof(DIJOYSTATE, rgdwPOV), 9000);
    EXPECT_EQ(Read(device), ControllerState());
}

TEST_F(DirectInputDeviceTest, AShortTapIsSeenOnce) {
    script.objects.insert(offsetof(DIJOYSTATE, rgdwPOV));
    DirectInputDevice device = Opened();
    Read(device);
    script.Event(DIJOFS_BUTTON(4), 0x80);
    script.Event(DIJOFS_BUTTON(4), 0);
    script.Event(offsetof(DIJOYSTATE, rgdwPOV), 18000);
    script.Event(offsetof(DIJOYSTATE, rgdwPOV), 0xFFFFFFFF);
    script.Event(offsetof(DIJOYSTATE, lX), 65535);
    script.Event(4000, 0x80);
    ControllerState expected = Down({4});
    expected.y = 65535;
    EXPECT_EQ(Read(device), expected);
    EXPECT_EQ(Read(device), ControllerState());
}

TEST_F(DirectInputDeviceTest, WhatIsHammeredIsPressedEachTime) {
    DirectInputDevice device = Opened();
    Read(device);
    script.state.rgbButtons[1] = 0x80;
    for (int time = 0; time < 2; ++time) {
        script.Event(DIJOFS_BUTTON(4), 0x80);
        script.Event(DIJOFS_BUTTON(4), 0);
        EXPECT_EQ(Read(device), Down({1, 4}));
        EXPECT_EQ(pressed, Down({4}).buttons);
    }
    EXPECT_EQ(Read(device), Down({1}));
    EXPECT_EQ(pressed, ControllerState().pressed);
}

TEST_F(DirectInputDeviceTest, WhatIsTappedWhileNobodyReadsIsForgotten) {
    DirectInputDevice device = Opened();
    Read(device);
    script.Event(DIJOFS_BUTTON(4), 0x80);
    now += milliseconds(400);
    EXPECT_EQ(Read(device), ControllerState());
}

TEST_F(DirectInputDeviceTest, AFailedReadIsADeviceAtRest) {
    DirectInputDevice device = Opened();
    Read(device);
    script.state.lX = 65535;
    script.state.rgbButtons[0] = 0x80;
    script.stateResult = DIERR_INPUTLOST;
    ControllerState state = At(5, 5);
    EXPECT_FALSE(device.Read(now, state));
    EXPECT_EQ(state, ControllerState());
    // It is there again by itself once it can be acquired.
    script.stateResult = S_OK;
    ControllerState expected = Down({0});
    expected.x = 65535;
    EXPECT_EQ(Read(device), expected);
}

TEST_F(DirectInputDeviceTest, WithoutABufferItWorksAllTheSame) {
    script.dataResult = DIERR_NOTBUFFERED;
    DirectInputDevice device = Opened();
    script.state.rgbButtons[2] = 0x80;
    EXPECT_EQ(Read(device), Down({2}));
    EXPECT_EQ(Read(device), Down({2}));
}

}  // namespace
}  // namespace kivu::hosts
