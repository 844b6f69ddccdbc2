#include "settings/settings_store.h"

#include <gmock/gmock.h>

#include "testing/faulty_file_system.h"
#include "testing/memory_file_system.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

struct SettingsStoreTest : ::testing::Test {
    SettingsStoreTest() {
        program.AppDir = "/k/";
        program.BaseIniName = "/k/Config/Kivu.ini";
        program.IniPath = "/k/Config/Alpha/Kivu.ini";
        disk.AddDirectory("/k/Config/Alpha");
        // Different ones, so that no two are mistaken for each other.
        values.Joystickcheck = 1;
        values.ResetScreenRes = 0;
        values.FontSizeCombo = 12;
        values.DeamonPath = "/opt/mount";
        values.KillButtonKombo = 3;
        values.TxtKickstartRomFile = "/k/kick.rom";
        values.TxtRomPath = "/roms/";
        values.txtWinUAEExe = "/emu/uae";
        values.AutoMoundDeamonTools = 0;
        values.DirBefehleTxt = "*.adf, *.zip";
        values.FullscreenCheck = 1;
        values.UseAnfz = 0;
        values.DeMulAutostart = 1;
        values.OpenVBS = true;
        values.SecondsTimerTxt = "7";
        values.UAEMasterConfigLaunchParameter = "-f";
        values.UAELaunchParaneter = "-x";
        values.UAELaunchParameterAddPath = 1;
        values.ParameterWithoutPath = 0;
        values.UseMasterConfig = 1;
        values.IntelligenteRomauswahl = 0;
    }
    std::vector<std::string> Keys(bool scriptIsOn = false) {
        std::vector<std::string> lines;
        for (const KeyWrite& write : WritesOf(values, program, scriptIsOn).list) {
            const bool global = write.key->profile == profile::keys::Profile::program;
            lines.push_back((global ? "P " : "E ") + std::string(write.key->name) + "=" +
                            write.value);
        }
        return lines;
    }
    std::string Program() const { return disk.BytesOf(program.BaseIniName); }
    std::string Emulator() const { return disk.BytesOf(program.IniPath); }

    core::ProgramFiles program;
    SettingsValues values;
    testing::MemoryFileSystem disk;
    testing::FaultyFileSystem files{disk};
    profile::Ini ini{files};
    SettingsStore store{program, ini, files};
};

TEST_F(SettingsStoreTest, WritesTheKeysInTheirOrder) {
    EXPECT_THAT(Keys(), ElementsAre("P UseJoystick=1", "P ResetScreenResolution=0", "P Fontsize=12",
                                    "P DeamonToolPath=/opt/mount", "E KickstartRom=/kick.rom",
                                    "E RomPath=../roms", "E AutoMountDeamonTool=0",
                                    "E EmulatorPath=../emu/uae", "E Dir_Parameter=*.adf, *.zip",
                                    "E FullScreen=1", "E UseQuote=0", "E RunVBS_Script=1",
                                    "P UseJoystickExitbutton=3", "E SplashTimer=7",
                                    "E WinUAE_ConfigParameter=-f", "E EmulatorParameter=-x",
                                    "E EmulatorParameterAddDiskPath=1",
                                    "E EmulatorParameterAddDiskPathWithoutPath=0",
                                    "E WinUAE_UseMasterConfig=1", "E SmartRomSelection=0"));
}

TEST_F(SettingsStoreTest, EachControlReachesItsKeyAlone) {
    struct Change {
        std::function<void(SettingsValues&)> make;
        std::string line;
    };
    const std::vector<Change> changes{
        {[](auto& v) { v.Joystickcheck = 0; }, "P UseJoystick=0"},
        {[](auto& v) { v.ResetScreenRes = 1; }, "P ResetScreenResolution=1"},
        {[](auto& v) { v.FontSizeCombo = 2; }, "P Fontsize=2"},
        {[](auto& v) { v.DeamonPath = "d"; }, "P DeamonToolPath=d"},
        {[](auto& v) { v.KillButtonKombo = 0; }, "P UseJoystickExitbutton=0"},
        {[](auto& v) { v.TxtKickstartRomFile = ""; }, "E KickstartRom="},
        {[](auto& v) { v.TxtRomPath = "/k/roms/"; }, "E RomPath=/roms"},
        {[](auto& v) { v.txtWinUAEExe = "stella"; }, "E EmulatorPath=stella"},
        {[](auto& v) { v.AutoMoundDeamonTools = 1; }, "E AutoMountDeamonTool=1"},
        {[](auto& v) { v.DirBefehleTxt = "*.*"; }, "E Dir_Parameter=*.*"},
        {[](auto& v) { v.FullscreenCheck = 0; }, "E FullScreen=0"},
        {[](auto& v) { v.UseAnfz = 1; }, "E UseQuote=1"},
        {[](auto& v) { v.DeMulAutostart = 0; }, "E RunVBS_Script=0"},
        {[](auto& v) { v.SecondsTimerTxt = "0"; }, "E SplashTimer=0"},
        {[](auto& v) { v.UAEMasterConfigLaunchParameter = ""; }, "E WinUAE_ConfigParameter="},
        {[](auto& v) { v.UAELaunchParaneter = "/e "; }, "E EmulatorParameter=/e "},
        {[](auto& v) { v.UAELaunchParameterAddPath = 0; }, "E EmulatorParameterAddDiskPath=0"},
        {[](auto& v) { v.ParameterWithoutPath = 1; },
         "E EmulatorParameterAddDiskPathWithoutPath=1"},
        {[](auto& v) { v.UseMasterConfig = 0; }, "E WinUAE_UseMasterConfig=0"},
        {[](auto& v) { v.IntelligenteRomauswahl = 1; }, "E SmartRomSelection=1"},
    };
    const SettingsValues before = values;
    const std::vector<std::string> old = Keys();
    for (const Change& change : changes) {
        values = before;
        change.make(values);
        std::vector<std::string> changed;
        const std::vector<std::string> now = Keys();
        ASSERT_EQ(now.size(), old.size());
        for (std::size_t i = 0; i < now.size(); ++i)
            if (now[i] != old[i]) changed.push_back(now[i]);
        EXPECT_THAT(changed, ElementsAre(change.line));
    }
}

