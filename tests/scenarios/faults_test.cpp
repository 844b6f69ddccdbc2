#include "scenarios/faults.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

TEST_F(Faults, DirectoryThatCannotBeReadIsDropped) {
    tree.Write("Roms/Alpha/Sub/Dog (1993)(Maker).adf");
    files.OnlyFor(testing::HostPath("/Roms/Alpha/Sub"));
    files.FailFrom(testing::FaultyFileSystem::Step::List, 1, std::errc::permission_denied);
    Start();
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 3);
    files.OnlyFor(testing::HostPath("/Roms/Alpha"));
    Scan();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 0);
    ExpectUsable();
}

TEST_F(Faults, DirectoryThatVanishesDuringTheScanIsDropped) {
    for (int i = 0; i < 20; ++i)
        tree.Write("Roms/Alpha/" + std::to_string(i) + "/x.adf");
    Start();
    Host().clock.perLook = std::chrono::milliseconds(50);
    int turns = 0;
    Host().events.onEvents = [&] {
        if (++turns == 4) std::filesystem::remove_all(tree.Path("Roms/Alpha"));
    };
    Scan();
    Host().events.onEvents = nullptr;
    ExpectUsable();
}

TEST_F(Faults, FullDiskKeepsTheOldCacheAndTheNewLists) {
    tree.Write("Roms/Alpha/Dog (1993)(Maker).adf");
    Start();
    const std::string before = tree.Read("Config/Alpha/Kivu_Cache.txt");
    for (const auto step :
         {testing::FaultyFileSystem::Step::Write, testing::FaultyFileSystem::Step::Flush,
          testing::FaultyFileSystem::Step::Rename}) {
        files.FailFrom(step, 1, std::errc::no_space_on_device);
        Scan();
        EXPECT_EQ(tree.Read("Config/Alpha/Kivu_Cache.txt"), before);
        EXPECT_EQ(Get("UAE_Short.ListCount"), 4);
        files.Heal();
    }
    ExpectUsable();
}

TEST_F(Faults, FullDiskKeepsTheOldProfile) {
    Start();
    const std::string before = tree.Read("Config/Kivu.ini");
    files.FillDisk();
    EXPECT_EQ(Do("click", "Form1.ExitBtn")["ended"], true);
    EXPECT_EQ(tree.Read("Config/Kivu.ini"), before);
}

TEST_F(Faults, ReadOnlyDirectoryStillStarts) {
    files.MakeReadOnly();
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    Scan();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    ExpectUsable();
}

TEST_F(Faults, MissingProgramDirectoryStillStarts) {
    std::filesystem::remove_all(tree.Root());
    Start();
    EXPECT_EQ(Get("EmuListbox.Text"), "No Emulator found");
    Do("resize", "Form1", 20000, 10000);
}

TEST_F(Faults, CacheOfGarbageGivesRowsAndNoHarm) {
    std::string garbage(1, '\0');
    for (int i = 0; i < 5000; ++i)
        garbage += static_cast<char>(i * 37 % 256);
    tree.Write("Config/Alpha/Kivu_Cache.txt", garbage);
    Start();
    EXPECT_GT(Get("UAE_FULL.ListCount"), 0);
    Do("click", "Form1.Label3");
    for (int row = 0; row < std::min(5, Get("UAE_Short.ListCount").get<int>()); ++row)
        Do("select", "Form1.UAE_Short", row);
    ExpectUsable();
}

TEST_F(Faults, CacheCutInsideALineKeepsWhatWasRead) {
    tree.Write("Config/Alpha/Kivu_Cache.txt", "/Roms/a.adf\r\nA\r\n/Roms/b.a");
    Start();
    EXPECT_EQ(Get("UAE_FULL.ListCount"), 2);
    EXPECT_EQ(Get("WIthoutDoubles.List"), Json({"A"}));
}

TEST_F(Faults, CacheThatIsADirectoryOrUnreadableGivesEmptyLists) {
    std::filesystem::remove(tree.Path("Config/Alpha/Kivu_Cache.txt"));
    tree.MakeDirectory("Config/Alpha/Kivu_Cache.txt");
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 0);
    Scan();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    ExpectUsable();
}

TEST_F(Faults, ProfileThatIsADirectoryGivesDefaults) {
    std::filesystem::remove(tree.Path("Config/Alpha/Kivu.ini"));
    tree.MakeDirectory("Config/Alpha/Kivu.ini");
    Start();
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    EXPECT_EQ(Get("FullscreenCheck.Value"), 1);
    ExpectUsable();
}

TEST_F(Faults, ProfileThatChangesUnderTheProgramIsReadAnew) {
    Start();
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/alpha"},
                               {"WinUAE_UseMasterConfig", "0"},
                               {"EmulatorParameter", "-fresh"}});
    LaunchBee();
    EXPECT_THAT(tree.Read("Config/Alpha/Kivu_tmp.bat"), HasSubstr("'-fresh'"));
}

TEST_F(Faults, ForeignLinesAndCommentsOfAProfileSurvive) {
    tree.Write(
        "Config/Kivu.ini",
        "; mine\r\n[Other]\r\nx=1\r\n[Settings]\r\nLastEmulator=Alpha\r\nOdd = 7 ; kept\r\n");
    Start();
    EXPECT_EQ(Do("click", "Form1.ExitBtn")["ended"], true);
    const std::string profile = tree.Read("Config/Kivu.ini");
    EXPECT_TRUE(profile.starts_with("; mine\r\n[Other]\r\nx=1\r\n[Settings]\r\n"));
    EXPECT_THAT(profile, HasSubstr("Odd = 7 ; kept\r\n"));
}

TEST_F(Faults, EmulatorThatIsNoneIsStartedAndTheWatchEndsIt) {
    tree.MakeDirectory("Emu/dir");
    for (const char* path : {"", "/Emu/dir", "/Emu/none", "/Roms/Alpha"}) {
        tree.AddEmulator("Alpha", {{"EmulatorPath", path}, {"WinUAE_UseMasterConfig", "0"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        Start();
        LaunchBee();
        if (Get("EmuActiveTimer.Enabled") == true) Do("tick", "Form1.EmuActiveTimer", 3);
        EXPECT_EQ(Get("GameIsRunning"), false) << path;
        ExpectUsable();
    }
}

TEST_F(Faults, EmulatorNameOfShellCharactersIsOnlyAName) {
    const std::string name = "a'b;$(x) & `y`";
    tree.AddEmulator(name, {{"EmulatorPath", "/Emu/alpha"},
                            {"WinUAE_UseMasterConfig", "0"},
                            {"EmulatorParameterAddDiskPath", "1"}});
    tree.WriteCache(name, {{"/Roms/Alpha/Bee (1991)(Maker).adf", "Bee"}});
    tree.WriteProgramProfile({{"LastEmulator", name}});
    Start();
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 0);
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["words"], Json::array({tree.Path("Config/" + name + "/Kivu_tmp.bat")}));
}

}  // namespace
}  // namespace kivu::scenarios
