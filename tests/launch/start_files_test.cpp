// Launches with everything but the host's own programs: what stands in the start files.

#include <gmock/gmock.h>

#include "launch_room.h"

namespace kivu::launch {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

struct WindowsStart : ::testing::Test, LaunchRoom {
    WindowsStart() : LaunchRoom('\\', "C:\\Kivu\\", "Amiga 500") {
        Emulator("C:\\Program Files\\WinUAE\\winuae.exe");
    }
    void GiveShortNames() {
        files.SetShortName("C:\\Program Files\\WinUAE\\", "C:\\PROGRA~1\\WinUAE\\");
        files.SetShortName("C:\\Kivu\\Config\\Amiga 500\\Kivu_StartScript.uaecfg",
                           "C:\\Kivu\\Config\\AMIGA5~1\\KIVU_S~1.UAE");
    }
    // Nothing can be written where a directory has the start file's name.
    void BlockStartFile() { files.AddDirectory(form.TmpBatName); }
};

// "/k/" as the program's directory, "Alpha" as the emulator's name.
struct WineStart : ::testing::Test, LaunchRoom {
    WineStart() : LaunchRoom('/', "/k/", "Alpha") {}
};

constexpr const char* winuae = "Start \"\" \"C:\\Program Files\\WinUAE\\winuae.exe\"";

TEST_F(WindowsStart, ConfigurationStandsInItsLongFormAtTheFirstLaunchAndShortFromThenOn) {
    GiveShortNames();
    Profile("WinUAE_ConfigParameter=-f\r\n");
    const std::string directory = "cd C:\\PROGRA~1\\WinUAE\\\r\n";
    Launch("D:\\Game.adf");
    EXPECT_EQ(StartFile(),
              directory + winuae + " -f C:\\Kivu\\Config\\Amiga 500\\Kivu_StartScript.uaecfg\r\n");
    EXPECT_TRUE(files.FileExists(form.StartScriptName));
    Launch("D:\\Game.adf");
    EXPECT_EQ(StartFile(), directory + winuae + " -f C:\\Kivu\\Config\\AMIGA5~1\\KIVU_S~1.UAE\r\n");
}

TEST_F(WindowsStart, WithoutShortNamesTheDirectoryStandsInQuotes) {
    Profile("WinUAE_UseMasterConfig=0\r\n");
    Launch("D:\\Game.adf");
    EXPECT_EQ(StartFile(), std::string("cd \"C:\\Program Files\\WinUAE\\\"\r\n") + winuae + "\r\n");
}

TEST_F(WindowsStart, StartFileRunsMinimizedInTheEmulatorsDirectory) {
    Launch("D:\\Game.adf");
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const platform::StartRequest& run = host.starter.runs[0].request;
    EXPECT_EQ(run.command, "\"C:\\Kivu\\Config\\Amiga 500\\Kivu_tmp.bat\"");
    EXPECT_EQ(run.style, platform::WindowStyle::Minimized);
    EXPECT_EQ(run.directory, "C:\\Program Files\\WinUAE");
    EXPECT_TRUE(run.startFile);
    EXPECT_EQ(files.CurrentDirectory(), "C:\\Kivu");
    EXPECT_EQ(host.beeper.count, 0);
}

TEST_F(WindowsStart, DirectStartTakesThePlainTextAndShowsAProgramMaximized) {
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    BlockStartFile();
    Launch("D:\\A&B 100%.adf");
    EXPECT_EQ(host.beeper.count, 1);
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const platform::StartRequest& run = host.starter.runs[0].request;
    EXPECT_EQ(run.command, "\"C:\\Program Files\\WinUAE\\winuae.exe\" \"D:\\A&B 100%.adf\"");
    EXPECT_EQ(run.style, platform::WindowStyle::Maximized);
    EXPECT_FALSE(run.startFile);
    EXPECT_TRUE(form.GameIsRunning);
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_EQ(host.dialogs.shown[0].text,
              "Bat - Start-File not found: \rC:\\Kivu\\Config\\Amiga 500\\Kivu_tmp.bat");
}

TEST_F(WindowsStart, DirectStartOfABatchFileIsMinimized) {
    Profile("WinUAE_UseMasterConfig=0\r\n");
    Emulator("C:\\Emus\\run.bat");
    BlockStartFile();
    Launch("D:\\Game.adf");
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_EQ(host.starter.runs[0].request.command, "C:\\Emus\\run.bat ");
    EXPECT_EQ(host.starter.runs[0].request.style, platform::WindowStyle::Minimized);
    EXPECT_EQ(form.CurrentRunninApplication, "cmd.exe");
}

TEST_F(WindowsStart, StartFileOfAFormerGameIsNeverRunAgain) {
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    files.AddFile(form.TmpBatName, "cd C:\\\r\nStart \"\" old.exe\r\n");
    files.SetReadOnly(form.TmpBatName);
    files.SetReadOnly(form.StartPfad);
    Launch("D:\\New.adf");
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_FALSE(host.starter.runs[0].request.startFile);
    EXPECT_THAT(host.starter.runs[0].request.command, HasSubstr("D:\\New.adf"));
}

TEST_F(WindowsStart, UmlautsStandInTheSystemsCodePage) {
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    Launch("D:\\K\xC3\xA4se.adf");
    EXPECT_THAT(StartFile(), HasSubstr("D:\\K\xE4"
                                       "se.adf\r\n"));
}

TEST_F(WindowsStart, CharactersThatTheStartFileCannotHoldGoToADirectStart) {
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    files.AddFile(form.TmpBatName, "Start \"\" old.exe\r\n");
    host.starter.startFileBytes = [](std::string_view) { return std::nullopt; };
    Launch("D:\\\xE4\xB8\xAD.adf");
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_FALSE(host.starter.runs[0].request.startFile);
    EXPECT_THAT(host.starter.runs[0].request.command, HasSubstr("D:\\\xE4\xB8\xAD.adf"));
    EXPECT_EQ(StartFile(), "(no file)");
    // Nothing has failed.
    EXPECT_EQ(host.beeper.count, 0);
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

// "Start" runs a batch file in a second command processor, which reads the line once more.
TEST_F(WindowsStart, BatchEmulatorWithAnOddNameIsStartedDirectly) {
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\nUseQuote=1\r\n");
    for (const char* emulator : {"C:\\My Emus\\run.bat", "C:\\Emus\\run.CMD", "C:\\Emus\\run"}) {
        for (const char* game : {"D:\\A & B.zip", "D:\\100%.zip", "D:\\x^y.zip"}) {
            Emulator(emulator);
            host.starter.runs.clear();
            Launch(game);
            ASSERT_EQ(host.starter.runs.size(), 1U);
            EXPECT_FALSE(host.starter.runs[0].request.startFile) << emulator << game;
        }
    }
    Emulator("C:\\R&D\\run.bat");
    Launch("D:\\Game.zip");
    EXPECT_FALSE(host.starter.runs.back().request.startFile);
}

TEST_F(WindowsStart, BatchEmulatorWithPlainNamesRunsFromTheStartFile) {
    Profile(
        "WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\nUseQuote=1\r\n"
        "EmulatorParameter=-x & y\r\n");
    Emulator("C:\\My Emus\\run.bat");
    Launch("D:\\My Roms\\Super Game.zip");
    EXPECT_THAT(StartFile(), HasSubstr("Start \"\" \"C:\\My Emus\\run.bat\" -x & y "
                                       "\"D:\\My Roms\\Super Game.zip\"\r\n"));
    EXPECT_TRUE(host.starter.runs[0].request.startFile);
}

TEST_F(WindowsStart, LaunchStoresItsDefaultsButNoStartScript) {
    Launch("D:\\Game.adf");
    const std::string profile = files.BytesOf(form.IniPath);
    EXPECT_THAT(profile, HasSubstr("UseQuote=0\r\n"));
    EXPECT_THAT(profile, HasSubstr("SplashTimer=6\r\n"));
    EXPECT_THAT(profile, HasSubstr("AutoMountDeamonTool=0\r\n"));
    EXPECT_THAT(profile, Not(HasSubstr("RunVBS_Script")));
}

TEST_F(WindowsStart, SettingUpAnEmulatorStoresNothingInItsProfile) {
    const std::string profile = "C:\\Kivu\\Config\\Other\\Kivu.ini";
    for (const char* bytes : {"[Settings]\r\nRomPath=x\r\n", "[Settings]\r\nEmulatorPath=\r\n"}) {
        files.AddFile(profile, bytes);
        setup.StartEmulator("Other", false);
        EXPECT_EQ(files.BytesOf(profile), bytes);
    }
    setup.StartEmulator("Amiga 600", false);
    EXPECT_FALSE(files.IsDirectory("C:\\Kivu\\Config\\Amiga 600"));
    EXPECT_EQ(host.dialogs.shown.size(), 3U);
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(WineStart, ProgramTakesConfigurationGameAndDisksUnderZ) {
    Emulator("/my emus/winuae.exe");
    Profile("WinUAE_ConfigParameter=-f\r\nEmulatorParameterAddDiskPath=1\r\n");
    form.DiskSlots[0] = "/roms/disk 1.adf";
    Launch("/roms/It's & $x.adf");
    EXPECT_EQ(StartFile(),
              "cd '/my emus/'\n'wine' '/my emus/winuae.exe' '-f' "
              "'Z:\\k\\Config\\Alpha\\Kivu_StartScript.uaecfg' 'Z:\\roms\\It'\\''s & $x.adf' &\n");
    EXPECT_THAT(files.BytesOf(form.StartScriptName), HasSubstr("floppy0=\"Z:\\roms\\disk 1.adf\""));
    EXPECT_EQ(Companion(), "(no file)");
}

TEST_F(WineStart, NameAloneStaysWithoutADrive) {
    Emulator("/e/winuae.exe");
    Profile(
        "WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n"
        "EmulatorParameterAddDiskPathWithoutPath=1\r\n");
    Launch("/roms/Super Game.zip");
    EXPECT_EQ(StartFile(), "cd '/e/'\n'wine' '/e/winuae.exe' 'Super Game.zip' &\n");
}

TEST_F(WineStart, BatchEmulatorRunsFromABatchFileOfItsOwn) {
    for (const char* ending : {"bat", "CMD"}) {
        Emulator(std::string("/my emus/run.") + ending);
        Profile(
            "WinUAE_ConfigParameter=-f\r\nEmulatorParameter=-x & y\r\n"
            "EmulatorParameterAddDiskPath=1\r\n");
        Launch("/roms/A, B (100).zip");
        EXPECT_EQ(Companion(), std::string("cd \"Z:\\my emus\\\"\r\n\"Z:\\my emus\\run.") + ending +
                                   "\" -f Z:\\k\\Config\\Alpha\\Kivu_StartScript.uaecfg -x & y "
                                   "\"Z:\\roms\\A, B (100).zip\"\r\n");
        EXPECT_EQ(StartFile(),
                  "cd '/my emus/'\n'wine' 'cmd' '/c' 'Z:\\k\\Config\\Alpha\\Kivu_tmp_wine.bat' "
                  "&\n");
    }
}

TEST_F(WineStart, NativeEmulatorGetsPlainPathsAndNoCompanion) {
    Emulator("/e/emu");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    Launch("/roms/Say \"x\".zip");
    EXPECT_EQ(StartFile(), "cd '/e/'\n'/e/emu' '/roms/Say \"x\".zip' &\n");
    EXPECT_EQ(Companion(), "(no file)");
}

TEST_F(WineStart, NameThatNothingMakesSafeIsRefused) {
    form.CurrentLanguage = 2;
    Emulator("/e/run.bat");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    files.AddFile(form.TmpBatName, "old");
    const std::string game = "/roms/Say \"x\" & y.zip";
    Launch(game);
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    const kivu::testing::ShownBox& box = host.dialogs.shown[0];
    EXPECT_THAT(box.text, HasSubstr("cannot be given to a batch file safely"));
    EXPECT_THAT(box.text, ::testing::EndsWith("\r" + game));
    EXPECT_EQ(box.icon, platform::Icon::Warning);
    EXPECT_EQ(box.buttons, platform::Buttons::Ok);
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(StartFile(), "(no file)");
    EXPECT_EQ(Companion(), "(no file)");
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
    EXPECT_FALSE(form.GameIsRunning);
}

TEST_F(WineStart, FullDiskIsNotTakenForAnUnsafeName) {
    Emulator("/e/run.bat");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    files.SetFreeSpace(0);
    Launch("/roms/a.zip");
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_THAT(host.dialogs.shown[0].text, HasSubstr("Start-File not found"));
    EXPECT_THAT(host.dialogs.shown[0].text, HasSubstr("Kivu_tmp_wine.bat"));
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_FALSE(form.GameIsRunning);
    // Nor is the file of an earlier start handed over.
    files.AddFile("/k/Config/Alpha/Kivu_tmp_wine.bat", "another game");
    Launch("/roms/a.zip");
    EXPECT_EQ(host.dialogs.shown.size(), 2U);
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

// The batch file reads its arguments again, and Wine fills in variables once more.
TEST_F(WineStart, NameThatIsReadAgainIsRefusedForABatchFile) {
    form.CurrentLanguage = 2;
    Emulator("/e/run.bat");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    for (const char* name : {"100%PATH% ^x.txt", "A&B.zip", "a<b.zip", "a>b.zip", "a|b.zip"}) {
        host.dialogs.shown.clear();
        Launch(std::string("/roms/") + name);
        ASSERT_EQ(host.dialogs.shown.size(), 1U) << name;
        EXPECT_EQ(host.dialogs.shown[0].title, "Start not possible");
        EXPECT_THAT(host.starter.runs, IsEmpty()) << name;
        EXPECT_EQ(Companion(), "(no file)");
    }
}

TEST_F(WineStart, RefusalSpeaksGermanOnGerman) {
    form.CurrentLanguage = 1;
    Emulator("/e/run.bat");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    Launch("/roms/100%PATH%.txt");
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_EQ(host.dialogs.shown[0].title, "Start nicht möglich");
    EXPECT_EQ(host.dialogs.shown[0].text,
              "Dieser Name kann einer Batch-Datei nicht sicher übergeben werden:\r"
              "/roms/100%PATH%.txt");
}

TEST_F(WineStart, EmulatorThatNothingMakesSafeIsRefusedToo) {
    for (const char* emulator : {"/a \"b\" & c/run.bat", "/a%b%/run.bat", "/a & c/run.cmd"}) {
        Emulator(emulator);
        Profile("WinUAE_UseMasterConfig=0\r\n");
        host.dialogs.shown.clear();
        Launch("/roms/a.zip");
        EXPECT_EQ(host.dialogs.shown.size(), 1U);
        EXPECT_THAT(host.starter.runs, IsEmpty());
    }
}

TEST_F(WineStart, CompanionThatCannotBeWrittenStartsNothing) {
    Emulator("/e/run.bat");
    files.AddDirectory(form.StartPfad + "Kivu_tmp_wine.bat");
    Launch("/roms/a.zip");
    EXPECT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_THAT(host.starter.runs, IsEmpty());
}

TEST_F(WineStart, DirectStartOfABatchFileGoesThroughItsCompanion) {
    Emulator("/e/run.bat");
    Profile("WinUAE_UseMasterConfig=0\r\nEmulatorParameterAddDiskPath=1\r\n");
    files.AddDirectory(form.TmpBatName);
    Launch("/roms/a.zip");
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const platform::StartRequest& run = host.starter.runs[0].request;
    EXPECT_THAT(run.words,
                ElementsAre("wine", "cmd", "/c", "Z:\\k\\Config\\Alpha\\Kivu_tmp_wine.bat"));
    EXPECT_EQ(run.style, platform::WindowStyle::Minimized);
    EXPECT_EQ(Companion(), "cd Z:\\e\\\r\nZ:\\e\\run.bat Z:\\roms\\a.zip\r\n");
}

TEST_F(WindowsStart, DirectStartWritesNoFileForAnotherWorld) {
    Emulator("C:\\Emus\\run.bat");
    BlockStartFile();
    Launch("D:\\Game.adf");
    EXPECT_EQ(Companion(), "(no file)");
}

TEST_F(WindowsStart, DirectStartOfABatchFileNeedsNoRoomOnTheDisk) {
    Profile("WinUAE_UseMasterConfig=0\r\n");
    Emulator("C:\\Emus\\run.bat");
    files.SetReadOnly(form.StartPfad);
    Launch("D:\\Game.adf");
    EXPECT_EQ(host.starter.runs.size(), 1U);
}

TEST_F(WineStart, RefusesACompanionWhoseOwnPathWouldBeActedUpon) {
    form.StartPfad = form.ConfigPath + "A&B/";
    form.IniPath = form.StartPfad + "Kivu.ini";
    form.TmpBatName = form.StartPfad + "Kivu_tmp.bat";
    Profile("WinUAE_UseMasterConfig=0\r\n");
    Emulator("/e/run.bat");
    Launch("/roms/a.zip");
    EXPECT_THAT(host.starter.runs, IsEmpty());
    EXPECT_EQ(Companion(), "(no file)");
}

}  // namespace
}  // namespace kivu::launch
