#include "settings/known_group.h"

#include <gmock/gmock.h>

#include "settings_room.h"

namespace kivu::settings {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

struct Known : ::testing::Test, SettingsRoom {
    Known() : SettingsRoom('/') {
        host.starter.path["dosbox"] = "/usr/bin/dosbox";
        host.starter.path["mame"] = "/usr/games/mame";
        Open("/opt/kivu", "/opt/kivu/");
        known.FillKnownEmuCombo();
    }
    int RowOf(const std::string& text) const {
        const auto& rows = window.KnownEmuCombo.Rows();
        return static_cast<int>(std::find(rows.begin(), rows.end(), text) - rows.begin());
    }
};

TEST_F(Known, ThoseThatAreThereComeFirst) {
    EXPECT_EQ(window.KnownEmuCombo.List(0), "dosbox");
    EXPECT_EQ(window.KnownEmuCombo.List(1), "mame");
    EXPECT_THAT(window.KnownEmuCombo.Rows(), Contains("retroarch: snes9x"));
    EXPECT_THAT(window.KnownEmuCombo.Rows(), Contains("WinUAE (Amiga 500) (Windows, Wine)"));
    EXPECT_EQ(window.KnownEmuCombo.ListIndex(), -1);
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST(KnownOnWindows, AreThe23RowsThatCanBeMet) {
    SettingsRoom room;
    room.known.FillKnownEmuCombo();
    EXPECT_EQ(room.window.KnownEmuCombo.ListCount(), 23);
    EXPECT_EQ(room.window.KnownEmuCombo.List(20), "Mame (Multi-Acarde-Machine-Emulator)");
    room.known.FillKnownEmuCombo();
    EXPECT_EQ(room.window.KnownEmuCombo.ListCount(), 23);
}

TEST_F(Known, AChosenRowIsAskedAboutAndFillsAnEmptyPath) {
    Answers({Answer::Yes});
    input.Click(window.KnownEmuCombo, 0);
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("set defaults?",
                                 "dosbox found!\r\r"
                                 "Set the default launch - parameter for this program?")));
    EXPECT_EQ(window.txtWinUAEExe.Text(), "dosbox");
    EXPECT_FALSE(Fault(SettingsForm::faultyEmulator));
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.exe, *.com, *.bat");
    EXPECT_EQ(window.UseAnfz.Value(), 1);
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "0");
    EXPECT_EQ(window.TxtRomPath.Text(), "/opt/kivu/");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    EXPECT_EQ(window.KnownEmuCombo.Text(), "dosbox");
    known.DetectKnownEmulator("/e/handy.exe");
    EXPECT_EQ(window.KnownEmuCombo.Text(), "");
}

TEST_F(Known, APathThatIsThereStays) {
    window.txtWinUAEExe.SetText("/e/mine");
    Answers({Answer::Yes});
    input.Click(window.KnownEmuCombo, 1);
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/e/mine");
    EXPECT_EQ(window.UAELaunchParaneter.Text(), "-skip_gameinfo");
}

TEST_F(Known, WinUaesRowShowsItsPanelForAPathOfAnyName) {
    window.txtWinUAEExe.SetText("/e/start-amiga.sh");
    ASSERT_FALSE(window.WinUAEBtn.Visible());
    Answers({Answer::Yes, Answer::Yes});
    input.Click(window.KnownEmuCombo, 1);
    EXPECT_FALSE(window.WinUAEBtn.Visible());
    input.Click(window.KnownEmuCombo, RowOf("WinUAE (Amiga 500) (Windows, Wine)"));
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/e/start-amiga.sh");
    EXPECT_EQ(window.UseMasterConfig.Value(), 1);
    EXPECT_TRUE(window.WinUAEBtn.Visible());
    // A path that is typed from then on counts as told.
    window.txtWinUAEExe.SetText("/e/start-amiga2.sh");
    EXPECT_FALSE(window.WinUAEBtn.Visible());
    EXPECT_EQ(window.UseMasterConfig.Value(), 0);
}

