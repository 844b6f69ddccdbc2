// Launches from the chosen game to the emulator that runs: the start files that the launcher
// writes, run by the real command processor.

#include <gmock/gmock.h>

#include "core/form1.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/process_list_windows.h"
#include "hosts/windows/program_starter_windows.h"
#include "hosts/windows/started_program.h"
#include "launch/emulator_setup.h"
#include "launch/game_launch.h"
#include "launch/prozess.h"
#include "launch/running_watch.h"
#include "launch/uae_files.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::launch {
namespace {

using hosts::Wide;
using kivu::testing::CurrentDirectoryKeeper;
using kivu::testing::Eventually;
using kivu::testing::InheritedVariable;
using kivu::testing::ScratchDirectory;
using kivu::testing::StartedPrograms;
using kivu::testing::Told;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

// One path has many texts; the long one is the one to compare.
std::string LongForm(const std::string& path) {
    std::wstring form(4096, L'\0');
    form.resize(::GetLongPathNameW(Wide(path).c_str(), form.data(), 4096));
    std::string text = hosts::Narrow(form);
    if (text.ends_with('\\')) text.pop_back();
    return text;
}

class RealLaunch : public ::testing::Test {
 protected:
    RealLaunch() {
        StartedPrograms::Instance();
        disk.MakeDirectory("Kivu");
        disk.MakeDirectory("Kivu\\Config");
        disk.MakeDirectory("roms");
        form.AppDir = disk.Path("Kivu\\");
        form.EXE = "Kivu";
        form.ConfigPath = form.AppDir + "Config\\";
        form.BaseIniName = form.ConfigPath + "Kivu.ini";
        UseConfigOf("Amiga 500");
    }
    ~RealLaunch() override { StartedPrograms::Instance().Kill(); }

    void UseConfigOf(const std::string& emulator) {
        disk.MakeDirectory("Kivu\\Config\\" + emulator);
        form.StartPfad = form.ConfigPath + emulator + "\\";
        form.IniPath = form.StartPfad + "Kivu.ini";
        form.TmpBatName = form.StartPfad + "Kivu_tmp.bat";
        Profile("UseQuote=1\r\n");
    }
    void Profile(const std::string& settings) {
        const std::string common =
            "[Settings]\r\nWinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n"
            "SplashTimer=0\r\nEmulatorParameter=-x\r\n";
        EXPECT_FALSE(files.WriteFile(form.IniPath, common + settings));
    }
    // A telling emulator in a directory of its own, with traps beside it.
    void Emulator(const std::string& directory, const std::string& name) {
        disk.MakeDirectory(directory);
        emulator = disk.Path(directory + "\\" + name);
        telling.Install(emulator);
        telling.Install(disk.Path(directory + "\\trap.exe"));
        form.txtWinUAEExe.SetText(emulator);
    }
    // A batch file in that directory, which starts the telling program beside it.
    void BatchEmulator(const std::string& directory, const std::string& name) {
        Emulator(directory, "tell.exe");
        emulator = disk.Write(directory + "\\" + name, "@\"%~dp0tell.exe\" %1 %2\r\n@exit\r\n");
        form.txtWinUAEExe.SetText(emulator);
    }
    std::string Game(const std::string& name) { return disk.Write("roms\\" + name, "x"); }

    // What the emulator tells, once it and all that it was started by have ended.
    Told Launch(const std::string& game) {
        launch.StartGame(game);
        const auto told = telling.Wait();
        EXPECT_TRUE(told) << game << "\n" << files.ReadFile(StartFile()).value_or("no start file");
        if (!told) return {};
        EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
        EXPECT_FALSE(telling.IsTrapped()) << game;
        EXPECT_TRUE(dialogs.shown.empty()) << dialogs.shown[0].text;
        return *told;
    }
    std::string StartFile() const { return form.StartPfad + "Kivu_tmp.bat"; }
    void ExpectGame(const Told& told, const std::string& game) {
        ASSERT_EQ(told.words.size(), 2u);
        EXPECT_EQ(told.words[0], "-x");
        EXPECT_EQ(LongForm(told.words[1]), game);
        EXPECT_EQ(LongForm(told.program), emulator);
        EXPECT_EQ(LongForm(told.directory), emulator.substr(0, emulator.rfind('\\')));
    }

