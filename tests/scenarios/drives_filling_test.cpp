#include "scenarios/drives_collection.h"

namespace kivu::scenarios {
namespace {

using DrivesFilling = DrivesScenario;

constexpr const char* disk1 = "Käfer König (1990)(Maker)(Disk 1 of 3).adf";
constexpr const char* disk2 = "Käfer König (1990)(Maker)(Disk 2 of 3).adf";
constexpr const char* disk3 = "Käfer König (1990)(Maker)(Disk 3 of 3).adf";
constexpr const char* moon1 = "Moon Miner (1991)(Disk 1 of 2).adf";
constexpr const char* moon2 = "Moon Miner (1991)(Disk 2 of 2).adf";
constexpr const char* solo = "Solo Flight (1992)(Other Maker).adf";

TEST_F(DrivesFilling, StartSelectsTheFirstGameAndFillsOneDrive) {
    Start();
    EXPECT_EQ(Get("UAE_Short.MultiSelect"), true);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 0);
    EXPECT_EQ(Disks(), Json({disk1, "", "", "", ""}));
}

TEST_F(DrivesFilling, ClickOnOneDiskBringsTheOthersInListOrder) {
    Start();
    ShowFiles();
    Do("select", list, 1);
    EXPECT_EQ(Disks(), Json({disk1, disk2, disk3, "", ""}));
    EXPECT_EQ(Ticks(), Json({1, 1, 1, 0, 0}));
    EXPECT_EQ(Get("Check_Dfx(1).ToolTipText"), disk2);
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({1}));
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 1);
    EXPECT_TRUE(Visible("AddToFavorit"));
    EXPECT_TRUE(Visible("AddToFavorit_Global"));
    Do("select", list, 4);
    EXPECT_EQ(Disks(), Json({moon1, moon2, "", "", ""}));
    Do("select", list, 5);
    EXPECT_EQ(Disks(), Json({solo, "", "", "", ""}));
}

TEST_F(DrivesFilling, ArrowKeysFillAsClicksDo) {
    Start();
    ShowFiles();
    Do("select", list, 2);
    Do("key", list, "Down");
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 3);
    EXPECT_EQ(Disks(), Json({moon1, moon2, "", "", ""}));
}

TEST_F(DrivesFilling, CtrlClickChoosesNoSecondRowInTheSmartSelection) {
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("select", list, 4, "ctrl");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({4}));
    EXPECT_EQ(Disks(), Json({moon1, moon2, "", "", ""}));
}

TEST_F(DrivesFilling, RowSelectedByTheProgramLeavesTheDrives) {
    Start();
    ShowFiles();
    Do("select", list, 1);
    ShowGames();
    const Json before = Disks();
    Do("set", "Form1.UAE_Short.ListIndex", 5);
    EXPECT_EQ(Disks(), before);
    EXPECT_NE(Get("UAE_FULL.ListIndex"), 5);
}

TEST_F(DrivesFilling, GameOfOneDiskLeavesTheSecondDiskOfTheGameBefore) {
    Start();
    ShowFiles();
    Do("select", list, 3);
    ShowGames();
    Do("select", "Form1.WIthoutDoubles", 2);
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 5);
    EXPECT_EQ(Disks(), Json({solo, moon2, "", "", ""}));
    // The simple list is wide: its boxes show one disk.
    EXPECT_EQ(Ticks(), Json({1, 0, 0, 0, 0}));
    EXPECT_EQ(Get("DoublesListBusy"), false);
}

TEST_F(DrivesFilling, ClickInTheSimpleListTakesTheFoundFileAlone) {
    Start();
    ShowGames();
    Do("select", "Form1.WIthoutDoubles", 1);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 3);
    EXPECT_EQ(Disks()[0], moon1);
    EXPECT_EQ(Disks()[1], "");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({3}));
}

TEST_F(DrivesFilling, AnotherEmulatorLeavesTheDrives) {
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    ASSERT_EQ(Get("EmuListbox.Text"), "Zed");
    EXPECT_EQ(Disks()[1], disk2);
    EXPECT_EQ(Disks()[2], disk3);
}

