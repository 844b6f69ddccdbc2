#include "scenarios/pad.h"

namespace kivu::scenarios {
namespace {

// The choice among emulators by the pad.
class PadEmulators : public PadScenario {
 protected:
    PadEmulators() {
        tree.AddEmulator("Gamma");
        tree.WriteCache("Gamma", {{"/Roms/Gamma/Dog (1993).adf", "Dog (1993)"}});
    }
};

TEST_F(PadEmulators, IsOpenedWalkedThroughAndLoadedFrom) {
    Start();
    Tap(2);
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("ListMode"), "5");
    EXPECT_EQ(Focus(), 5);
    TapStick("x", 65535);
    EXPECT_EQ(Focus(), 5);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
    TapStick("y", 65535);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    EXPECT_EQ(Get("EmulatorLongListbox.ListIndex"), 1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    Tap(1);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "Beta");
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Focus(), 2);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    // The next step down is one in the list.
    TapStick("y", 65535);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
}

TEST_F(PadEmulators, IsLeftByTheSameButton) {
    Start();
    Tap(2);
    TapStick("y", 65535);
    Tap(2);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Focus(), 2);
    EXPECT_TRUE(Visible("WIthoutDoubles"));
}

TEST_F(PadEmulators, UpAndDownEndAtTheEnds) {
    Start();
    Tap(2);
    Push("y", 65535);
    Poll(5);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 2);
    Push("y", 0);
    Poll(5);
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
    EXPECT_EQ(Get("EmuListbox.Text"), "Alpha");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_FALSE(Form().EmuListBrowsing);
}

// A row clicked with the mouse has given the long list the keys.
TEST_F(PadEmulators, StepsLeaveTheKeysWithTheLongList) {
    Start();
    Tap(2);
    Do("select", "Form1.EmulatorLongListbox", 1);
    for (const int place : {65535, 0}) {
        TapStick("y", place);
        EXPECT_TRUE(Visible("EmulatorLongListbox"));
        EXPECT_NE(Get("Focus"), "") << place;
    }
    EXPECT_EQ(Get("EmuListbox.ListIndex"), 1);
    Do("key", "Form1", "Escape");
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
}

// Put away for a moment, the long list loses the keyboard.
TEST_F(PadEmulators, AStepFromTheLongListLeavesTheKeyboardSomewhere) {
    for (const int direction : {65535, 0}) {
        Start();
        Do("click", "Form1.EmuListbox");
        Do("key", "Form1", "Tab");
        ASSERT_EQ(Get("Focus"), "Form1.EmulatorLongListbox");
        TapStick("y", direction);
        EXPECT_NE(Get("Focus"), "") << direction;
        EXPECT_TRUE(Visible("EmulatorLongListbox")) << direction;
        EXPECT_EQ(Focus(), 5) << direction;
    }
}

TEST_F(PadEmulators, SelectKeepsTheChoiceOpen) {
    Start();
    Tap(2);
    TapStick("y", 65535);
    Tap(0);
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Focus(), 5);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
}

// With the mouse the focus may still be said to be another list's.
TEST_F(PadEmulators, StartInTheOpenChoiceNeverStartsAHiddenGame) {
    Start();
    Do("click", "Form1.EmuListbox");
    Do("set", "Form1.JoystickFocus", 2);
    Tap(1);
    EXPECT_TRUE(Do("runs")["value"].empty());
    EXPECT_EQ(Get("GameIsRunning"), false);
}

TEST_F(PadEmulators, HeldStartDoesNotStartTheNewEmulatorsGame) {
    Start();
    Tap(2);
    TapStick("y", 65535);
    Press({1});
    Poll(4);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
    EXPECT_TRUE(Do("runs")["value"].empty());
    Release();
    Poll();
    Tap(1);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(PadEmulators, LongStepsLeaveTheChoiceAlone) {
    Start();
    Tap(2);
    for (const int button : {4, 5, 6, 7, 8, 9, 10}) {
        Tap(button);
        EXPECT_EQ(Get("EmuListbox.ListIndex"), 0);
        EXPECT_TRUE(Visible("EmulatorLongListbox"));
        EXPECT_EQ(Focus(), 5);
    }
}

TEST_F(PadEmulators, TheStepAloneLoadsNothing) {
    Start();
    Form().EmuListBrowsing = true;
    Form().EmuListbox.SetListIndex(1);
    Call("SelectEmulator", false);
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    Form().EmuListBrowsing = false;
    Call("SelectEmulator", false);
    EXPECT_EQ(Get("CurrentEmuIndex"), 1);
}

// What closes the choice leads on to a list: a step down must not open it again.
TEST_F(PadEmulators, ASearchOutOfTheChoiceLeavesThePadInAList) {
    Start();
    Do("click", "Form1.EmuListbox");
    Do("key", "Form1", "a");
    Do("key", "Form1", "n");
    Do("click", "Form1.SearchAllBtn");
    ASSERT_TRUE(Visible("GlobalSearchList"));
    TapStick("y", 65535);
    EXPECT_FALSE(Visible("EmulatorLongListbox"));
    EXPECT_TRUE(Visible("GlobalSearchList"));
}

}  // namespace
}  // namespace kivu::scenarios
