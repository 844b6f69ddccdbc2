#include "scenarios/pad.h"
#include "wiring/routines.h"

namespace kivu::scenarios {
namespace {

// Boxes that stand in front are answered with the pad.
class PadBoxes : public PadScenario {
 protected:
    using BoxKey = platform::Dialogs::BoxKey;

    // Escape asks whether to quit; meanwhile the user does that.
    void Ask(std::function<void()> user) {
        int shown = 0;
        Host().dialogs.onShow = [&] {
            ++shown;
            user();
        };
        Do("click", "Form1.Label2");
        Do("key", "Form1.WIthoutDoubles", "Escape");
        Host().dialogs.onShow = nullptr;
        EXPECT_EQ(shown, 1);
        EXPECT_TRUE(Refused("tick", "Form1.BoxButtonTimer"));
    }
    std::vector<BoxKey> Pressed() { return std::exchange(Host().dialogs.pressed, {}); }
    void LookAtBox(int ticks = 1) { Do("tick", "Form1.BoxButtonTimer", ticks); }
};

using Keys = std::vector<platform::Dialogs::BoxKey>;

TEST_F(PadBoxes, LeftAndRightStepOnceForEachPush) {
    Start();
    Ask([&] {
        Push("x", 65535);
        LookAtBox(3);
        EXPECT_EQ(Pressed(), Keys{BoxKey::next});
        Push("x", 0);
        LookAtBox(3);
        EXPECT_EQ(Pressed(), Keys{BoxKey::previous});
        Release();
        LookAtBox();
        Push("rz", 65535);
        LookAtBox(2);
        EXPECT_EQ(Pressed(), Keys{BoxKey::next});
        Push("y", 65535);
        LookAtBox(2);
        EXPECT_EQ(Pressed(), Keys{});
    });
    EXPECT_EQ(Focus(), 2);
}

TEST_F(PadBoxes, SelectAndStartPressAndQuitCancels) {
    Start();
    Ask([&] {
        Press({0});
        LookAtBox(3);
        EXPECT_EQ(Pressed(), Keys{BoxKey::press});
        Press({1});
        LookAtBox(3);
        EXPECT_EQ(Pressed(), Keys{BoxKey::press});
        Press({14});
        LookAtBox(3);
        EXPECT_EQ(Pressed(), Keys{BoxKey::cancel});
        for (const int other : {2, 3, 4, 10}) {
            Press({other});
            LookAtBox();
        }
        EXPECT_EQ(Pressed(), Keys{});
    });
}

TEST_F(PadBoxes, WhatIsHeldWhenItOpensIsNoAnswer) {
    Start();
    Hold({{"x", 65535}, {"buttons", Json::array({1})}});
    Ask([&] {
        LookAtBox(5);
        EXPECT_EQ(Pressed(), Keys{});
        Release();
        LookAtBox();
        Press({1});
        LookAtBox();
        EXPECT_EQ(Pressed(), Keys{BoxKey::press});
    });
    // And the answer starts nothing behind it.
    Poll(3);
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Get("GameIsRunning"), false);
}

TEST_F(PadBoxes, BoxOfAPollIsAnsweredAndEndsThePoll) {
    std::filesystem::remove(testing::PathOf(tree.Path("Roms/Alpha/Bee (1991)(Maker).adf")));
    Start();
    Do("click", "Form1.Label2");
    TapStick("y", 65535);
    bool silent = false;
    Host().dialogs.onShow = [&] {
        // The pad's own timer is inside its tick.
        Poll();
        Release();
        LookAtBox();
        Press({0});
        LookAtBox();
        silent = Form().GameIsRunning;
    };
    Press({1, 2});
    Poll();
    EXPECT_TRUE(silent);
    EXPECT_EQ(Pressed(), Keys{BoxKey::press});
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
}

TEST_F(PadBoxes, ThePadsOwnTimersRestMeanwhile) {
    Start();
    Ask([&] {
        Hold({{"y", 65535}, {"buttons", Json::array({1, 2, 11})}});
        Poll(3);
        Do("call", "PollJoysticks");
    });
    EXPECT_EQ(Get("WIthoutDoubles.ListIndex"), 0);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_FALSE(session->ended);
}

TEST_F(PadBoxes, NobodyLooksWithoutDevicesOrInAnotherProgram) {
    Start();
    Ask([&] {
        session->Screen().activity = forms::WindowHost::Activity::others;
        Press({1});
        LookAtBox(2);
        session->Screen().activity = forms::WindowHost::Activity::ours;
        LookAtBox(2);
        EXPECT_EQ(Pressed(), Keys{});
    });
    Do("call", "JoystickEnable", false);
    Ask([&] { EXPECT_TRUE(Refused("tick", "Form1.BoxButtonTimer")); });
}

TEST_F(PadBoxes, OneThatComesMeanwhileAnswers) {
    Start();
    Ask([&] {
        Do("device", "clear");
        Do("device", "add", "Other", 18);
        Press({0});
        Host().controllers.changed = true;
        // The window's own timer leaves it to the box's.
        Poll();
        LookAtBox(2);
        EXPECT_EQ(Pressed(), Keys{});
        Release();
        LookAtBox();
        Press({0});
        LookAtBox();
        EXPECT_EQ(Pressed(), Keys{BoxKey::press});
    });
}

TEST_F(PadBoxes, OneOverAnother) {
    Start();
    Ask([&] {
        Host().dialogs.onShow = [&] {
            Press({1});
            LookAtBox();
        };
        Do("call", "JoystickEnable", false);
        Do("call", "JoystickEnable", true);
        session->Routines().dialogs.MessageBox("", "", platform::Buttons::Ok, platform::Icon::None);
        // The first one is still there, and wants a press of its own.
        LookAtBox(2);
        EXPECT_EQ(Pressed(), Keys{BoxKey::press});
        Host().dialogs.onShow = nullptr;
    });
}

}  // namespace
}  // namespace kivu::scenarios