TEST_F(SettingsStoreTest, WhatIsSavedIsLoaded) {
    store.Save(values);
    SettingsValues loaded = store.Load();
    loaded.FontSizeCombo = values.FontSizeCombo;
    loaded.OpenVBS = values.OpenVBS;
    EXPECT_EQ(loaded, values);
}

TEST_F(SettingsStoreTest, TheScriptIsTurnedOffButAStoredZeroStays) {
    values.OpenVBS = false;
    values.DeMulAutostart = 0;
    EXPECT_THAT(Keys(false), Not(::testing::Contains(HasSubstr("RunVBS_Script"))));
    EXPECT_THAT(Keys(true), ::testing::Contains("E RunVBS_Script=0"));

    const std::string untouched = "[Settings]\r\nRunVBS_Script= 0 \r\n";
    disk.AddFile(program.IniPath, untouched);
    store.Save(values);
    EXPECT_THAT(Emulator(), HasSubstr(untouched));
    disk.AddFile(program.IniPath, "[Settings]\r\nRunVBS_Script=1\r\n");
    EXPECT_EQ(store.Load().DeMulAutostart, 1);
    store.Save(values);
    EXPECT_THAT(Emulator(), HasSubstr("RunVBS_Script=0\r\n"));
    disk.AddFile(program.IniPath, "");
    store.Save(values);
    EXPECT_THAT(Emulator(), Not(HasSubstr("RunVBS_Script")));
}

TEST_F(SettingsStoreTest, SecondsThatAreNoNumberEndTheSaving) {
    values.SecondsTimerTxt = "4 sec";
    const KeyWrites writes = WritesOf(values, program, false);
    EXPECT_FALSE(writes.complete);
    EXPECT_EQ(writes.list.back().key->name, "UseJoystickExitbutton");
    const auto saved = store.Save(values);
    EXPECT_FALSE(saved.complete);
    EXPECT_FALSE(saved.IsDone());
    EXPECT_THAT(saved.failed, IsEmpty());
    EXPECT_THAT(Emulator(), HasSubstr("RunVBS_Script=1\r\n"));
    EXPECT_THAT(Program(), HasSubstr("UseJoystickExitbutton=3\r\n"));
    EXPECT_THAT(Emulator(), Not(HasSubstr("SplashTimer")));
    EXPECT_THAT(Emulator(), Not(HasSubstr("EmulatorParameter")));
}

TEST_F(SettingsStoreTest, ARowThatTheListHasNotGotLeavesTheKey) {
    disk.AddFile(program.BaseIniName, "[Settings]\r\nUseJoystickExitbutton=11\r\nFontsize=200\r\n");
    EXPECT_EQ(store.Load().KillButtonKombo, -1);
    values.KillButtonKombo = -1;
    values.FontSizeCombo = -1;
    store.Save(values);
    EXPECT_THAT(Program(), HasSubstr("UseJoystickExitbutton=11\r\nFontsize=200\r\n"));
    disk.AddFile(program.BaseIniName, "[Settings]\r\nUseJoystickExitbutton=3\r\n");
    EXPECT_EQ(store.Load().KillButtonKombo, 3);
    disk.AddFile(program.BaseIniName, "[Settings]\r\nUseJoystickExitbutton=-1\r\n");
    EXPECT_EQ(store.Load().KillButtonKombo, -1);
}

TEST_F(SettingsStoreTest, WithoutAnEmulatorBothProfilesAreOneFile) {
    program.IniPath = program.BaseIniName;
    EXPECT_TRUE(store.Save(values).IsDone());
    EXPECT_EQ(files.Writes(), 1);
    EXPECT_THAT(Program(), HasSubstr("UseJoystick=1\r\n"));
    EXPECT_THAT(Program(), HasSubstr("RomPath=../roms\r\n"));
    EXPECT_THAT(Program(), HasSubstr("SmartRomSelection=0\r\n"));
}

