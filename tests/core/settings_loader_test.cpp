#include "core/settings_loader.h"

#include <gmock/gmock.h>

#include "core/form1.h"
#include "testing/memory_file_system.h"
#include "testing/quiet_ports.h"
#include "testing/scripted_host.h"

namespace kivu::core {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

struct SettingsLoaderTest : ::testing::Test {
    SettingsLoaderTest() {
        form.AppDir = "/k/";
        form.EXE = "Kivu";
        form.StartPfad = "/k/Config/Alpha/";
        form.BaseIniName = "/k/Config/Kivu.ini";
        form.IniPath = "/k/Config/Alpha/Kivu.ini";
        files.AddDirectory("/k/Config/Alpha");
        for (int size = 8; size <= 80; ++size)
            form.FontSizeCombo.AddItem(std::to_string(size));
        loader.ports.layout = layout;
        loader.hooks.JoystickEnable = [this](bool on) { enabled.push_back(on); };
        Controllers(1);
    }
    // The loader finds so many controllers.
    void Controllers(int count) {
        loader.hooks.JoystickCount = [count] { return count; };
    }
    void Program(const std::string& settings) {
        files.AddFile(form.BaseIniName, "[Settings]\r\n" + settings);
    }
    void Emulator(const std::string& settings) {
        files.AddFile(form.IniPath, "[Settings]\r\n" + settings);
    }

