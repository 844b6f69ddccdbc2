// From an empty profile to the command line of a launch: what detection, the settings window's
// controls, its profile and a launch do together.

#include <gmock/gmock.h>

#include "launch/launch_room.h"
#include "settings/detection.h"
#include "settings/path_fields.h"
#include "settings_board.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::UnorderedElementsAre;

struct FreshProfile : ::testing::Test, launch::LaunchRoom {
    FreshProfile() : LaunchRoom('\\', "C:\\Kivu\\", "Alpha") { form.CurrentLanguage = 2; }

    // The window opens, the program is pointed at and its question answered with Yes, and saved.
    void Choose(const std::string& exe) {
        files.AddFile(exe, "MZ");
        SettingsBoard board;
        board.values = store.Load();
        board.PathChanged();
        board.Take(DetectEmulator(exe, form, false, [](const std::string&) { return true; }));
        if (const auto romPath =
                RomPathBesideProgram(board.values.TxtRomPath, form.AppDir, exe, files, nullptr))
            board.values.TxtRomPath = *romPath;
        ASSERT_TRUE(store.Save(board.values).IsDone());
        form.txtWinUAEExe.SetText(exe);
    }
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        const std::string bytes = files.BytesOf(form.IniPath);
        for (const std::string_view line : text::SplitLines(bytes))
            lines.emplace_back(line);
        return lines;
    }
    // The command line in the start file, behind "Start" and the emulator's directory.
    std::string CommandLine(const std::string& exe) {
        Profile("");
        Choose("D:\\e\\" + exe);
        const std::string game = "D:\\G\\Super Game.zip";
        files.SetShortName(game, "D:\\G\\SUPERG~1.ZIP");
        files.AddFile("D:\\G\\SUPERG~1.ZIP", "x");
        Launch(game);
        const std::string start = "Start \"\" D:\\e\\";
        std::string bytes = StartFile();
        const std::size_t at = bytes.find(start);
        return at == std::string::npos
                   ? bytes
                   : bytes.substr(at + start.size(), bytes.size() - at - start.size() - 2);
    }

    SettingsStore store{form, ini, files};
};

TEST_F(FreshProfile, OpeningStoresTheWindowsDefaultsAlone) {
    Profile("FullScreen=1\r\nSmartRomSelection=1\r\n");
    const SettingsValues values = store.Load();
    EXPECT_THAT(Lines(), UnorderedElementsAre("[Settings]", "FullScreen=1", "SmartRomSelection=1",
                                              "Dir_Parameter=*.adf", "SplashTimer=4",
                                              "WinUAE_UseMasterConfig=1", "AutoMountDeamonTool=0",
                                              "UseQuote=0", "EmulatorParameterAddDiskPath=0",
                                              "EmulatorParameterAddDiskPathWithoutPath=0"));
    EXPECT_EQ(values.TxtRomPath, "C:\\Kivu\\");
    EXPECT_EQ(values.txtWinUAEExe, "C:\\Kivu");
    EXPECT_EQ(values.SecondsTimerTxt, "4");
    EXPECT_EQ(values.DirBefehleTxt, "*.adf");
    EXPECT_EQ(values.DeMulAutostart, 0);
}

TEST_F(FreshProfile, OpenedBeforeTheProgramsProfileHasAJoystickItStoresNone) {
    files.AddFile(form.BaseIniName, "[Settings]\r\n");
    EXPECT_EQ(store.Load().Joystickcheck, 0);
    EXPECT_THAT(files.BytesOf(form.BaseIniName), HasSubstr("UseJoystick=0\r\n"));
    files.AddFile(form.BaseIniName, "[Settings]\r\nUseJoystick=1\r\n");
    EXPECT_EQ(store.Load().Joystickcheck, 1);
}

TEST_F(FreshProfile, OfWinUae) {
    Choose("C:\\Emu\\WinUAE\\winuae.exe");
    EXPECT_THAT(Lines(), UnorderedElementsAre(
                             "[Settings]", "KickstartRom=", "RomPath=..\\Emu\\WinUAE",
                             "AutoMountDeamonTool=0", "EmulatorPath=..\\Emu\\WinUAE\\winuae.exe",
                             "Dir_Parameter=*.adf", "FullScreen=0", "UseQuote=0", "SplashTimer=5",
                             "WinUAE_ConfigParameter=-f",
                             "EmulatorParameter=", "EmulatorParameterAddDiskPath=0",
                             "EmulatorParameterAddDiskPathWithoutPath=0",
                             "WinUAE_UseMasterConfig=1", "SmartRomSelection=0"));
}

TEST_F(FreshProfile, GamesAreGivenShortNamesWhereTheRowHasNoQuotes) {
    EXPECT_EQ(CommandLine("snes9x.exe"), "snes9x.exe D:\\G\\SUPERG~1.ZIP");
    EXPECT_EQ(CommandLine("mame.exe"), "mame.exe -cheat -skip_gameinfo D:\\G\\SUPERG~1.ZIP");
    EXPECT_EQ(CommandLine("x64.exe"), "x64.exe -fullscreen -autostart D:\\G\\SUPERG~1.ZIP");
    EXPECT_EQ(CommandLine("t2k.exe"), "t2k.exe SUPERG~1.ZIP");
}

TEST_F(FreshProfile, GamesAreQuotedWhereTheRowSaysSo) {
    const std::string game = "\"D:\\G\\Super Game.zip\"";
    EXPECT_EQ(CommandLine("dolphin.exe"), "dolphin.exe /e " + game);
    EXPECT_EQ(CommandLine("pcsx2.exe"), "pcsx2.exe --usecd --nogui --skipbios " + game);
    // The blank is there for all rows.
    EXPECT_EQ(CommandLine("nulldc.exe"), "nulldc.exe -config ImageReader:DefaultImage= " + game);
}

TEST_F(FreshProfile, SomeRowsGiveNoGame) {
    EXPECT_EQ(CommandLine("epsxe.exe"), "epsxe.exe -nogui -loadbin");
    for (const char* exe : {"akiko.exe", "demul.exe", "yabause.exe", "nebula.exe", "pt.exe",
                            "handy.exe", "project64.exe"})
        EXPECT_EQ(CommandLine(exe), exe);
}

}  // namespace
}  // namespace kivu::settings
