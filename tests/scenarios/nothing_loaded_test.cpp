#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

// Nothing is loaded: the window is there all the same, and finds no games in its own directory.
class NothingLoaded : public LoadedScenario {
 protected:
    void ExpectNoRescan() {
        EXPECT_EQ(Get("CurrentEmuIndex"), -1);
        EXPECT_TRUE(Visible("SettingsBtn"));
        EXPECT_FALSE(Visible("SettingsShortBtn"));
        EXPECT_EQ(Get("LoadBtn.Enabled"), false);
        EXPECT_TRUE(Refused("click", "Form1.LoadBtn"));
        const Json title = Get("Caption");
        Call("LoadBtn_Click");
        EXPECT_EQ(Get("UAE_FULL.ListCount"), 0);
        EXPECT_EQ(Get("LoadBtn.Enabled"), false);
        EXPECT_EQ(Get("Caption"), title);
        EXPECT_FALSE(tree.Exists("Config/Kivu_Cache.txt"));
        EXPECT_EQ(tree.Stored("Config/Kivu.ini", "RomCount"), "(none)");
        EXPECT_EQ(tree.Stored("Config/Kivu.ini", "Dir_Parameter"), "(none)");
    }
    void ExpectRescan() {
        EXPECT_EQ(Get("LoadBtn.Enabled"), true);
        Do("click", "Form1.LoadBtn");
        EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
        EXPECT_EQ(Get("LoadBtn.Enabled"), true);
    }
};

TEST_F(NothingLoaded, AtTheFirstStartUntilAnEmulatorIsChosen) {
    tree.WriteProgramProfile({});
    Start();
    ExpectNoRescan();
    Do("click", "Form1.EmuListbox");
    EXPECT_TRUE(Refused("click", "Form1.LoadBtn"));
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    ExpectRescan();
}

TEST_F(NothingLoaded, WithALastEmulatorThatHasGone) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    ExpectNoRescan();
    Do("click", "Form1.EmuListbox");
    Do("key", "Form1", "Escape");
    ExpectNoRescan();
}

TEST_F(NothingLoaded, WithNoEmulatorLeft) {
    std::filesystem::remove_all(tree.Path("Config/Alpha"));
    std::filesystem::remove_all(tree.Path("Config/Beta"));
    Start();
    ExpectNoRescan();
    EXPECT_EQ(Get("EmuListbox.Text"), "No Emulator found");
    Do("click", "Form1.EmuListbox");
    Do("key", "Form1", "Escape");
    EXPECT_EQ(Get("EmuListbox.Text"), "No Emulator found");
    ExpectNoRescan();
}

TEST_F(NothingLoaded, AfterAStartWithAnEmulatorEverythingIsThere) {
    Start();
    ExpectRescan();
}

}  // namespace
}  // namespace kivu::scenarios
