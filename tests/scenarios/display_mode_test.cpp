// The display mode: set at the start and with each emulator, put back when one is killed.
#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

Json Mode(int width, int height, int bits, int frequency) {
    return {{"width", width}, {"height", height}, {"bits", bits}, {"frequency", frequency}};
}
const Json fixed = Mode(800, 600, 16, 60);
const Json desktop = Mode(1920, 1080, 32, 60);

class DisplayMode : public LoadedScenario {
 protected:
    DisplayMode() {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"ResetScreenResolution", "1"}});
    }
    // The changes asked for since last asked.
    Json Sent() {
        const Json sent = Do("display")["value"]["changes"];
        Host().display.sent.clear();
        return sent;
    }
    void RunBee() {
        LaunchBee();
        EmulatorComesUp();
        Do("tick", "Form1.EmuActiveTimer");
    }
};

TEST_F(DisplayMode, TheStartSetsTheFixedModeAndAKillPutsTheDesktopsBack) {
    Start();
    EXPECT_EQ(Sent(), Json::array({fixed}));
    EXPECT_EQ(Get("SavedMode"), desktop);
    EXPECT_EQ(Get("LastMode"), fixed);
    EXPECT_EQ(Get("Printed"), "800x600x16x60");
    RunBee();
    EXPECT_EQ(Sent(), Json::array());
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Sent(), Json::array({desktop}));
    EXPECT_EQ(Get("Printed"), "1920x1080x32x60");
    // The second click finds no process.
    Call("AppRunningPicture_Click");
    EXPECT_EQ(Sent(), Json::array());
}

TEST_F(DisplayMode, AfterASwitchAKillSendsTheFixedMode) {
    Start();
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Text("IniPath"), tree.Path("Config/Beta/Kivu.ini"));
    EXPECT_EQ(Sent(), Json::array({fixed, fixed}));
    EXPECT_EQ(Get("SavedMode"), fixed);
    Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    Do("process", "add", "beta", 4711);
    Do("tick", "Form1.EmuActiveTimer");
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Sent(), Json::array({fixed}));
}

// What a killed emulator has left on the screen is repaired.
TEST_F(DisplayMode, ARefusedModeLeavesTheDesktopsToBePutBack) {
    prepare = [](driver::Session& one) { one.Host().display.accepts = false; };
    Start();
    EXPECT_EQ(Get("SavedMode"), desktop);
    RunBee();
    Do("display", "set", Json{{"width", 640}, {"height", 480}, {"accepts", true}});
    Sent();
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Sent(), Json::array({desktop}));
    const Json now = Do("display")["value"];
    EXPECT_EQ(now["width"], 1920);
    EXPECT_EQ(now["bits"], 32);
}

TEST_F(DisplayMode, OffNothingIsEverSent) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"ResetScreenResolution", "0"}});
    Start();
    RunBee();
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Sent(), Json::array());
    EXPECT_EQ(Get("Printed"), "");
}

TEST_F(DisplayMode, OnlyTheKillByThePictureSendsIt) {
    Start();
    Sent();
    // A normal end of the game.
    RunBee();
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 4);
    EXPECT_EQ(Get("GameIsRunning"), false);
    EXPECT_EQ(Sent(), Json::array());
    // The button that ends an emulator of an earlier start.
    EmulatorComesUp();
    Do("answer", "Yes");
    Call("LoadingBtn_Click");
    EXPECT_EQ(Do("kills")["value"], Json::array({4711}));
    EXPECT_EQ(Sent(), Json::array());
}

TEST_F(DisplayMode, TheProgramsEndSendsNothing) {
    Start();
    Sent();
    Do("click", "Form1.ExitBtn");
    EXPECT_TRUE(session->ended);
    EXPECT_EQ(Host().display.sent.size(), 0U);
}

TEST_F(DisplayMode, WithoutAScreenItHasNoEffect) {
    prepare = [](driver::Session& one) { one.Host().display.current.reset(); };
    Start();
    EXPECT_EQ(Sent(), Json::array());
    RunBee();
    Do("click", "Form1.AppRunningPicture");
    EXPECT_EQ(Sent(), Json::array());
}

TEST_F(DisplayMode, WhatIsNotGivenIsWhatWasAskedForLast) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    Start();
    Call("ChangeDisplayMode", 1024, 768, 0, 0);
    Call("ChangeDisplayMode", 0, 0, 32, 0);
    Call("ChangeDisplayMode", 0, 0, 0, 75);
    // Any other mix sends the values of the change before.
    Call("ChangeDisplayMode", 640, 0, 0, 0);
    Call("ChangeDisplayMode", 0, 0, 0, 0);
    Call("RestoreDisplayMode");
    EXPECT_EQ(Sent(), Json::array({Mode(1024, 768, 0, 0), Mode(1024, 768, 32, 0),
                                   Mode(1024, 768, 32, 75), Mode(1024, 768, 32, 75)}));
    Call("SaveAndSetDisplayMode");
    EXPECT_EQ(Get("Printed"), "800x600x16x60");
    EXPECT_EQ(Get("SavedMode"), Mode(1024, 768, 32, 75));
    Call("RestoreDisplayMode");
    EXPECT_EQ(Get("LastMode"), Mode(1024, 768, 32, 75));
}

TEST_F(DisplayMode, TheScreenTakesOnlyWhatAScreenHas) {
    Start();
    EXPECT_TRUE(Refused("display", "set", Json{{"depth", 3}}));
    EXPECT_TRUE(Refused("display", "set"));
    EXPECT_TRUE(Refused("display", "get", Json::object()));
    EXPECT_TRUE(Refused("set", "Form1.Printed", "x"));
}

}  // namespace
}  // namespace kivu::scenarios
