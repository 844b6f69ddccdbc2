#include "scenarios/launches.h"
#include "testing/memory_file_system.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

TEST_F(Launch, DoubleClickWritesTheStartFileAndRunsIt) {
    Start();
    LaunchBee();
    EXPECT_EQ(StartFile(), "cd '" + tree.Path("Emu/") + "'\n'" + tree.Path("Emu/alpha") + "' '" +
                               Bee() + "' &\n");
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["command"], "\"" + tree.Path("Config/Alpha/Kivu_tmp.bat") + "\"");
    EXPECT_EQ(runs[0]["words"], Json::array({tree.Path("Config/Alpha/Kivu_tmp.bat")}));
    EXPECT_EQ(runs[0]["style"], "Minimized");
    EXPECT_EQ(runs[0]["directory"], tree.Path("Emu"));
    EXPECT_EQ(runs[0]["startFile"], true);
    EXPECT_EQ(runs[0]["wait"], false);
    EXPECT_EQ(Get("CurrentRunninApplication"), "alpha");
    EXPECT_EQ(Get("GameIsRunning"), true);
    EXPECT_EQ(Get("StartGraceTicks"), 3);
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), true);
    EXPECT_EQ(Get("CURRENT_PROGRAM_STARTED"), "Bee (1991)(Maker)");
}

TEST_F(Launch, DoubleClickShowsTheFixedTitleAfterwards) {
    Start();
    Do("set", "Form1.Caption", "Mine");
    LaunchBee();
    EXPECT_EQ(Get("Caption"), "Kivu 1.4b");
    EXPECT_EQ(Get("MyCaptionLabel.Caption"), "Kivu 1.4b");
}

TEST_F(Launch, ButtonPutsTheTitleBack) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Do("set", "Form1.Caption", "Mine");
    Call("LaunchBtn_Click");
    EXPECT_EQ(Get("Caption"), "Mine");
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(Launch, EnterInEitherListStartsTheGame) {
    Start();
    Do("click", "Form1.Label2");
    Do("select", "Form1.WIthoutDoubles", 1);
    Do("key", "Form1", "Enter");
    EXPECT_THAT(StartFile(), HasSubstr("Bee (1991)"));
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
}

TEST_F(Launch, RowOfTheCompleteListDecides) {
    Start();
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 1);
    Do("set", "Form1.UAE_FULL.ListIndex", 2);
    Call("LaunchBtn_Click");
    EXPECT_THAT(StartFile(), HasSubstr("(Disk 2 of 2)"));
}

TEST_F(Launch, StartFileStaysAndItsFieldHoldsQuotesUntilTheNextLaunch) {
    Start();
    LaunchBee();
    const std::string file = tree.Path("Config/Alpha/Kivu_tmp.bat");
    EXPECT_EQ(Get("TmpBatName"), "\"" + file + "\"");
    EXPECT_TRUE(tree.Exists("Config/Alpha/Kivu_tmp.bat"));
    Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_THAT(StartFile(), HasSubstr("Cat (1992)"));
    EXPECT_EQ(Get("TmpBatName"), "\"" + file + "\"");
}

TEST_F(Launch, MissingGameIsToldAndNothingStarts) {
    Start();
    std::filesystem::remove(Bee());
    const Json title = Get("Caption");
    Do("click", "Form1.Label3");
    Do("select", "Form1.UAE_Short", 2);
    Call("LaunchBtn_Click");
    const Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["title"], "Game - File not found!");
    EXPECT_EQ(box["text"], "File not found:\r\"" + Bee() + "\"");
    EXPECT_EQ(box["icon"], "Information");
    EXPECT_EQ(Do("runs")["value"], Json::array());
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), false);
    EXPECT_FALSE(tree.Exists("Config/Alpha/Kivu_tmp.bat"));
    EXPECT_EQ(Get("Caption"), title);
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_FALSE(Visible("LoadingBtn"));
}

TEST_F(Launch, ParametersComeInTheirFixedOrderAndTypedOnesAreSplit) {
    Profile({{"EmulatorParameterAddDiskPath", "1"},
             {"EmulatorParameter", "-cheat \"two words\""},
             {"WinUAE_ConfigParameter", "-f  x"}});
    Start();
    Call("StartGame", Bee());
    EXPECT_THAT(StartFile(), HasSubstr("alpha' '-f' 'x' '-cheat' 'two words' '" + Bee() + "' &\n"));
}

TEST_F(Launch, GameStaysOutOfTheParametersUnlessItIsAskedFor) {
    Profile({{"EmulatorParameter", "-x"}});
    Start();
    Call("StartGame", Bee());
    EXPECT_THAT(StartFile(), HasSubstr("alpha' '-x' &\n"));
}

