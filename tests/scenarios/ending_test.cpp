// What ends the launcher besides its own button: a panel, a signal, the end of the session.

#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

class Ending : public LoadedScenario {
 protected:
    static constexpr int moments = 40;  // more than any of these commands has

    // Somewhere else than any profile has them.
    void MoveAll() {
        Do("resize", "Form1", 15000, 10500);
        Do("set", "Form1.Left", 1500);
        Do("set", "Form1.SettingsSubPicture.Left", 3210);
        Do("set", "Form1.SettingsSubPicture.Top", 4320);
    }
    std::string Program(const char* key) { return tree.Stored("Config/Kivu.ini", key); }
    std::string Alpha(const char* key) { return tree.Stored("Config/Alpha/Kivu.ini", key); }
    void ExpectStored(const char* when) {
        EXPECT_EQ(Program("WindowState"), "0") << when;
        EXPECT_EQ(Program("WindowX"), "15000") << when;
        EXPECT_EQ(Program("WindowY"), "10500") << when;
        EXPECT_EQ(Program("WindowLeft"), "1500") << when;
        EXPECT_EQ(Alpha("DrvWindowX"), "3210") << when;
        EXPECT_EQ(Alpha("DrvWindowY"), "4320") << when;
    }
    // The command, with a signal when it lets events run for the n-th time.
    template <typename... Arguments>
    Json SignalAmong(int n, Arguments... command) {
        Do("meanwhile", "events", n, Json::array({"signal"}));
        return Do(command...);
    }
};

TEST_F(Ending, PanelAsksAsEscapeDoes) {
    Start();
    Do("key", "Form1", "Escape");
    const Json byKey = Do("boxes")["value"];
    ASSERT_EQ(byKey.size(), 1U);
    const Json answer = Do("close", "Form1");
    EXPECT_EQ(answer["value"], false);
    EXPECT_FALSE(answer.contains("ended"));
    EXPECT_EQ(Do("boxes")["value"], byKey);
    EXPECT_EQ(Do("beeps")["value"], 0);
    MoveAll();
    Do("answer", "OK");
    EXPECT_EQ(Do("close", "Form1")["ended"], true);
    ExpectStored("by the panel");
}

TEST_F(Ending, PanelAsksInTheOpenChoiceToo) {
    Start();
    Do("click", "Form1.EmuListbox");
    Do("close", "Form1");
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
}

TEST_F(Ending, PanelLeavesTheGameAlone) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    Do("kills");
    Do("boxes");
    Do("answer", "OK");
    EXPECT_EQ(Do("close", "Form1")["ended"], true);
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
    EXPECT_EQ(Do("kills")["value"], Json::array());
}

TEST_F(Ending, PanelWaitsForTheAnswerToAnotherQuestion) {
    Start();
    Do("meanwhile", "box", 1, Json::array({"close", "Form1"}));
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
}

TEST_F(Ending, SignalStoresAndAsksNothing) {
    Start();
    MoveAll();
    EXPECT_EQ(Do("signal")["ended"], true);
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    ExpectStored("by a signal");
}

TEST_F(Ending, SignalLeavesTheGameAlone) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    MoveAll();
    Do("kills");
    EXPECT_EQ(Do("signal")["ended"], true);
    EXPECT_EQ(Do("kills")["value"], Json::array());
    ExpectStored("while a game runs");
}

TEST_F(Ending, SignalComesWhileABoxIsOpen) {
    Start();
    MoveAll();
    Do("meanwhile", "box", 1, Json::array({"signal"}));
    EXPECT_EQ(Do("key", "Form1", "Escape")["ended"], true);
    ExpectStored("with a box open");
}

TEST_F(Ending, SignalComesWhileAModalWindowIsOpen) {
    Start();
    MoveAll();
    session->Screen().onModal = [&](forms::Form&, const std::function<bool()>&) { Do("signal"); };
    EXPECT_EQ(Do("call", "FileOpenDialog", tree.Root(), "", "*.adf")["ended"], true);
    ExpectStored("with the dialog for files open");
}

TEST_F(Ending, SignalComesInTheMiddleOfARescan) {
    for (int n = 1; n < moments; ++n) {
        Start();
        MoveAll();
        if (SignalAmong(n, "click", "Form1.LoadBtn")["meanwhile"].empty()) break;
        ExpectStored("in a rescan");
    }
}

TEST_F(Ending, SignalComesInTheMiddleOfALaunch) {
    for (int n = 1; n < moments; ++n) {
        Start();
        MoveAll();
        Do("click", "Form1.Label3");
        if (SignalAmong(n, "dblclick", "Form1.UAE_Short", 2)["meanwhile"].empty()) break;
        ExpectStored("in a launch");
    }
}

// The profile's paths are those of the new emulator long before its drives stand.
TEST_F(Ending, SignalInTheMiddleOfASwitchTakesNoDrivesToAnotherProfile) {
    tree.Write("Config/Beta/Kivu.ini", tree.Read("Config/Beta/Kivu.ini") +
                                           "DrvWindowX=2222\r\nDrvWindowY=3333\r\n"
                                           "DrvWindowDocked=0\r\n");
    int turns = 0;
    for (int n = 1; n < moments; ++n) {
        Start();
        MoveAll();
        if (SignalAmong(n, "dblclick", "Form1.EmuListbox", 1)["meanwhile"].empty()) break;
        ++turns;
        EXPECT_EQ(tree.Stored("Config/Beta/Kivu.ini", "DrvWindowX"), "2222") << n;
        EXPECT_EQ(tree.Stored("Config/Beta/Kivu.ini", "DrvWindowY"), "3333") << n;
        EXPECT_EQ(Program("WindowX"), "15000") << n;
        tree.Write("Config/Kivu.ini", "[Settings]\r\nLastEmulator=Alpha\r\n");
    }
    EXPECT_GT(turns, 2);
}

TEST_F(Ending, SignalKeepsTheGeometryOfAMaximisedWindow) {
    Start();
    MoveAll();
    Do("session");
    Do("state", "Form1", 2);
    Do("resize", "Form1", 28800, 16200);
    EXPECT_EQ(Do("signal")["ended"], true);
    EXPECT_EQ(Program("WindowState"), "2");
    EXPECT_EQ(Program("WindowX"), "15000");
}

TEST_F(Ending, MinimisedWindowComesBackAsItWasBefore) {
    for (const int state : {0, 2}) {
        Start();
        Do("state", "Form1", state);
        Do("session");
        Do("state", "Form1", 1);
        EXPECT_EQ(Do("signal")["ended"], true);
        EXPECT_EQ(Program("WindowState"), std::to_string(state));
    }
}

TEST_F(Ending, SessionThatIsCalledOffGoesOn) {
    Start();
    MoveAll();
    EXPECT_FALSE(Do("session").contains("ended"));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    ExpectStored("by the session");
    Do("resize", "Form1", 16000, 10500);
    EXPECT_FALSE(Do("close", "Form1").contains("ended"));
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
    Do("answer", "OK");
    Do("close", "Form1");
    EXPECT_EQ(Program("WindowX"), "16000");
}

TEST_F(Ending, SecondSignalFindsNothingToDo) {
    Start();
    MoveAll();
    EXPECT_EQ(Do("signal")["ended"], true);
    EXPECT_TRUE(Refused("signal"));
    ExpectStored("twice");
}

}  // namespace
}  // namespace kivu::scenarios
