#include "hidden_directory.h"
#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

using StartUp = Scenario;
using StartUpLoaded = LoadedScenario;

TEST_F(StartUp, EmptyDirectoryGetsItsConfigAndTheProfileOfTheWindow) {
    Start();
    EXPECT_EQ(Get("EmuListbox.Text"), "No Emulator found");
    EXPECT_TRUE(tree.Exists("Config"));
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowX"), "14400");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowY"), "10200");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowTop"), "600");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowLeft"), "600");
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(StartUp, FirstReadMakesTheProfileAndTheSecondStartStoresWhatItAskedFirst) {
    Start();
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "(none)");
    Start();
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "0");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "(none)");
}

TEST_F(StartUp, FirstStartsWriteEachProfileOnce) {
    Start();
    // The program's, the skin's and the master configuration; and once a start it is tried whether
    // anything can be written.
    EXPECT_EQ(files.Writes(), 3 + 1);
    const std::string first = tree.Read("Config/Kivu.ini");
    Start();
    // What made each of the first two by being read first.
    EXPECT_EQ(files.Writes(), 5 + 2);
    EXPECT_EQ(tree.Read("Config/Kivu.ini"), first + "WindowState=0\r\n");
    EXPECT_EQ(tree.Stored("Config/Skin.ini", "BackColor"), "#0052bc");
}

TEST_F(StartUp, FirstChoiceOfAnEmulatorWritesEachProfileOnce) {
    tree.MakeDirectory("Config/Alpha/Skin");
    Start();
    Start();
    const int before = files.Writes();
    Form().EmuListbox.SetListIndex(0);
    Call("SelectEmulator", false);
    EXPECT_EQ(files.Writes() - before, 3);
}

TEST_F(StartUp, NoEmulatorSelectedLeavesAllPathsInConfig) {
    Start();
    const std::string config = tree.Path("Config/");
    EXPECT_EQ(Get("StartPfad"), config);
    EXPECT_EQ(Get("IniPath"), Get("BaseIniName"));
    EXPECT_EQ(Get("ColorsIniName"), config + "Skin.ini");
    EXPECT_EQ(Get("CacheName"), config + "Kivu_Cache.txt");
    EXPECT_EQ(Get("GlobalListName"), config + "Kivu_Global.txt");
    EXPECT_EQ(Get("FavoritenGlobalIni"), config + "Favoriten_Global.ini");
    EXPECT_EQ(Get("CurrentEmuIndex"), -1);
    EXPECT_FALSE(tree.Exists("Config/Default"));
}

TEST_F(StartUp, MasterConfigurationLiesInConfigAndOnlyWhileItIsUsed) {
    Start();
    EXPECT_EQ(Get("MasterConfigName"), tree.Path("Config/Kivu_Master.uaecfg"));
    tree.WriteProgramProfile({{"WinUAE_UseMasterConfig", "0"}});
    Start();
    EXPECT_EQ(Get("MasterConfigName"), "");
}

TEST_F(StartUp, EmulatorsAreTheSortedDirectoriesOfConfigAndFilesAreNot) {
    for (const char* name : {"beta", "Alpha", "Ärger", "zulu", "Config 10", "Config 9"})
        tree.AddEmulator(name);
    tree.Write("Config/File.txt", "x");
    kivu::testing::MakeHiddenDirectory(tree.Path("Config"));
    Start();
    const Json rows{"Alpha", "Ärger", "beta", "Config 10", "Config 9", "zulu"};
    EXPECT_EQ(Get("EmuListbox.List"), rows);
    EXPECT_EQ(Get("EmulatorLongListbox.List"), rows);
    EXPECT_EQ(Get("EmuListbox.Text"), "Select Emulator:");
    EXPECT_EQ(Get("EmuListbox.ListIndex"), -1);
}

