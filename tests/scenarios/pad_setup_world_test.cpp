// The set-up of the buttons and what happens around it.

#include "scenarios/pad_setup.h"

namespace kivu::scenarios {
namespace {

using PadSetupInTheWorld = PadSetup;

TEST_F(PadSetupInTheWorld, OpensTheDevicesItselfWhereTheOptionIsOff) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "0"}});
    Start();
    EXPECT_EQ(Call("JoystickCount"), 0);
    session->Screen().onModal = [&](forms::Form&, const std::function<bool()>&) {
        EXPECT_EQ(Call("JoystickCount"), 1);
        Press({7});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    };
    Do("call", "JoystickIcon_DblClick");
    EXPECT_EQ(Call("JoystickCount"), 0);
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
}

TEST_F(PadSetupInTheWorld, PadPulledOutAndPutInMeanwhile) {
    Start();
    Open([&] {
        Press({3});
        Do("device", "clear");
        P(2);
        EXPECT_EQ(Of("Position"), 0);
        Do("device", "add", "Pad", 18);
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 0);
        // A host that tells of it.
        Host().controllers.changed = true;
        // The window's own timer leaves it to this one.
        Poll();
        P();
        // It came with the button down.
        EXPECT_EQ(Of("Position"), 0);
        EXPECT_EQ(Get("JoystickButtonSetupModus"), true);
        Release();
        P();
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
    EXPECT_EQ(Get("JoystickTimer.Enabled"), true);
}

TEST_F(PadSetupInTheWorld, BehindAnotherProgramsWindowThePadIsNotOurs) {
    using Activity = forms::WindowHost::Activity;
    Start();
    Open([&] {
        session->Screen().activity = Activity::others;
        Press({3});
        P(3);
        EXPECT_EQ(Of("Position"), 0);
        session->Screen().activity = Activity::ours;
        // Still held, it is not meant.
        P(2);
        EXPECT_EQ(Of("Position"), 0);
        Release();
        P();
        Press({3});
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
}

// Its own timer goes on as long as the window stands.
TEST_F(PadSetupInTheWorld, PollsNothingOnceTheModeIsOff) {
    Start();
    Open([&] {
        Do("call", "SetJoystickButtonSetupModus", false);
        Press({1});
        const int reads = Host().controllers.reads;
        P(3);
        EXPECT_EQ(Host().controllers.reads, reads);
        EXPECT_EQ(Of("Position"), 0);
        Release();
        Key("Escape");
    });
    EXPECT_TRUE(Do("runs")["value"].empty());
}

TEST_F(PadSetupInTheWorld, SaysThatItIsDoneAndStops) {
    for (const bool german : {false, true}) {
        options.language = german ? "German" : "English";
        Start();
        const joystick::ButtonSetupForm* window = nullptr;
        std::optional<forms::HeldForm> held;
        Open([&] {
            forms::Form* found = session->Screen().Find("SetJoystickButtons");
            window = dynamic_cast<joystick::ButtonSetupForm*>(found);
            ASSERT_NE(window, nullptr);
            held.emplace(*found);
            EXPECT_TRUE(window->ShowTimer.Enabled());
            Skip(12);
        });
        ASSERT_NE(window, nullptr);
        EXPECT_EQ(window->InfoLabel.Caption(), german ? "\r\r\rFertig!" : "\r\r\rDone!");
        EXPECT_FALSE(window->ShowTimer.Enabled());
        EXPECT_FALSE(window->PollingTimer.Enabled());
    }
}

TEST_F(PadSetupInTheWorld, TheIconsDoubleClickLowersTheMainWindowMeanwhile) {
    Start();
    ASSERT_TRUE(Form().IsTopmost());
    Open([&] {
        EXPECT_FALSE(Form().IsTopmost());
        Key("Escape");
    });
    EXPECT_TRUE(Form().IsTopmost());
}

TEST_F(PadSetupInTheWorld, IsNotOpenedTwiceNorWhileBusy) {
    Start();
    Open([&] {
        const auto windows = Do("windows")["value"].size();
        Do("call", "JoystickIcon_DblClick");
        EXPECT_EQ(Do("windows")["value"].size(), windows);
        Key("Escape");
    });
    Form().Busy = true;
    Do("call", "JoystickIcon_DblClick");
    EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
}

TEST_F(PadSetupInTheWorld, ModeWithoutAWindowTakesTheButton) {
    Start();
    Do("call", "SetJoystickButtonSetupModus", true);
    Press({11});
    Poll(2);
    EXPECT_FALSE(session->ended);
    Do("call", "SetNextButton", 3);
    EXPECT_TRUE(Refused("get", "SetJoystickButtons.Caption"));
    // The icon ends it.
    Do("click", "Form1.JoystickIcon");
    EXPECT_EQ(Get("JoystickButtonSetupModus"), false);
}

TEST_F(PadSetupInTheWorld, InAGameItIsTheOnlyOneThatPolls) {
    Start();
    Form().GameIsRunning = true;
    Open([&] {
        Press({6});
        Poll();
        EXPECT_EQ(Of("Position"), 0);
        P();
        EXPECT_EQ(Of("Position"), 1);
        Key("Escape");
    });
}

TEST_F(PadSetupInTheWorld, DiskThatTakesNothingEndsItAllTheSame) {
    Start();
    Do("disk", "full");
    Open([&] {
        Skip(12);
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Get("JoystickButtons")[0], 0);
}

TEST_F(PadSetupInTheWorld, TakesTheWindowsLookAndFitsTheScreen) {
    options.language = "German";
    Start();
    Do("set", "Form1.FontSizeCombo.ListIndex", 32);
    Open([&] {
        const forms::Form* window = session->Screen().Find("SetJoystickButtons");
        ASSERT_NE(window, nullptr);
        const forms::Size room = session->Screen().Room(&Form());
        EXPECT_LE(window->Width(), room.width);
        EXPECT_LE(window->Height(), room.height);
        EXPECT_GT(window->Height(), 9000);
        for (const forms::Control* control : window->Controls()) {
            if (control->Parent() != window || control->GetKind() == forms::Kind::timer) continue;
            EXPECT_LE(control->Right(), window->Width()) << control->Name();
            EXPECT_LE(control->Bottom(), window->Height()) << control->Name();
        }
        Key("Escape");
    });
}

}  // namespace
}  // namespace kivu::scenarios
