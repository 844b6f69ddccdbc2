#include "joystick/joystick.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/scripted_host.h"

namespace kivu::joystick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Writes down what it is called for.
struct Window : PadReceiver {
    void Joystick_Right(int, int nr, int panel) override { Note("Right", nr, panel); }
    void Joystick_Left(int, int nr, int panel) override { Note("Left", nr, panel); }
    void Joystick_UP(int, int nr, int panel) override { Note("UP", nr, panel); }
    void Joystick_Down(int, int nr, int panel) override { Note("Down", nr, panel); }
    void Joystick_Button(int nr, int button) override { Note("Button", nr, button); }

    void Note(const std::string& name, int device, int number) {
        calls.push_back(name + " " + std::to_string(device) + " " + std::to_string(number));
        if (onCall) onCall();
    }

    std::vector<std::string> calls;
    std::function<void()> onCall;
};

struct JoystickTest : ::testing::Test {
    JoystickTest() {
        joystick.ports.window = window;
        pads.devices.clear();
    }
    platform::ControllerState& Add(const std::string& name, int buttons = 18) {
        pads.devices.push_back({{name, buttons}, {}});
        return pads.devices.back().state;
    }
    platform::ControllerState& Pad(std::size_t device = 0) { return pads.devices[device].state; }
    void Press(std::vector<std::size_t> buttons, std::size_t device = 0) {
        Pad(device).buttons = {};
        for (const std::size_t button : buttons)
            Pad(device).buttons[button] = true;
    }
    void Init() { joystick.InitJoystick(window, Joystick::deadZone); }
    std::vector<std::string> Poll() {
        window.calls.clear();
        joystick.PollJoysticks();
        return window.calls;
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    kivu::testing::ScriptedControllers& pads = host.controllers;
    core::Form1 form{forms::Toolkit{}};
    Joystick joystick{form, {host.controllers, host.dialogs, host.events}};
    Window window;
};

TEST_F(JoystickTest, MouseAndKeyboardCountAndNeverCall) {
    Add("Mouse");
    Add("Keyboard");
    Init();
    EXPECT_EQ(joystick.JoystickCount(), 2);
    Pad(0).x = 65535;
    Press({0, 1, 2}, 1);
    EXPECT_THAT(Poll(), IsEmpty());
    EXPECT_EQ(pads.reads, 0);
}

TEST_F(JoystickTest, NamesDecideWhoIsAController) {
    for (const char* name : {"", "Mouse X", "USB To X", "maus", "HID-1", "C-Media 1"})
        Add(name);
    Init();
    for (std::size_t device = 0; device < pads.devices.size(); ++device)
        Press({3}, device);
    EXPECT_THAT(Poll(), ElementsAre("Button 2 4", "Button 4 4"));
}

TEST_F(JoystickTest, WhatIsHeldCallsAtEachPoll) {
    Add("Pad");
    Init();
    Press({0, 17});
    Pad().x = 65535;
    Pad().rz = 0;
    for (int poll = 0; poll < 3; ++poll)
        EXPECT_THAT(Poll(), ElementsAre("Right 1 1", "Left 1 2", "Button 1 1", "Button 1 18"));
}

TEST_F(JoystickTest, EveryPadIsPolledInItsOrder) {
    Add("A", 4);
    Add("Mouse");
    Add("B", 20);
    Init();
    Press({4, 5}, 0);
    Press({17, 18, 19}, 2);
    Pad(2).y = 65535;
    EXPECT_THAT(Poll(), ElementsAre("Button 1 5", "Down 3 1", "Button 3 18"));
}

TEST_F(JoystickTest, RestIsTakenWhenTheDevicesAreOpened) {
    Add("Pad").x = 65535;
    Init();
    EXPECT_THAT(Poll(), IsEmpty());
    Pad().x = 32768;
    EXPECT_THAT(Poll(), ElementsAre("Left 1 1"));
    joystick.ShutdownJoystick();
    Init();
    EXPECT_THAT(Poll(), IsEmpty());
}

TEST_F(JoystickTest, PadThatIsGoneRestsAndStillCounts) {
    // Its middle was taken where the stick was held over.
    Add("Pad").x = 0;
    Init();
    Pad().x = 65535;
    EXPECT_THAT(Poll(), ElementsAre("Right 1 1"));
    joystick.HoldButtonsBack();
    pads.devices.clear();
    EXPECT_THAT(Poll(), IsEmpty());
    EXPECT_EQ(joystick.JoystickCount(), 1);
}

TEST_F(JoystickTest, PadThatComesLaterIsSeenOnceOpened) {
    Add("Mouse");
    Init();
    Add("Pad").x = 65535;
    EXPECT_THAT(Poll(), IsEmpty());
    joystick.ShutdownJoystick();
    EXPECT_EQ(joystick.JoystickCount(), 0);
    Init();
    Pad(1).x = 0;
    EXPECT_THAT(Poll(), ElementsAre("Left 2 1"));
}

TEST_F(JoystickTest, PadOfAnotherMeaningAtTheSamePlaceIsNotRead) {
    Add("Pad");
    Init();
    pads.devices.clear();
    Add("Other").x = 65535;
    EXPECT_THAT(Poll(), IsEmpty());
}

TEST_F(JoystickTest, ClosedNothingIsPolled) {
    Add("Pad").x = 65535;
    EXPECT_THAT(Poll(), IsEmpty());
    EXPECT_EQ(joystick.JoystickCount(), 0);
    joystick.CalibrateJoysticks();
    joystick.HoldButtonsBack();
    EXPECT_THAT(joystick.LookAtPads(), IsEmpty());
}

TEST_F(JoystickTest, NoDeviceIsNoError) {
    EXPECT_FALSE(joystick.OpenJoysticks());
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
    EXPECT_EQ(joystick.JoystickCount(), 0);
}

TEST_F(JoystickTest, NoServiceIsToldInGermanInAnyLanguage) {
    Add("Pad");
    pads.noService = true;
    form.CurrentLanguage = 2;
    EXPECT_FALSE(joystick.OpenJoysticks());
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    const auto& box = host.dialogs.shown[0];
    EXPECT_EQ(box.text,
              "Direct Input konnte nicht initialisiert werden!\r"
              "Joystick initialisierung fehlgeschlagen.");
    EXPECT_EQ(box.title, core::defaultTitle);
    EXPECT_EQ(box.icon, platform::Icon::Warning);
    EXPECT_EQ(box.buttons, platform::Buttons::Ok);
    EXPECT_EQ(joystick.JoystickCount(), 0);
}

TEST_F(JoystickTest, LabelSaysThatDevicesAreLookedForAndGoesAsItCame) {
    Add("Pad");
    form.Current_LoadingSmallBtn.SetCaption("before");
    form.Current_LoadingSmallBtn.SetVisible(false);
    std::string seen;
    host.events.onEvents = [&] {
        if (form.Current_LoadingSmallBtn.Visible()) seen = form.Current_LoadingSmallBtn.Caption();
    };
    EXPECT_TRUE(joystick.OpenJoysticks());
    EXPECT_EQ(seen, "Init Joysticks...");
    EXPECT_EQ(form.Current_LoadingSmallBtn.Caption(), "before");
    EXPECT_FALSE(form.Current_LoadingSmallBtn.Visible());
    host.events.onEvents = [&] { form.Current_LoadingSmallBtn.SetCaption("meanwhile"); };
    EXPECT_TRUE(joystick.OpenJoysticks());
    EXPECT_EQ(form.Current_LoadingSmallBtn.Caption(), "meanwhile");
}

// It says so until they have been found.
TEST_F(JoystickTest, LabelStandsWhileTheServiceLooks) {
    Add("Pad");
    std::string seen;
    pads.onOpen = [&] {
        if (form.Current_LoadingSmallBtn.Visible()) seen = form.Current_LoadingSmallBtn.Caption();
    };
    EXPECT_TRUE(joystick.OpenJoysticks());
    EXPECT_EQ(seen, "Init Joysticks...");
    EXPECT_NE(form.Current_LoadingSmallBtn.Caption(), seen);
    // And is gone where a box tells that there is none.
    pads.noService = true;
    std::string behind = seen;
    host.dialogs.onShow = [&] { behind = form.Current_LoadingSmallBtn.Caption(); };
    EXPECT_FALSE(joystick.OpenJoysticks());
    EXPECT_NE(behind, seen);
}

TEST_F(JoystickTest, ChangeIsTakenWithoutAWordAndHoldsBackWhatIsDown) {
    Add("Pad");
    Init();
    EXPECT_FALSE(joystick.TakeChange());
    Add("Second");
    Press({4}, 1);
    Pad(1).x = 65535;
    pads.changed = true;
    bool yielded = false;
    host.events.onEvents = [&] { yielded = true; };
    EXPECT_TRUE(joystick.TakeChange());
    EXPECT_FALSE(yielded);
    EXPECT_EQ(joystick.JoystickCount(), 2);
    EXPECT_THAT(Poll(), IsEmpty());
    Pad(1).x = 32768;
    EXPECT_THAT(Poll(), ElementsAre("Left 2 1"));
    Pad(1).x = 65535;
    Press({}, 1);
    EXPECT_THAT(Poll(), IsEmpty());
    Press({4}, 1);
    EXPECT_THAT(Poll(), ElementsAre("Button 2 5"));
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
    // Without a service there are none, and nobody is told.
    pads.noService = pads.changed = true;
    EXPECT_TRUE(joystick.TakeChange());
    EXPECT_EQ(joystick.JoystickCount(), 0);
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

TEST_F(JoystickTest, PadsPulledOutInsideAPollRest) {
    Add("A");
    Add("B");
    Init();
    Press({0, 1}, 0);
    Press({0}, 1);
    // What was read of the first one still counts; the second one rests.
    window.onCall = [&] { pads.devices.clear(); };
    EXPECT_THAT(Poll(), ElementsAre("Button 1 1", "Button 1 2"));
    EXPECT_THAT(Poll(), IsEmpty());
    EXPECT_EQ(joystick.JoystickCount(), 2);
}

TEST_F(JoystickTest, OpeningIsNotEnteredAgainFromItsOwnEvents) {
    Add("Pad");
    host.events.onEvents = [&] {
        Init();
        EXPECT_FALSE(joystick.OpenJoysticks());
        joystick.PollJoysticks();
    };
    Init();
    EXPECT_EQ(pads.opened, 1);
    EXPECT_EQ(joystick.JoystickCount(), 1);
}

TEST_F(JoystickTest, PollEndsWhereACallClosesTheDevices) {
    Add("A");
    Add("B");
    Init();
    Press({0, 1}, 0);
    Press({0}, 1);
    window.onCall = [&] { joystick.ShutdownJoystick(); };
    EXPECT_THAT(Poll(), ElementsAre("Button 1 1"));
    EXPECT_THAT(Poll(), IsEmpty());
}

TEST_F(JoystickTest, PollEndsWhereACallOpensThemAnew) {
    Add("A");
    Add("B");
    Init();
    Press({0, 1}, 0);
    Press({0}, 1);
    window.onCall = [&] {
        joystick.ShutdownJoystick();
        pads.devices.pop_back();
        Init();
    };
    EXPECT_THAT(Poll(), ElementsAre("Button 1 1"));
}

TEST_F(JoystickTest, PollEndsWhereAGameBeginsOrTheProgramEnds) {
    Add("Pad");
    Init();
    Press({0, 1});
    Pad().x = 65535;
    window.onCall = [&] { form.GameIsRunning = true; };
    EXPECT_THAT(Poll(), ElementsAre("Right 1 1"));
    // In a game that ran before it goes on: the set-up window asks for it.
    EXPECT_THAT(Poll(), ElementsAre("Right 1 1", "Button 1 1", "Button 1 2"));
    form.GameIsRunning = false;
    window.onCall = [&] { form.Ended = true; };
    EXPECT_THAT(Poll(), ElementsAre("Right 1 1"));
}

TEST_F(JoystickTest, HeldBackButtonsActOnceTheyHaveBeenReleased) {
    Add("Pad");
    Init();
    Press({2, 3});
    joystick.HoldButtonsBack();
    EXPECT_THAT(Poll(), IsEmpty());
    Press({2, 3, 4});
    EXPECT_THAT(Poll(), ElementsAre("Button 1 5"));
    Press({2});
    EXPECT_THAT(Poll(), IsEmpty());
    Press({2, 3});
    EXPECT_THAT(Poll(), ElementsAre("Button 1 4"));
    Press({});
    EXPECT_THAT(Poll(), IsEmpty());
    Press({2});
    EXPECT_THAT(Poll(), ElementsAre("Button 1 3"));
}

TEST_F(JoystickTest, HoldingBackEndsThePollUnderWay) {
    Add("Pad");
    Init();
    Press({0, 1});
    window.onCall = [&] { joystick.HoldButtonsBack(); };
    EXPECT_THAT(Poll(), ElementsAre("Button 1 1"));
}

TEST_F(JoystickTest, LookTellsOfPadsThatDoNotRest) {
    Add("Mouse").x = 65535;
    Add("A");
    Add("B");
    Init();
    EXPECT_THAT(joystick.LookAtPads(), IsEmpty());
    Press({5}, 2);
    Pad(2).y = 0;
    const auto looks = joystick.LookAtPads();
    ASSERT_EQ(looks.size(), 1U);
    EXPECT_EQ(looks[0].device, 3);
    EXPECT_THAT(looks[0].buttons, ElementsAre(6));
    EXPECT_THAT(looks[0].sticks, ElementsAre(StickEvent{Move::up, 0, 1}));
    EXPECT_THAT(window.calls, IsEmpty());
}

TEST_F(JoystickTest, LookTellsWhatWentDownSinceTheLastOne) {
    Add("Pad");
    Init();
    Press({5, 6});
    Pad().pressed[5] = true;
    auto looks = joystick.LookAtPads();
    ASSERT_EQ(looks.size(), 1U);
    EXPECT_THAT(looks[0].buttons, ElementsAre(6, 7));
    EXPECT_THAT(looks[0].pressed, ElementsAre(6));
    looks = joystick.LookAtPads();
    ASSERT_EQ(looks.size(), 1U);
    EXPECT_THAT(looks[0].pressed, IsEmpty());
    // One that is held back is not told of at all.
    joystick.HoldButtonsBack();
    Pad().pressed[5] = true;
    EXPECT_THAT(joystick.LookAtPads(), IsEmpty());
}

}  // namespace
}  // namespace kivu::joystick