    CurrentDirectoryKeeper keeper;
    ScratchDirectory disk;
    kivu::testing::Telling telling;
    std::string emulator;
    hosts::WindowsFileSystem files;
    hosts::WindowsProgramStarter starter;
    kivu::testing::ScriptedClock clock;
    kivu::testing::ScriptedDialogs dialogs;
    kivu::testing::ScriptedBeeper beeper;
    kivu::testing::ScriptedEvents events;
    kivu::testing::ScriptedLog log;
    core::Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    core::EventPacer pacer{events, clock};
    core::BusyState busy{form, events};
    kivu::testing::ScriptedUserStore userStore;
    support::AlwaysOnTop alwaysOnTop{
        form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove}, userStore};
    kivu::testing::QuietChoice choice;
    kivu::testing::QuietFront front;
    kivu::testing::QuietStartHelpers helpers;
    UaeFiles uae{form, files, log};
    GameLaunch launch{form,
                      ini,
                      busy,
                      pacer,
                      {files, starter, clock, dialogs, beeper, log},
                      {choice, front, alwaysOnTop, uae, helpers}};
};

// Names that hold what the command processor might act upon, or split at. With a "trap" in them
// they would start a program that lies beside the emulator.
constexpr const char* oddNames[] = {"plain",
                                    "two words",
                                    "two  blanks",
                                    "Größe ÄÖÜ",
                                    "R&D",
                                    "a & trap & b",
                                    "a&trap&b",
                                    "100%",
                                    "%OS%",
                                    "a %OS% %trap%",
                                    "%~dp0 %1 %",
                                    "x^y",
                                    "x ^& trap ^^",
                                    "^&trap",
                                    "wow! !OS!",
                                    "wow!OS!",
                                    "(1990)(Maker)(Disk 1 of 2)",
                                    "(trap)",
                                    "a, b",
                                    "a,b",
                                    "a; b",
                                    "a;b=c",
                                    "it's",
                                    "'trap'",
                                    "`trap`",
                                    "@trap",
                                    "~$#{[+]}",
                                    "-x",
                                    "a.b.c"};

class OddNames : public RealLaunch, public ::testing::WithParamInterface<const char*> {};

INSTANTIATE_TEST_SUITE_P(, OddNames, ::testing::ValuesIn(oddNames));

TEST_P(OddNames, AreOnlyNamesInTheStartFile) {
    const std::string name = GetParam();
    // See below.
    if (!kivu::testing::IsWine() || name.find('%') == std::string::npos) UseConfigOf(name);
    Emulator(name, name + ".exe");
    const std::string game = Game(name + ".adf");
    for (const char* useQuote : {"UseQuote=0\r\n", "UseQuote=1\r\n"}) {
        Profile(useQuote);
        ExpectGame(Launch(game), game);
        EXPECT_TRUE(files.FileExists(StartFile()));
        EXPECT_EQ(beeper.count, 0);
    }
}

// So that the tests above could fail.
TEST_F(RealLaunch, TrapSpringsWhereAStartFileIsCarelesslyWritten) {
    Emulator("emu", "emu.exe");
    disk.Write("emu\\careless.bat",
               "cd " + disk.Path("emu") + "\r\nStart \"\" emu.exe C:\\a&trap&b.adf\r\n");
    platform::StartRequest request;
    request.words = {disk.Path("emu\\careless.bat")};
    request.command = "\"" + request.words[0] + "\"";
    request.startFile = true;
    request.directory = disk.Path("emu");
    EXPECT_FALSE(starter.Run(request));
    EXPECT_TRUE(Eventually([&] { return telling.IsTrapped(); }));
    EXPECT_TRUE(Eventually([] { return StartedPrograms::Instance().HaveEnded(); }));
}

