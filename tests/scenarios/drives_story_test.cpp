// From a click on one disk of a game to the emulator that finds them all.

#include "scenarios/drives_collection.h"

namespace kivu::scenarios {
namespace {

using DrivesStory = DrivesScenario;

constexpr const char* disk1 = "Käfer König (1990)(Maker)(Disk 1 of 3).adf";
constexpr const char* disk2 = "Käfer König (1990)(Maker)(Disk 2 of 3).adf";
constexpr const char* disk3 = "Käfer König (1990)(Maker)(Disk 3 of 3).adf";
constexpr const char* moon1 = "Moon Miner (1991)(Disk 1 of 2).adf";
constexpr const char* moon2 = "Moon Miner (1991)(Disk 2 of 2).adf";
constexpr const char* solo = "Solo Flight (1992)(Other Maker).adf";

TEST_F(DrivesStory, WhicheverDiskIsClickedTheGameStartsWithAllOfThemInOrder) {
    tree.Write("Config/Kivu_Master.uaecfg", "a=1\r\n");
    for (const int row : {0, 1, 2}) {
        Start();
        ShowFiles();
        Do("select", list, row);
        EXPECT_EQ(Disks(), Json({disk1, disk2, disk3, "", ""})) << row;
        Do("key", list, "Enter");
        EXPECT_EQ(StartConfiguration(), "\r\na=1\r\n" + FloppyLine(0, disk1) +
                                            FloppyLine(1, disk2) + FloppyLine(2, disk3));
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 1U);
    }
}

TEST_F(DrivesStory, SimpleListStartsTheFirstDiskWithWhatTheOtherDrivesStillHold) {
    tree.Write("Config/Kivu_Master.uaecfg", "a=1\r\n");
    Start();
    ShowFiles();
    Do("select", list, 3);
    ShowGames();
    Do("dblclick", "Form1.WIthoutDoubles", 0);
    EXPECT_EQ(StartConfiguration(), "\r\na=1\r\n" + FloppyLine(0, disk1) + FloppyLine(1, moon2));
}

TEST_F(DrivesStory, ClickOnAFileEmptiesWhatTheSimpleListHasLeft) {
    Start();
    ShowFiles();
    Do("select", list, 2);
    ShowGames();
    Do("select", "Form1.WIthoutDoubles", 2);
    EXPECT_EQ(Disks(), Json({solo, disk2, disk3, "", ""}));
    ShowFiles();
    Do("select", list, 5);
    EXPECT_EQ(Disks(), Json({solo, "", "", "", ""}));
    EXPECT_EQ(Get("Check_Dfx(1).ToolTipText"), "");
}

TEST_F(DrivesStory, FirstReaderDecidesThatAFreshProfileSelectsBySimilarity) {
    tree.AddEmulator("Amiga", {{"RomPath", "/Roms/Amiga"}, {"EmulatorPath", "/Emu/uae"}});
    Start();
    EXPECT_EQ(tree.Stored("Config/Amiga/Kivu.ini", "SmartRomSelection"), "1");
    ShowFiles();
    Do("select", list, 4);
    EXPECT_EQ(Disks(), Json({moon1, moon2, "", "", ""}));
}

TEST_F(DrivesStory, HitOfASearchCountsAsAClickOnItsGameInTheSimpleList) {
    Start();
    ShowFiles();
    Do("select", list, 3);
    // The search selects the hit in the simple list, and that list's click does the rest.
    Do("type", "Form1.SearchDblsTxt", "solo");
    ASSERT_GT(Get("SuchErgList.ListCount"), 0);
    Do("select", "Form1.SuchErgList", 0);
    EXPECT_EQ(Get("UAE_Short.ListIndex"), 5);
    EXPECT_EQ(Disks(), Json({solo, moon2, "", "", ""}));
    EXPECT_EQ(Ticks(), Json({1, 0, 0, 0, 0}));
}

TEST_F(DrivesStory, FavouriteBringsItsOtherDisksAndMarksTheirRows) {
    tree.Write("Config/Amiga/Favoriten.ini", "[Favoriten]\r\nFav0_Name=Moon\r\nFav0_FullPath=" +
                                                 tree.Path("Roms/Amiga/") + moon2 + "\r\n");
    Start();
    Do("click", "Form1.Label1");
    Do("select", "Form1.FavoritenListe", 0);
    EXPECT_EQ(Disks()[0], moon1);
    EXPECT_EQ(Disks()[1], moon2);
    EXPECT_EQ(Get("UAE_Short.Selected"), Json({3, 4}));
    EXPECT_EQ(Get("UAE_FULL.ListIndex"), 4);
}

TEST_F(DrivesStory, SixDisksFillFiveDrives) {
    ProgramDirectory::Settings images;
    for (int disk = 1; disk <= 6; ++disk) {
        const std::string name = "Big Game (1993)(Disk " + std::to_string(disk) + " of 6).adf";
        tree.Write("Roms/Amiga/" + name, "x");
        images.push_back({"/Roms/Amiga/" + name, "Big Game (1993)"});
    }
    tree.WriteCache("Amiga", images);
    Start();
    ShowFiles();
    // From four rows in front of the clicked one.
    Do("select", list, 5);
    EXPECT_EQ(Disks()[0], "Big Game (1993)(Disk 2 of 6).adf");
    EXPECT_EQ(Disks()[4], "Big Game (1993)(Disk 6 of 6).adf");
    Do("select", list, 0);
    EXPECT_EQ(Disks()[4], "Big Game (1993)(Disk 5 of 6).adf");
    EXPECT_EQ(Get("DiskSlots")[5], "");
}

TEST_F(DrivesStory, RescanLeavesTheDrives) {
    Start();
    ShowFiles();
    Do("select", list, 3);
    const Json before = Disks();
    Do("click", "Form1.LoadBtn");
    EXPECT_EQ(Disks(), before);
}

TEST_F(DrivesStory, HandsReachTheEmulatorByItsCommandLine) {
    WriteProfile({{"SmartRomSelection", "0"}, {"EmulatorParameterAddDiskPath", "1"}});
    tree.Write("Config/Kivu_Master.uaecfg", "a=1\r\n");
    Start();
    EXPECT_TRUE(Visible("SettingsSubPicture"));
    ShowFiles();
    Do("select", list, 3);
    Do("select", list, 4, "ctrl");
    Do("key", list, "Enter");
    EXPECT_EQ(StartConfiguration(), "\r\na=1\r\n");
    EXPECT_NE(tree.Read("Config/Amiga/Kivu_tmp.bat").find(moon2), std::string::npos);
}

}  // namespace
}  // namespace kivu::scenarios