TEST_F(Launch, NameWithoutPathIsOneWord) {
    Profile(
        {{"EmulatorParameterAddDiskPath", "1"}, {"EmulatorParameterAddDiskPathWithoutPath", "1"}});
    for (const char* quote : {"0", "1", "2"}) {
        Profile({{"EmulatorParameterAddDiskPath", "1"},
                 {"EmulatorParameterAddDiskPathWithoutPath", "1"},
                 {"UseQuote", quote}});
        Start();
        Call("StartGame", Bee());
        EXPECT_THAT(StartFile(), HasSubstr("alpha' 'Bee (1991)(Maker).adf' &\n")) << quote;
    }
}

TEST_F(Launch, BatchFileIsWatchedAsTheCommandProcessor) {
    tree.Write("Emu/run.BAT", "x");
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/run.BAT"}, {"WinUAE_UseMasterConfig", "0"}});
    Start();
    Call("StartGame", Bee());
    EXPECT_EQ(Get("CurrentRunninApplication"), "cmd.exe");
    tree.AddEmulator("Alpha", {{"EmulatorPath", "/Emu/run.exe.bat"}});
    Start();
    Call("StartGame", Bee());
    EXPECT_EQ(Get("CurrentRunninApplication"), "run.exe.bat");
}

TEST_F(Launch, StartFileThatCannotBeWrittenGivesABeepAndADirectStart) {
    Start();
    LaunchBee();
    Do("runs");
    files.OnlyFor("_tmp.bat");
    files.FillDisk();
    Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_EQ(Do("beeps")["value"], 1);
    const Json runs = Do("runs")["value"];
    ASSERT_EQ(runs.size(), 1U);
    EXPECT_EQ(runs[0]["startFile"], false);
    EXPECT_EQ(runs[0]["words"],
              Json({tree.Path("Emu/alpha"), tree.Path("Roms/Beta/Cat (1992)(Maker).adf")}));
    EXPECT_EQ(runs[0]["style"], "Minimized");
    EXPECT_EQ(Get("EmuActiveTimer.Enabled"), true);
}

TEST_F(Launch, SecondLaunchDuringTheFirstIsHeldOff) {
    Start();
    Host().events.onEvents = [&] { Call("StartGame", Bee()); };
    Call("StartGame", tree.Path("Roms/Beta/Cat (1992)(Maker).adf"));
    EXPECT_EQ(Do("runs")["value"].size(), 1U);
    EXPECT_THAT(StartFile(), HasSubstr("Cat (1992)"));
}

TEST_F(Launch, ShortFileNameStaysWholeAmongWhatWasStarted) {
    tree.Write("Roms/Alpha/Game.adf", "x");
    tree.Write("Roms/Alpha/abcd", "x");
    Start();
    Call("StartGame", tree.Path("Roms/Alpha/abcd"));
    EXPECT_EQ(Call("Get_CURRENT_PROGRAM_STARTED"), "abcd");
    Call("StartGame", tree.Path("Roms/Alpha/Game.adf"));
    EXPECT_EQ(Call("Get_CURRENT_PROGRAM_STARTED"), "Game");
}

TEST_F(Launch, FurtherEntriesAreCutAt29CharactersAndTheFirstIsNot) {
    Start();
    const std::string longName(40, 'x');
    Do("set", "Form1.CURRENT_PROGRAM_STARTED", "");
    Call("Add_CURRENT_PROGRAM_STARTED", longName + ".adf");
    Call("Add_CURRENT_PROGRAM_STARTED", longName + ".adf");
    EXPECT_EQ(Get("CURRENT_PROGRAM_STARTED"), longName + "\r" + std::string(29, 'x'));
}

TEST_F(Launch, StartFileIsFoundAgainOrAskedAbout) {
    Start();
    EXPECT_EQ(Call("FindStartFile", ""), "");
    EXPECT_EQ(Call("FindStartFile", Bee()), Bee());
    EXPECT_EQ(Do("boxes")["value"], Json::array());
    EXPECT_EQ(Call("FindStartFile", "/none"), "/none");
    EXPECT_EQ(Do("boxes")["value"][0]["text"], "Bat - Start-File not found: \r/none");
}

TEST_F(Launch, WaitLastsSoManyChangesOfTheSecondAcrossTheMinute) {
    options.time = {23, 59, 58};
    Start();
    Call("WAIT", 3);
    EXPECT_EQ(Host().clock.Now().hour, 0);
    EXPECT_EQ(Host().clock.Now().second, 1);
}

TEST_F(Launch, WindowsStartFileHoldsTheTwoLines) {
    options.windowsStartFiles = true;
    Start();
    Call("StartGame", Bee());
    EXPECT_EQ(StartFile(), "cd " + Short(tree.Path("Emu/")) + "\r\nStart \"\" " +
                               tree.Path("Emu/alpha") + " " + Short(Bee()) + "\r\n");
}