TEST_F(SettingsStoreTest, EachProfileIsWrittenOnce) {
    EXPECT_TRUE(store.Save(values).IsDone());
    EXPECT_EQ(files.Writes(), 2);
    EXPECT_TRUE(store.Save(values).IsDone());
    EXPECT_EQ(files.Writes(), 2);
}

TEST_F(SettingsStoreTest, LinesOfOthersKeepTheirBytes) {
    disk.AddFile(program.IniPath,
                 "; mine \xE4\n[Settings]\nSplashTimer = 7\nDownload=1\n\n[Other]\nRomPath=x\n");
    store.Save(values);
    EXPECT_THAT(Emulator(), HasSubstr("; mine \xE4\n[Settings]\nSplashTimer = 7\nDownload=1\n"));
    EXPECT_THAT(Emulator(), HasSubstr("\n[Other]\nRomPath=x\n"));
}

TEST_F(SettingsStoreTest, AFailedWriteIsToldAndTheOtherProfileWritten) {
    for (const auto step :
         {testing::FaultyFileSystem::Step::Write, testing::FaultyFileSystem::Step::Flush,
          testing::FaultyFileSystem::Step::Rename}) {
        disk.AddFile(program.IniPath, "old");
        files.Heal();
        files.OnlyFor("Alpha");
        files.FailFrom(step, 1, std::errc::no_space_on_device);
        const auto saved = store.Save(values);
        EXPECT_THAT(saved.failed, ElementsAre(program.IniPath));
        EXPECT_FALSE(saved.IsDone());
        EXPECT_EQ(Emulator(), "old");
        EXPECT_THAT(Program(), HasSubstr("UseJoystick=1"));
    }
    files.Heal();
    files.OnlyFor("");
    files.FillDisk();
    values.Joystickcheck = 0;
    EXPECT_THAT(store.Save(values).failed, ElementsAre(program.BaseIniName, program.IniPath));
}

TEST_F(SettingsStoreTest, WhatIsNoFileIsNotOverwritten) {
    disk.AddDirectory(program.IniPath);
    EXPECT_THAT(store.Save(values).failed, ElementsAre(program.IniPath));
    disk.Remove(program.IniPath);
    disk.AddFile(program.IniPath, "[Settings]\r\nmine=1\r\n");
    disk.SetUnreadable(program.IniPath);
    EXPECT_THAT(store.Save(values).failed, ElementsAre(program.IniPath));
    EXPECT_EQ(Emulator(), "[Settings]\r\nmine=1\r\n");
}

TEST_F(SettingsStoreTest, ValuesInQuotesComeBack) {
    for (const char* text : {"\"C:\\a b\\c.exe\"", "'x'", "\"", "'", "\"\"", "\"a\" -b \"c\"",
                             "'\"$&;'", "a \"b\"", "", "'\"$&;"}) {
        values.UAELaunchParaneter = text;
        ASSERT_TRUE(store.Save(values).IsDone());
        EXPECT_EQ(store.Load().UAELaunchParaneter, text);
    }
    EXPECT_EQ(ProtectedValue("\"a\""), "\"\"a\"\"");
    EXPECT_EQ(ProtectedValue("'a'"), "\"'a'\"");
    EXPECT_EQ(ProtectedValue("a"), "a");
    // Blanks at an end are lost, as ever.
    EXPECT_EQ(ProtectedValue(" /e "), " /e ");
    values.UAELaunchParaneter = " \"a\" ";
    store.Save(values);
    EXPECT_EQ(store.Load().UAELaunchParaneter, "\"a\"");
}

TEST_F(SettingsStoreTest, ALineEndInAValueMakesNoSecondLine) {
    values.UAELaunchParaneter = "-a\r\nRomPath=evil";
    store.Save(values);
    EXPECT_THAT(Emulator(), HasSubstr("EmulatorParameter=-a\r\n"));
    EXPECT_THAT(Emulator(), Not(HasSubstr("evil")));
}

TEST(WholeNumber, IsTheWholeText) {
    EXPECT_EQ(WholeNumber("4"), 4);
    EXPECT_EQ(WholeNumber(" 5 "), 5);
    EXPECT_EQ(WholeNumber("-1"), -1);
    EXPECT_EQ(WholeNumber("+3"), 3);
    EXPECT_EQ(WholeNumber("2,5"), 2);
    EXPECT_EQ(WholeNumber("3.5"), 4);
    EXPECT_EQ(WholeNumber(".75"), 1);
    EXPECT_EQ(WholeNumber("6."), 6);
    EXPECT_EQ(WholeNumber("32767"), 32767);
    for (const char* text : {"", " ", "4 sec", "sec", "4s", "0x4", "1e3", "32768", "-32769", "-",
                             ".", "1.2.3", "4 5", "--4", "\t4"})
        EXPECT_EQ(WholeNumber(text), std::nullopt) << text;
}

}  // namespace
}  // namespace kivu::settings