TEST_F(Known, ANoChangesNothing) {
    Answers({Answer::No});
    input.Click(window.KnownEmuCombo, 0);
    EXPECT_EQ(TakeBoxes().size(), 1U);
    EXPECT_EQ(window.txtWinUAEExe.Text(), "/opt/kivu");
    EXPECT_EQ(window.DirBefehleTxt.Text(), "");
    EXPECT_FALSE(window.SaveBtn.Enabled());
    EXPECT_EQ(window.KnownEmuCombo.ListIndex(), -1);
    EXPECT_EQ(window.KnownEmuCombo.Text(), "");
    // And is asked again.
    input.Click(window.KnownEmuCombo, 0);
    EXPECT_EQ(TakeBoxes().size(), 1U);
}

TEST_F(Known, TheArrowKeysOnlyLookAndEnterTakes) {
    window.KnownEmuCombo.SetFocus();
    input.Stroke({forms::keys::down});
    input.Stroke({forms::keys::down});
    EXPECT_EQ(window.KnownEmuCombo.Text(), "mame");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
    Answers({Answer::Yes});
    input.Stroke({forms::keys::enter});
    EXPECT_EQ(TakeBoxes().size(), 1U);
    EXPECT_EQ(window.txtWinUAEExe.Text(), "mame");
    // What has been taken is not taken once more.
    input.Stroke({forms::keys::enter});
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Known, ARowThatWasOnlyLookedAtGoesWhenTheFieldIsLeft) {
    window.KnownEmuCombo.SetFocus();
    input.Stroke({forms::keys::end});
    EXPECT_GT(window.KnownEmuCombo.ListIndex(), 20);
    Leave();
    EXPECT_EQ(window.KnownEmuCombo.ListIndex(), -1);
    EXPECT_EQ(window.KnownEmuCombo.Text(), "");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Known, ARowTakenBehindTheArrowKeysIsAskedAbout) {
    window.KnownEmuCombo.SetFocus();
    input.Stroke({forms::keys::down});
    input.MouseDown(window.KnownEmuCombo, {});
    window.KnownEmuCombo.ClickRow(1);
    EXPECT_EQ(TakeBoxes().size(), 1U);
    // The rows have been dropped down by Alt+Down, and chosen from there.
    input.KeyDown({forms::keys::down, forms::shifts::alt});
    window.KnownEmuCombo.ClickRow(0);
    EXPECT_EQ(TakeBoxes().size(), 1U);
}

TEST_F(Known, RetroArchTakesACore) {
    Answers({Answer::Yes});
    input.Click(window.KnownEmuCombo, RowOf("retroarch: puae"));
    EXPECT_EQ(window.txtWinUAEExe.Text(), "retroarch");
    EXPECT_EQ(window.UAELaunchParaneter.Text(), "-f -L puae");
    EXPECT_TRUE(Fault(SettingsForm::faultyEmulator));
}

TEST_F(Known, TheDefaultsLeaveWhatTheyDoNotName) {
    window.SecondsTimerTxt.SetText("7");
    window.ParameterWithoutPath.SetValue(1);
    window.TxtKickstartRomFile.SetText("/kick.rom");
    window.DeMulAutostart.SetValue(1);
    window.UseMasterConfig.SetValue(1);
    window.UAELaunchParameterAddPath.SetValue(1);
    window.UseAnfz.SetValue(1);
    window.TxtMasterConfig.SetText("a=1\r\n");
    known.SetEmulatorDefaults();
    EXPECT_EQ(window.UseMasterConfig.Value(), 0);
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "");
    EXPECT_EQ(window.UAELaunchParaneter.Text(), "");
    EXPECT_EQ(window.UseAnfz.Value(), 0);
    EXPECT_EQ(window.UAELaunchParameterAddPath.Value(), 0);
    EXPECT_EQ(window.DirBefehleTxt.Text(), "*.*");
    EXPECT_EQ(window.TxtMasterConfig.Text(), "");
    EXPECT_EQ(window.SecondsTimerTxt.Text(), "7");
    EXPECT_EQ(window.ParameterWithoutPath.Value(), 1);
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "/kick.rom");
    EXPECT_EQ(window.DeMulAutostart.Value(), 1);
}

TEST_F(Known, NothingIsWrittenBeforeASave) {
    const auto before = files.changes;
    Answers({Answer::Yes, Answer::Yes});
    known.DetectKnownEmulator("/e/winuae.exe");
    input.Click(window.KnownEmuCombo, 0);
    EXPECT_EQ(files.changes, before);
}

}  // namespace
}  // namespace kivu::settings