TEST_F(RealLaunch, PercentSignsInTheWayToTheStartFileAreOnlyCharacters) {
    if (kivu::testing::IsWine()) GTEST_SKIP() << kivu::testing::wineExpandsTwice;
    Emulator("emu", "emu.exe");
    const std::string game = Game("Game.adf");
    for (const char* name : {"100%", "%OS%", "a %OS% %trap%"}) {
        UseConfigOf(name);
        ExpectGame(Launch(game), game);
    }
}

class OddNamesForBatch : public OddNames {};

INSTANTIATE_TEST_SUITE_P(, OddNamesForBatch,
                         ::testing::Values("two words", "R&D", "a & trap & b", "x^y", "(trap)",
                                           "Größe, ÄÖÜ", "wow!OS!"));

TEST_P(OddNamesForBatch, ReachABatchFileAsOneArgument) {
    const std::string name = GetParam();
    BatchEmulator(name, "run " + name + ".bat");
    const std::string game = Game(name + ".adf");
    const Told told = Launch(game);
    EXPECT_THAT(told.words, ElementsAre("-x", game));
    EXPECT_EQ(LongForm(told.directory), disk.Path(name));
    EXPECT_EQ(form.CurrentRunninApplication, "cmd.exe");
    EXPECT_EQ(beeper.count, 0);
}

TEST_F(RealLaunch, StartFileIsTheTwoLinesAndStaysForALook) {
    Emulator("emu", "emu.exe");
    const std::string game = Game("My Game.adf");
    Launch(game);
    const std::string shortDirectory =
        files.ShortPathName(disk.Path("emu\\")) +
        (files.ShortPathName(disk.Path("emu\\")).ends_with('\\') ? "" : "\\");
    EXPECT_EQ(files.ReadFile(StartFile()),
              "cd " + shortDirectory + "\r\nStart \"\" " + emulator + " -x \"" + game + "\"\r\n");
    EXPECT_EQ(beeper.count, 0);
    EXPECT_EQ(form.CurrentRunninApplication, "emu.exe");
    EXPECT_TRUE(form.GameIsRunning);
}

TEST_F(RealLaunch, ShortAndLongFormsBothNameTheGame) {
    Emulator("emu", "emu.exe");
    const std::string game = Game("A Game With A Long Name (1990).adf");
    Profile("UseQuote=0\r\n");
    const Told shortForm = Launch(game);
    ExpectGame(shortForm, game);
    EXPECT_EQ(shortForm.words[1], files.ShortPathName(game));
    EXPECT_EQ(shortForm.words[1].find(' '), std::string::npos);
    Profile("UseQuote=1\r\n");
    EXPECT_EQ(Launch(game).words[1], game);
    Profile("UseQuote=1\r\nEmulatorParameterAddDiskPathWithoutPath=1\r\n");
    EXPECT_EQ(Launch(game).words[1], "A Game With A Long Name (1990).adf");
    Profile("UseQuote=0\r\nEmulatorParameterAddDiskPathWithoutPath=1\r\n");
    EXPECT_EQ(disk.Path("roms\\") + Launch(game).words[1],
              LongForm(disk.Path("roms")) +
                  files.ShortPathName(game).substr(files.ShortPathName(game).rfind('\\')));
}

TEST_F(RealLaunch, VariablesInANameAreNotExpandedEvenWhenTheyWouldRunSomething) {
    const InheritedVariable variable(L"KIVU_TEST_VARIABLE", L"\" & trap & \"");
    Emulator("emu %KIVU_TEST_VARIABLE%", "emu.exe");
    const std::string game = Game("%KIVU_TEST_VARIABLE% x.adf");
    ExpectGame(Launch(game), game);
}