TEST_F(DrivesFilling, RowsChosenByHandTickBoxesOverEmptyDrives) {
    WriteProfile({{"SmartRomSelection", "0"}});
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("select", list, 4, "ctrl");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({0, 4}));
    EXPECT_EQ(Ticks(), Json({1, 1, 0, 0, 0}));
    EXPECT_EQ(Get("Check_Dfx(1).ToolTipText"), moon2);
    EXPECT_EQ(Disks(), Json({"", "", "", "", ""}));
    Do("select", list, 2, "shift");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({2, 3, 4}));
    EXPECT_EQ(Ticks(), Json({1, 1, 1, 0, 0}));
}

TEST_F(DrivesFilling, RowsCanBeChosenByKeysAlone) {
    WriteProfile({{"SmartRomSelection", "0"}});
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("key", list, "Shift+Down");
    Do("key", list, "Ctrl+Down");
    Do("key", list, "Ctrl+Down");
    Do("key", list, "Space");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({0, 1, 3}));
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 3);
    EXPECT_EQ(Get("ListMode"), "3");
    EXPECT_EQ(Ticks(), Json({1, 1, 1, 0, 0}));
    Do("key", list, "Space");
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({0, 1}));
    EXPECT_EQ(Ticks(), Json({1, 1, 0, 0, 0}));
}

TEST_F(DrivesFilling, SixthRowByHandBeepsAndSaysThatNoDriveIsLeft) {
    WriteProfile({{"SmartRomSelection", "0"}});
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("select", list, 4, "shift");
    Do("beeps");
    EXPECT_EQ(Ticks(), Json({1, 1, 1, 1, 1}));
    Do("select", list, 5, "ctrl");
    EXPECT_EQ(Do("beeps")["value"], 1);
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "No empty drive");
    EXPECT_EQ(Ticks(), Json({1, 1, 1, 1, 1}));
    EXPECT_EQ(Get("Check_Dfx(4).ToolTipText"), moon2);
}

TEST_F(DrivesFilling, GermanUserReadsThatNoDriveIsLeft) {
    options.language = "German";
    WriteProfile({{"SmartRomSelection", "0"}});
    Start();
    ShowFiles();
    Do("select", list, 0);
    Do("select", list, 5, "shift");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Keine Laufw. mehr frei");
}

TEST_F(DrivesFilling, BoxOfAnEmptyDriveCannotBeTicked) {
    Start();
    ShowFiles();
    Do("select", list, 3);
    Do("click", "Form1.Check_Dfx(4)");
    EXPECT_EQ(Ticks(), Json({1, 1, 0, 0, 0}));
    Do("key", "Form1.Check_Dfx(3)", "Space");
    EXPECT_EQ(Ticks(), Json({1, 1, 0, 0, 0}));
    // A filled box is a display: without its tick the disk stays.
    Do("click", "Form1.Check_Dfx(1)");
    EXPECT_EQ(Ticks(), Json({1, 0, 0, 0, 0}));
    EXPECT_EQ(Disks()[1], moon2);
    Do("key", "Form1.Check_Dfx(1)", "Space");
    EXPECT_EQ(Ticks(), Json({1, 1, 0, 0, 0}));
}

TEST_F(DrivesFilling, RoutineCanBeCalledByItsName) {
    Start();
    ShowFiles();
    Do("select", list, 4);
    Call("SelectSimilarDisks", 4, 4, 14, 2);
    EXPECT_EQ(Disks(), Json({moon1, moon2, "", "", ""}));
    Do("set", "Form1.DiskSlots", Json({"", "/a", "", "", "", ""}));
    Do("set", "Form1.Check_Dfx(0).Value", 1);
    Call("Check_Dfx_MouseUp", 0);
    Call("Check_Dfx_MouseUp", 1);
    EXPECT_EQ(Ticks(), Json({0, 1, 0, 0, 0}));
}

}  // namespace
}  // namespace kivu::scenarios