TEST_F(StartUpLoaded, LastEmulatorComesBackWithItsListsAndThePromptStands) {
    Start();
    EXPECT_EQ(Get("EmuListbox.Text"), "Select Emulator:");
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    EXPECT_EQ(Get("WIthoutDoubles.List"), Json({"Ant (1990)(Maker)", "Bee (1991)(Maker)"}));
    EXPECT_EQ(Get("UAE_FULL.List")[2], tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"));
    EXPECT_EQ(Get("StartPfad"), tree.Path("Config/Alpha/"));
    EXPECT_EQ(Get("IniPath"), tree.Path("Config/Alpha/Kivu.ini"));
    EXPECT_EQ(Get("ColorsIniName"), tree.Path("Config/Alpha/Skin/Skin.ini"));
    EXPECT_EQ(Get("TxtRomPath.Text"), tree.Path("Roms/Alpha/"));
    EXPECT_EQ(Get("txtWinUAEExe.Text"), tree.Path("Emu/alpha"));
    EXPECT_EQ(Get("ListMode"), "2");
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_FALSE(Visible("Current_LoadingSmallBtn"));
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(StartUpLoaded, OneSettingsButtonShowsInEveryState) {
    const auto expectOne = [this](const char* shown, const char* when) {
        EXPECT_TRUE(Visible(shown)) << when;
        EXPECT_NE(Visible("SettingsBtn"), Visible("SettingsShortBtn")) << when;
    };
    Start();
    expectOne("SettingsBtn", "loaded");
    Do("click", "Form1.EmuListbox");
    expectOne("SettingsShortBtn", "choosing");
    Do("click", "Form1.Label1");
    expectOne("SettingsShortBtn", "all favourites");
    Do("key", "Form1", "Escape");
    expectOne("SettingsBtn", "left");
    Do("set", "Form1.SearchDblsTxt.Text", "ant");
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    expectOne("SettingsShortBtn", "all hits");
    Do("dblclick", "Form1.GlobalSearchList", 0);
    expectOne("SettingsBtn", "a hit opened");
    Do("click", "Form1.LoadBtn");
    expectOne("SettingsBtn", "scanned");
    int looks = 0;
    Host().events.onEvents = [&] {
        ++looks;
        expectOne(Get("ListsVisible") == true ? "SettingsBtn" : "SettingsShortBtn", "busy");
    };
    Do("dblclick", "Form1.EmuListbox", 1);
    Do("click", "Form1.LoadBtn");
    Host().events.onEvents = {};
    EXPECT_GT(looks, 0);
    expectOne("SettingsBtn", "another one loaded");
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 0);
    expectOne("SettingsShortBtn", "started");
}

TEST_F(StartUpLoaded, LastEmulatorIsComparedExactly) {
    tree.WriteProgramProfile({{"LastEmulator", "alpha"}});
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    EXPECT_EQ(Get("CurrentEmuIndex"), -1);
}

TEST_F(StartUpLoaded, DeletedLastEmulatorShowsThePromptAndNoListAndNoMessage) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    Start();
    EXPECT_EQ(Get("EmuListbox.Text"), "Select Emulator:");
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_FALSE(tree.Exists("Config/Gone"));
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), "Gone");
}

TEST_F(StartUpLoaded, QuestionMarkOnTheCommandLineShowsTheFixedBoxAndEnds) {
    options.commandLine = "game.adf -?";
    EXPECT_EQ(Start()["ended"], true);
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["text"],
              "Command Parameter: Not full supported yet!  *.adf Files should work!");
    EXPECT_EQ(Do("runs")["value"], Json::array());
}

TEST_F(StartUpLoaded, FileOnTheCommandLineIsStartedWithTheLastEmulatorAndTheProgramEnds) {
    options.commandLine = "  " + tree.Path("Roms/Beta/Cat (1992)(Maker).adf") + " ";
    EXPECT_EQ(Start()["ended"], true);
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["command"], "\"" + tree.Path("Config/Alpha/Kivu_tmp.bat") + "\"");
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr("Cat (1992)(Maker).adf'"));
    EXPECT_EQ(Do("boxes")["value"], Json::array());
}

TEST_F(StartUpLoaded, StartFromTheCommandLineWritesNoLastEmulatorAndNoGeometry) {
    tree.WriteProgramProfile({{"LastEmulator", "Beta"}, {"WindowX", "9000"}});
    options.commandLine = tree.Path("Roms/Beta/Cat (1992)(Maker).adf");
    const auto stamp = tree.Stored("Config/Kivu.ini", "LastEmulator");
    Start();
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "LastEmulator"), stamp);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowX"), "9000");
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
}

