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

TEST_F(NothingLoaded, WithALastEmulatorThatHasGoneTheWindowIsDressedAllTheSame) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}, {"Fontsize", "20"}});
    Start();
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_EQ(Get("FontSizeCombo.ListCount"), 73);
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 20);
    EXPECT_EQ(Get("WIthoutDoubles.FontSize"), 15);
    EXPECT_EQ(Text("BackColor"), "#0052BC");
    EXPECT_EQ(Text("Label2.BackColor"), "#0052BC");
    EXPECT_EQ(Text("SearchDblsTxt.BackColor"), "#FFFFFF");
    EXPECT_EQ(Text("SearchDblsTxt.ForeColor"), "#0052BC");
    EXPECT_EQ(Text("FavoritenListe.BackColor"), "#E0FFF1");
    EXPECT_FALSE(tree.Exists("Config/Gone"));
    // A size that no row has is the usual one.
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}, {"Fontsize", "-1"}});
    Start();
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 13);
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