// The same on a Windows host, with short names.
class WindowsLaunch : public ::testing::Test {
 protected:
    void Launch(const std::string& game) {
        driver::Options options;
        options.programDirectory = "C:\\Kivu\\";
        options.windowsStartFiles = true;
        session = std::make_unique<driver::Session>(disk, options);
        interpreter = std::make_unique<driver::Interpreter>(*session);
        interpreter->Execute(Json::array({"start"}));
        interpreter->Execute(Json::array({"call", "StartGame", game}));
    }
    void Profile(const std::string& settings) {
        disk.AddFile("C:\\Kivu\\Config\\Kivu.ini",
                     "[Settings]\r\nLastEmulator=" + std::string(emulator) + "\r\n");
        disk.AddFile("C:\\Kivu\\Config\\" + std::string(emulator) + "\\Kivu.ini",
                     "[Settings]\r\n" + settings);
    }
    std::string StartFile() {
        return disk.ReadFile("C:\\Kivu\\Config\\" + std::string(emulator) + "\\Kivu_tmp.bat")
            .value_or("(none)");
    }

    const char* emulator = "Amiga 500";
    testing::MemoryFileSystem disk{'\\'};
    std::unique_ptr<driver::Session> session;
    std::unique_ptr<driver::Interpreter> interpreter;
};

TEST_F(WindowsLaunch, ConfigurationStandsInItsLongFormUntilItExists) {
    Profile("EmulatorPath=C:\\Program Files\\WinUAE\\winuae.exe\r\nWinUAE_ConfigParameter=-f\r\n");
    disk.AddFile("C:\\Program Files\\WinUAE\\winuae.exe", "MZ");
    disk.AddFile("D:\\Game.adf", "x");
    disk.SetShortName("C:\\Program Files\\WinUAE\\", "C:\\PROGRA~1\\WinUAE\\");
    Launch("D:\\Game.adf");
    EXPECT_EQ(StartFile().substr(0, StartFile().find("-f")),
              "cd C:\\PROGRA~1\\WinUAE\\\r\nStart \"\" \"C:\\Program Files\\WinUAE\\winuae.exe\" ");
}

TEST_F(WindowsLaunch, GamePathIsShortOrQuotedByUseQuote) {
    disk.AddFile("C:\\emu.exe", "MZ");
    disk.AddFile("D:\\My Roms\\Super Game.zip", "x");
    disk.SetShortName("D:\\My Roms\\Super Game.zip", "D:\\MYROMS~1\\SUPERG~1.ZIP");
    const std::string common =
        "EmulatorPath=C:\\emu.exe\r\nWinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n"
        "EmulatorParameter=-cheat -skip_gameinfo\r\n";
    const std::string begin = "cd C:\\\r\nStart \"\" C:\\emu.exe -cheat -skip_gameinfo ";
    const std::pair<const char*, const char*> whole[] = {{"0", "D:\\MYROMS~1\\SUPERG~1.ZIP"},
                                                         {"1", "\"D:\\My Roms\\Super Game.zip\""},
                                                         {"2", "\"D:\\My Roms\\Super Game.zip\""}};
    for (const auto& [quote, path] : whole) {
        Profile(common + "UseQuote=" + quote + "\r\n");
        Launch("D:\\My Roms\\Super Game.zip");
        EXPECT_EQ(StartFile(), begin + path + "\r\n") << quote;
    }
    const std::pair<const char*, const char*> names[] = {
        {"0", "SUPERG~1.ZIP"}, {"1", "\"Super Game.zip\""}, {"2", "Super Game.zip"}};
    for (const auto& [quote, name] : names) {
        Profile(common + "EmulatorParameterAddDiskPathWithoutPath=1\r\nUseQuote=" + quote + "\r\n");
        Launch("D:\\My Roms\\Super Game.zip");
        EXPECT_EQ(StartFile(), begin + name + "\r\n") << quote;
    }
}

TEST_F(WindowsLaunch, BatchEmulatorIsStartedAsItStands) {
    disk.AddFile("C:\\My Emus\\run.bat", "x");
    disk.AddFile("D:\\My Roms\\Super Game.zip", "x");
    Profile(
        "EmulatorPath=C:\\My Emus\\run.bat\r\nWinUAE_UseMasterConfig=0\r\n"
        "EmulatorParameterAddDiskPath=1\r\nUseQuote=1\r\n");
    Launch("D:\\My Roms\\Super Game.zip");
    EXPECT_EQ(StartFile(),
              "cd \"C:\\My Emus\\\"\r\nStart \"\" \"C:\\My Emus\\run.bat\" "
              "\"D:\\My Roms\\Super Game.zip\"\r\n");
    EXPECT_EQ(session->MainWindow().CurrentRunninApplication, "cmd.exe");
}

TEST_F(WindowsLaunch, LiveCharactersOfNamesAreMadeHarmless) {
    disk.AddFile("C:\\emu.exe", "MZ");
    disk.AddFile("D:\\A&B%C.zip", "x");
    Profile(
        "EmulatorPath=C:\\emu.exe\r\nWinUAE_UseMasterConfig=0\r\n"
        "EmulatorParameterAddDiskPath=1\r\nEmulatorParameter=-x & y\r\n");
    Launch("D:\\A&B%C.zip");
    EXPECT_THAT(StartFile(), HasSubstr("C:\\emu.exe -x & y \"D:\\A&B%%C.zip\"\r\n"));
}

}  // namespace
}  // namespace kivu::scenarios