TEST_F(RealLaunch, CharactersBeyondTheCodePageTakeADirectStart) {
    Emulator("emu 中", "emu.exe");
    // Those that look like a quote and an ampersand among them.
    for (const char* name :
         {"Игра 中文", "A\xEF\xBC\x82\xEF\xBC\x86trap\xEF\xBC\x86\xEF\xBC\x82 B"}) {
        const std::string game = Game(name + std::string(".adf"));
        ExpectGame(Launch(game), game);
        EXPECT_FALSE(files.FileExists(StartFile()));
        EXPECT_EQ(beeper.count, 0);
    }
}

TEST_F(RealLaunch, StartFileThatCannotBeWrittenTakesADirectStart) {
    Emulator("R&D emu", "emu.exe");
    disk.MakeDirectory("Kivu\\Config\\Amiga 500\\Kivu_tmp.bat");
    const std::string game = Game("a & trap & b %OS%.adf");
    launch.StartGame(game);
    const auto told = telling.Wait();
    ASSERT_TRUE(told);
    ExpectGame(*told, game);
    EXPECT_EQ(told->show, std::to_string(SW_SHOWMAXIMIZED));
    EXPECT_EQ(beeper.count, 1);
}

TEST_F(RealLaunch, RunningEmulatorIsWatchedAndEndedByTheUser) {
    hosts::WindowsProcessList processes;
    Prozess prozess{processes};
    RunningWatch watch{form,   ini,     prozess, busy,
                       events, dialogs, log,     {choice, front, alwaysOnTop}};
    disk.MakeDirectory("my emu");
    const std::string name = "Emu " + std::to_string(::GetCurrentProcessId()) + ".exe";
    kivu::testing::CopyHelper(L"stay", disk.Path("my emu\\" + name));
    form.txtWinUAEExe.SetText(disk.Path("my emu\\" + name));
    launch.StartGame(Game("Game.adf"));
    EXPECT_TRUE(Eventually([&] { return prozess.IsProcessRunning(name, Reach::andLaunch); }));
    for (int tick = 0; tick < 5; ++tick)
        watch.EmuActiveTimer_Timer();
    EXPECT_TRUE(form.AppRunningPicture.Visible());
    EXPECT_TRUE(form.GameIsRunning);
    EXPECT_THAT(form.MyCaptionLabel.Caption(), HasSubstr(name));

    watch.AppRunningPicture_Click();
    EXPECT_TRUE(Eventually([&] { return !prozess.IsProcessRunning(name, Reach::andLaunch); }));
    watch.EmuActiveTimer_Timer();
    EXPECT_FALSE(form.GameIsRunning);
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
}

struct CountedLooks : kivu::testing::QuietWatch {
    void EmuActiveTimer_Timer() override { ++looks; }
    int looks = 0;
};

TEST_F(RealLaunch, SettingUpStartsTheEmulatorAlone) {
    Emulator("my emu & co", "the emu.exe");
    CountedLooks watch;
    EmulatorSetup setup{form, ini, pacer, {files, starter, clock, dialogs, log}, watch};
    EXPECT_FALSE(files.WriteFile(form.IniPath, "[Settings]\r\nEmulatorPath=" + emulator + "\r\n"));
    setup.StartEmulator("Amiga 500", false);
    const auto told = telling.Wait();
    ASSERT_TRUE(told);
    EXPECT_THAT(told->words, ::testing::IsEmpty());
    EXPECT_EQ(LongForm(told->program), emulator);
    EXPECT_EQ(LongForm(told->directory), disk.Path("my emu & co"));
    EXPECT_EQ(told->show, std::to_string(SW_SHOWNORMAL));
    EXPECT_EQ(form.CurrentRunninApplication, "the emu.exe");
    EXPECT_EQ(watch.looks, 1);
}

}  // namespace
}  // namespace kivu::launch