TEST_F(StartUpLoaded, MissingFileOnTheCommandLineIsToldAndTheProgramEnds) {
    options.commandLine = tree.Path("Roms/none.adf");
    EXPECT_EQ(Start()["ended"], true);
    const Json boxes = Do("boxes")["value"];
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0]["title"], "Game - File not found!");
    EXPECT_EQ(Do("runs")["value"], Json::array());
}

TEST_F(StartUpLoaded, CommandLineWaitsForTheFirstSelectionWhenThereIsNoLastEmulator) {
    tree.WriteProgramProfile({{"LastEmulator", "Gone"}});
    options.commandLine = tree.Path("Roms/Beta/Cat (1992)(Maker).adf");
    EXPECT_FALSE(Start().contains("ended"));
    Do("focus", "Form1.EmuListbox");
    const Json answer = Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(answer["ended"], true);
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(StartUpLoaded, GeometryComesBackAndSizesAreNotPlaces) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"},
                              {"WindowX", "57600,4"},
                              {"WindowY", "32400"},
                              {"WindowTop", "-15"},
                              {"WindowLeft", "30"}});
    Start();
    EXPECT_EQ(Get("Width"), 57600);
    EXPECT_EQ(Get("Height"), 32400);
    EXPECT_EQ(Get("Top"), -15);
    EXPECT_EQ(Get("Left"), 30);
}

TEST_F(StartUpLoaded, NonsenseInTheGeometryLeavesTheDesign) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"},
                              {"WindowX", "wide"},
                              {"WindowY", "-5"},
                              {"WindowState", "17"},
                              {"WindowTop", "99999999999"}});
    Start();
    EXPECT_EQ(Get("Width"), 14400);
    EXPECT_EQ(Get("Height"), 10200);
    EXPECT_EQ(Get("Top"), 600);
    EXPECT_EQ(Get("WindowState"), 0);
}

TEST_F(StartUpLoaded, ClosingMaximisedKeepsTheFormerGeometry) {
    tree.WriteProgramProfile(
        {{"LastEmulator", "Alpha"}, {"WindowX", "15000"}, {"WindowY", "11000"}});
    Start();
    Do("state", "Form1", 2);
    Do("resize", "Form1", 28800, 16200);
    EXPECT_EQ(Do("click", "Form1.ExitBtn")["ended"], true);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "2");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowX"), "15000");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowY"), "11000");
}

TEST_F(StartUpLoaded, TinyWindowKeepsTheFormerGeometry) {
    tree.WriteProgramProfile(
        {{"LastEmulator", "Alpha"}, {"WindowX", "15000"}, {"WindowY", "11000"}});
    Start();
    Do("resize", "Form1", 2000, 5000);
    Call("ExitBtn_Click");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowState"), "0");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowX"), "15000");
}

TEST_F(StartUpLoaded, ExitStoresTheWindowAndTheDrivesPanel) {
    Start();
    Do("resize", "Form1", 16000, 12000);
    Do("set", "Form1.SettingsSubPicture.Left", 1234);
    EXPECT_EQ(Do("click", "Form1.ExitBtn")["ended"], true);
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowX"), "16000");
    EXPECT_EQ(tree.Stored("Config/Kivu.ini", "WindowY"), "12000");
    EXPECT_EQ(tree.Stored("Config/Alpha/Kivu.ini", "DrvWindowX"), "1234");
}

TEST_F(StartUpLoaded, RenamedProgramStartsFreshWhileFavouritesAndSkinStay) {
    options.program = "Kivu-1.4";
    Start();
    EXPECT_EQ(Get("BaseIniName"), tree.Path("Config/Kivu-1.4.ini"));
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 0);
    EXPECT_EQ(Get("CacheName"), tree.Path("Config/Alpha/Kivu-1.4_Cache.txt"));
    EXPECT_EQ(Get("FavoritenIni"), tree.Path("Config/Alpha/Favoriten.ini"));
    EXPECT_EQ(Get("VBSFilename"), tree.Path("Config/Alpha/Startscript.vbs"));
    EXPECT_EQ(Get("ColorsIniName"), tree.Path("Config/Alpha/Skin/Skin.ini"));
}