    kivu::testing::MemoryFileSystem files;
    kivu::testing::ScriptedHost host{files};
    Form1 form{forms::Toolkit{}};
    profile::Ini ini{files};
    kivu::testing::QuietLayout layout;
    SettingsLoader loader{form, ini, files, host.dialogs};
    std::vector<bool> enabled;
};

TEST_F(SettingsLoaderTest, FreshProfileHoldsTheJoystickDefaultsAfterTheSecondStart) {
    loader.LoadSettings();
    // The first read of all makes the file, and stores nothing yet.
    EXPECT_THAT(files.BytesOf(form.BaseIniName), Not(HasSubstr("Button1=")));
    loader.LoadSettings();
    const std::string profile = files.BytesOf(form.BaseIniName);
    EXPECT_THAT(profile, HasSubstr("UseJoystick=1\r\n"));
    EXPECT_THAT(profile, HasSubstr("UseJoystickExitbutton=0\r\n"));
    EXPECT_THAT(profile, HasSubstr("Fontsize=16\r\n"));
    for (int button = 1; button <= 12; ++button) {
        EXPECT_THAT(profile, HasSubstr("Button" + std::to_string(button) + "=" +
                                       std::to_string(button - 1) + "\r\n"));
    }
}

TEST_F(SettingsLoaderTest, ButtonsGoIntoTheirPlaces) {
    Program("Button1=5\r\nButton12=-1\r\nButton3=third\r\n");
    form.JoystickButtons.fill(99);
    loader.LoadSettings();
    EXPECT_THAT(form.JoystickButtons, ElementsAre(5, 1, 0, 3, 4, 5, 6, 7, 8, 9, 10, -1, 99));
}

TEST_F(SettingsLoaderTest, StoredPathsBecomeAbsoluteOnes) {
    Emulator("RomPath=../roms\r\nEmulatorPath=/Emu/alpha\r\nKickstartRom=/kick.rom\r\n");
    loader.LoadSettings();
    EXPECT_EQ(form.TxtRomPath.Text(), "/roms/");
    EXPECT_EQ(form.txtWinUAEExe.Text(), "/k/Emu/alpha");
    EXPECT_EQ(form.TxtKickstartRomFile.Text(), "/k/kick.rom");
}

TEST_F(SettingsLoaderTest, NoKickstartRomStaysEmpty) {
    loader.LoadSettings();
    EXPECT_EQ(form.TxtKickstartRomFile.Text(), "");
}

TEST_F(SettingsLoaderTest, PathWrittenByHandMayBeAbsoluteAlready) {
    files.AddFile("/usr/games/alpha", "x");
    Emulator("EmulatorPath=/usr/games/alpha\r\n");
    loader.LoadSettings();
    EXPECT_EQ(form.txtWinUAEExe.Text(), "/usr/games/alpha");
    files.AddFile("/k/usr/games/alpha", "x");
    loader.LoadSettings();
    EXPECT_EQ(form.txtWinUAEExe.Text(), "/k/usr/games/alpha");
}

TEST_F(SettingsLoaderTest, FontSizeIsARowAndNoSize) {
    loader.LoadSettings();
    EXPECT_EQ(form.FontSizeCombo.ListIndex(), 16);
    EXPECT_EQ(form.FontSizeCombo.SelectedText(), "24");
    Program("Fontsize=500\r\n");
    loader.LoadSettings();
    EXPECT_EQ(form.FontSizeCombo.ListIndex(), 16);
}

TEST_F(SettingsLoaderTest, DrivesPanelStandsWhereItWasLeft) {
    form.SettingsSubPicture.Move(100, 200, 3000, 2000);
    Emulator("DrvWindowX=4000\r\nDrvWindowY=50000\r\n");
    loader.LoadSettings();
    EXPECT_EQ(form.SettingsSubPicture.Left(), 4000);
    EXPECT_EQ(form.SettingsSubPicture.Top(), 50000);
    Emulator("");
    loader.LoadSettings();
    EXPECT_THAT(files.BytesOf(form.IniPath), HasSubstr("DrvWindowX=4000\r\nDrvWindowY=50000\r\n"));
}

TEST_F(SettingsLoaderTest, DrivesPanelShowsWithSmartRomSelectionOnly) {
    for (const auto& [stored, shown] :
         {std::pair{"1", true}, std::pair{"0", false}, std::pair{"2", false}}) {
        Emulator(std::string("SmartRomSelection=") + stored + "\r\n");
        loader.LoadSettings();
        EXPECT_EQ(form.SettingsSubPicture.Visible(), shown) << stored;
    }
    Emulator("");
    loader.LoadSettings();
    EXPECT_TRUE(form.SettingsSubPicture.Visible());
}

TEST_F(SettingsLoaderTest, StartFilesPathLosesTheQuotesOfALaunch) {
    form.TmpBatName = "\"/k/Config/Alpha/Kivu_tmp.bat\"";
    loader.LoadSettings();
    EXPECT_EQ(form.TmpBatName, "/k/Config/Alpha/Kivu_tmp.bat");
}

TEST_F(SettingsLoaderTest, NoControllerAsksWhetherToSwitchTheJoystickOff) {
    Controllers(0);
    Program("");
    host.dialogs.answers = {platform::Answer::Yes};
    loader.LoadSettings();
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_EQ(host.dialogs.shown[0].title, "Joysticks / Gamepads = 0)");
    EXPECT_EQ(host.dialogs.shown[0].buttons, platform::Buttons::YesNo);
    EXPECT_THAT(files.BytesOf(form.BaseIniName), HasSubstr("UseJoystick=0\r\n"));
    EXPECT_THAT(enabled, ElementsAre(true, false));
    loader.LoadSettings();
    EXPECT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_THAT(enabled, ElementsAre(true, false, false));
}

TEST_F(SettingsLoaderTest, ButtonsAloneCanBeReadAnew) {
    Program("Button1=5\r\n");
    loader.LoadButtons();
    EXPECT_EQ(form.JoystickButtons[0], 5);
    EXPECT_THAT(enabled, IsEmpty());
}

TEST_F(SettingsLoaderTest, QuestionIsAskedInTheUsersLanguageAndNoKeepsTheSetting) {
    Controllers(0);
    Program("UseJoystick=1\r\n");
    form.CurrentLanguage = 1;
    loader.LoadSettings();
    form.CurrentLanguage = 2;
    loader.LoadSettings();
    ASSERT_EQ(host.dialogs.shown.size(), 2U);
    EXPECT_EQ(host.dialogs.shown[0].text,
              "Es wurden keine Joysticks oder Gampads gefunden!\r\r"
              "Soll die Joystick-Bedienung den Optionen ausgeschaltet werden?");
    EXPECT_EQ(host.dialogs.shown[1].text,
              "No Joysticks or Gampads found!\r\rDo you want to disable the Joystick-Navigation? ");
    EXPECT_THAT(files.BytesOf(form.BaseIniName), HasSubstr("UseJoystick=1\r\n"));
}

TEST_F(SettingsLoaderTest, NobodyIsAskedWithAControllerOrWithTheJoystickOff) {
    Controllers(1);
    loader.LoadSettings();
    Controllers(0);
    Program("UseJoystick=0\r\n");
    loader.LoadSettings();
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
    EXPECT_FALSE(enabled.empty());
}

TEST_F(SettingsLoaderTest, TheDevicesStayWithAGameThatRuns) {
    Program("UseJoystick=1\r\n");
    form.GameIsRunning = true;
    form.EmuActiveTimer.SetEnabled(true);
    Controllers(0);
    loader.LoadSettings();
    EXPECT_THAT(enabled, IsEmpty());
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
    // Nobody would switch them off at its end.
    Program("UseJoystick=0\r\n");
    loader.LoadSettings();
    EXPECT_THAT(enabled, ElementsAre(false));
}

TEST_F(SettingsLoaderTest, ReadOnlyProfilesStillLoad) {
    files.FailChanges(std::errc::read_only_file_system);
    loader.LoadSettings();
    EXPECT_EQ(files.BytesOf(form.BaseIniName), "(no file)");
    EXPECT_EQ(form.JoystickButtons[11], 11);
    EXPECT_EQ(form.FullscreenCheck.Value(), 1);
    EXPECT_EQ(form.FontSizeCombo.ListIndex(), 16);
}

}  // namespace
}  // namespace kivu::core
