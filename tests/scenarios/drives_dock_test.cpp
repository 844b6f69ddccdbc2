#include <algorithm>

#include "scenarios/drives_collection.h"

namespace kivu::scenarios {
namespace {

class DrivesDock : public DrivesScenario {
 protected:
    int Number(const std::string& name) { return Get(name).get<int>(); }
    bool AtHome() {
        return Number("SettingsSubPicture.Left") == Number("SettingsFrame.Left") + 100 &&
               Number("SettingsSubPicture.Top") > Number("AddToFavorit.Top") &&
               Number("SettingsSubPicture.Left") == Number("AddToFavorit.Left");
    }
    void Choose(const char* name) {
        Do("focus", "Form1.EmuListbox");
        const std::vector<std::string> rows = Get("EmulatorLongListbox.List");
        const auto row = std::find(rows.begin(), rows.end(), name) - rows.begin();
        Do("dblclick", "Form1.EmulatorLongListbox", static_cast<int>(row));
    }
    std::string Docked(const char* emulator = "Amiga") {
        return tree.Stored(std::string("Config/") + emulator + "/Kivu.ini", "DrvWindowDocked");
    }
};

TEST_F(DrivesDock, PanelIsAtHomeAfterAnotherSizeAndAnotherEmulator) {
    Start();
    EXPECT_TRUE(AtHome());
    Do("state", "Form1", 2);
    Do("resize", "Form1", 28800, 16200);
    Choose("Zed");
    EXPECT_TRUE(AtHome());
    Choose("Amiga");
    EXPECT_TRUE(AtHome());
    // A place that was only read is nobody's wish.
    EXPECT_EQ(Docked(), "(none)");
    Do("click", "Form1.ExitBtn");
    EXPECT_EQ(Docked(), "1");
    Start();
    EXPECT_TRUE(AtHome());
}

TEST_F(DrivesDock, DraggedPanelStaysForItsEmulatorAndTheOtherHasItsOwn) {
    Start();
    Do("drag", "Form1.SettingsSubPicture", "Form1", 3000, 4000, 10, 20);
    const int left = Number("SettingsSubPicture.Left"), top = Number("SettingsSubPicture.Top");
    ASSERT_FALSE(AtHome());
    Do("click", "Form1.ExitBtn");
    EXPECT_EQ(Docked(), "0");
    Start();
    Do("resize", "Form1", 20000, 12000);
    EXPECT_EQ(Number("SettingsSubPicture.Left"), left);
    EXPECT_EQ(Number("SettingsSubPicture.Top"), top);
    Choose("Zed");
    EXPECT_TRUE(AtHome());
    Choose("Amiga");
    EXPECT_EQ(Number("SettingsSubPicture.Left"), left);
    EXPECT_EQ(Number("SettingsSubPicture.Top"), top);
}

TEST_F(DrivesDock, PlaceWithoutTheKeyCountsWhereNothingElseIs) {
    WriteProfile({{"DrvWindowX", "400"}, {"DrvWindowY", "3000"}});
    Start();
    EXPECT_TRUE(AtHome());
    WriteProfile({{"DrvWindowX", "400"}, {"DrvWindowY", "20"}});
    Start();
    EXPECT_EQ(Number("SettingsSubPicture.Left"), 400);
    EXPECT_EQ(Number("SettingsSubPicture.Top"), 20);
    WriteProfile({{"DrvWindowX", "400"}, {"DrvWindowY", "3000"}, {"DrvWindowDocked", "0"}});
    Start();
    EXPECT_EQ(Number("SettingsSubPicture.Top"), 3000);
    WriteProfile({{"DrvWindowX", "400"}, {"DrvWindowY", "20"}, {"DrvWindowDocked", "1"}});
    Start();
    EXPECT_TRUE(AtHome());
}

}  // namespace
}  // namespace kivu::scenarios