TEST_F(StartUpLoaded, SkinAndFavouritesAreFoundInAnySpelling) {
    tree.Write("Config/Alpha/SKIN/skin.INI", ProgramDirectory::Profile({{"TitleString", "Mine"}}));
    tree.Write(
        "Config/Alpha/FAVORITEN.INI",
        "[Favoriten]\r\nFav0_Name=Bee\r\nFav0_FullPath=/Roms/Alpha/Bee (1991)(Maker).adf\r\n");
    Start();
    EXPECT_EQ(Get("FavoritenListe.List"), Json({"Bee"}));
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Mine");
    EXPECT_EQ(Get("Caption"), "Mine");
}

TEST_F(StartUpLoaded, MissingSkinDirectoryIsNotMadeForItsProfile) {
    Start();
    EXPECT_FALSE(tree.Exists("Config/Alpha/Skin"));
}

TEST_F(StartUp, EarlierInstanceComesToTheFrontAndThisOneEnds) {
    prepare = [](driver::Session& run) { run.Host().instance.earlierRuns = true; };
    EXPECT_EQ(Start()["ended"], true);
    EXPECT_FALSE(tree.Exists("Config"));
}

TEST_F(StartUp, FontSizesRunFrom8To80AndTheStoredRowIsNoSize) {
    Start();
    EXPECT_EQ(Get("FontSizeCombo.ListCount"), 73);
    EXPECT_EQ(Get("FontSizeCombo.List")[0], "Font size: 8");
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 16);
    EXPECT_EQ(Get("FontSizeCombo.Text"), "Font size: 24");
}

TEST_F(StartUp, FontRowBelowOneBecomesRow13) {
    tree.WriteProgramProfile({{"Fontsize", "0"}});
    Start();
    EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 13);
}

TEST_F(StartUp, FrameIsOffAndClockShowsHoursAndMinutes) {
    options.time = {9, 5, 59};
    Start();
    EXPECT_EQ(Get("TimeString.Caption"), "09:05");
    EXPECT_EQ(Get("HasFrame"), false);
    Do("time", "14:05:09");
    Do("tick", "Form1.Uhrzeit");
    EXPECT_EQ(Get("TimeString.Caption"), "14:05");
}

TEST_F(StartUpLoaded, HandWrittenAbsolutePathsAreTakenAsTheyStand) {
    tree.AddEmulator(
        "Alpha", {{"RomPath", tree.Path("Roms/Alpha")}, {"EmulatorPath", tree.Path("Emu/alpha")}});
    Start();
    EXPECT_EQ(Get("TxtRomPath.Text"), tree.Path("Roms/Alpha/"));
    EXPECT_EQ(Get("txtWinUAEExe.Text"), tree.Path("Emu/alpha"));
}

TEST_F(StartUpLoaded, PathsWrittenOnEitherHostAreTurned) {
    const std::string beside = std::filesystem::path(tree.Root()).parent_path().string();
    for (const std::string rest : {"\\Roms\\Alpha\r\nEmulatorPath=..\\Emu\\alpha",
                                   "/Roms/Alpha\r\nEmulatorPath=../Emu/alpha"}) {
        tree.Write("Config/Alpha/Kivu.ini", "[Settings]\r\nRomPath=" + rest + "\r\n");
        Start();
        EXPECT_EQ(Get("TxtRomPath.Text"), tree.Path("Roms/Alpha/"));
        EXPECT_EQ(Get("txtWinUAEExe.Text"), testing::HostPath(beside + "/Emu/alpha"));
    }
}

TEST_F(StartUpLoaded, NoKickstartStaysNoKickstart) {
    Start();
    EXPECT_EQ(Get("TxtKickstartRomFile.Text"), "");
}

}  // namespace
}  // namespace kivu::scenarios
