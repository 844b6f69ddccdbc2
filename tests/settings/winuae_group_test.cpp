#include "settings/winuae_group.h"

#include "winuae_room.h"

namespace kivu::settings {
namespace {

// --- The panel.

TEST_F(Winuae, ItsButtonOpensAndClosesThePanel) {
    OpenWindow();
    EXPECT_FALSE(window.UAEFrame.Visible());
    window.WinUAEBtn.Click();
    EXPECT_TRUE(window.UAEFrame.Visible());
    window.WinUAEBtn.Click();
    EXPECT_FALSE(window.UAEFrame.Visible());
    window.WinUAEBtn.Click();
    window.RemovePicEnabled.Click();
    EXPECT_FALSE(window.UAEFrame.Visible());
    EXPECT_FALSE(window.SaveBtn.Enabled());
}

TEST_F(Winuae, TheTemplateTurnsItsFiveControlsOn) {
    OpenWindow();
    const auto expectAll = [&](bool on) {
        for (forms::Control* control : std::initializer_list<forms::Control*>{
                 &window.TxtMasterConfig, &window.UAEMasterConfigLaunchParameter, &window.Command1,
                 &window.FullscreenCheck, &window.Command3})
            EXPECT_EQ(control->Enabled(), on) << control->Name();
    };
    window.UseMasterConfig.SetValue(0);
    expectAll(false);
    EXPECT_TRUE(window.SaveBtn.Enabled());
    window.UAEMasterConfigLaunchParameter.SetText("");
    window.UseMasterConfig.SetValue(1);
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "-f");
    expectAll(true);
    window.UAEMasterConfigLaunchParameter.SetText("-config");
    window.UseMasterConfig.SetValue(0);
    window.UseMasterConfig.SetValue(1);
    EXPECT_EQ(window.UAEMasterConfigLaunchParameter.Text(), "-config");
    window.TxtMasterConfig.SetEnabled(false);
    window.WinUAEBtn.Click();
    expectAll(true);
}

TEST_F(Winuae, EachOfItsControlsMarksTheWindowUnsaved) {
    OpenWindow();
    const auto expectUnsaved = [&](const std::function<void()>& change) {
        window.SaveBtn.SetEnabled(false);
        change();
        EXPECT_TRUE(window.SaveBtn.Enabled());
    };
    expectUnsaved([&] { window.TxtMasterConfig.SetText("b"); });
    expectUnsaved([&] { window.UAEMasterConfigLaunchParameter.SetText("b"); });
    expectUnsaved([&] { window.FullscreenCheck.SetValue(1); });
    expectUnsaved([&] { window.IntelligenteRomauswahl.SetValue(1); });
    expectUnsaved([&] { window.TxtKickstartRomFile.SetText("b"); });
    expectUnsaved([&] { window.UseMasterConfig.SetValue(0); });
}

TEST_F(Winuae, TheSignStandsBesideARomThatIsNotThere) {
    OpenWindow();
    window.WinUAEBtn.Click();
    EXPECT_TRUE(Fault(SettingsForm::faultyKickstart));
    files.AddFile("D:\\kick.rom", "x");
    window.TxtKickstartRomFile.SetText("D:\\kick.rom");
    EXPECT_FALSE(Fault(SettingsForm::faultyKickstart));
    window.TxtKickstartRomFile.SetText("D:\\Emu");
    EXPECT_TRUE(Fault(SettingsForm::faultyKickstart));
    Enter(window.TxtKickstartRomFile, " \"D:\\kick.rom\"");
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "D:\\kick.rom");
    EXPECT_FALSE(Fault(SettingsForm::faultyKickstart));
}

TEST_F(Winuae, ARomIsLookedForFromItsSignToo) {
    OpenWindow();
    fileDialogs.answers = {"", "*.rom", "D:\\kick.rom"};
    window.BrowseKickromBtn.Click();
    window.BrowseKickromBtn.Click();
    EXPECT_FALSE(window.SaveBtn.Enabled());
    window.FehlerIcon[SettingsForm::faultyKickstart].Click();
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "D:\\kick.rom");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    EXPECT_EQ(fileDialogs.asked.back().title, "WinUAE.Exe wählen");
    EXPECT_EQ(fileDialogs.asked.back().mask, "*.rom");
}

// --- Taking a configuration over.

TEST_F(Winuae, AnImportLeavesOutWhatEachLaunchWrites) {
    OpenWindow();
    EXPECT_TRUE(Import(
        "; sample\nconfig_description=A500\n  use_gui = no\nfloppy0=D:\\a.adf\n"
        "floppy1=D:\\b.adf\n;floppy1=\nfloppy1type=0\nFloppy1=x\nfloppy2=\nfloppy3=D:\\d.adf\n"
        "kickstart_rom_file=D:\\kick13.rom\nkickstart_rom_file_id=D52B52FD\n   \n\n"
        "chipmem_size=1\nnr_floppies=2\n"));
    EXPECT_EQ(fileDialogs.asked.back(),
              (ScriptedFileDialogs::Asked{"open", "D:\\Emu\\",
                                          "WinUAE Config file für Import wählen", "*.uae*"}));
    EXPECT_EQ(window.TxtMasterConfig.Text().size(), 176U);
    EXPECT_EQ(Md5::Of(window.TxtMasterConfig.Text()), "5f389fe47c6bdfdb30def18929850313");
    EXPECT_TRUE(window.SaveBtn.Enabled());
    EXPECT_EQ(window.TxtKickstartRomFile.Text(), "");
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk().size(), 178U);
    EXPECT_EQ(Md5::Of(OnDisk()), "8b3b253c19df199606acae085b590cb1");
}

TEST_F(Winuae, AnImportThatIsGivenUpKeepsTheText) {
    OpenWindow();
    for (const char* answer : {"", "*.uae*", "D:\\none.uae", "D:\\Emu"}) {
        fileDialogs.answers = {answer};
        window.Command1.Click();
        EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Kivu 1.4b", "Abbruch!"))) << answer;
        EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
        EXPECT_FALSE(window.SaveBtn.Enabled());
    }
    EXPECT_FALSE(Import(std::string("a\0b", 3)));
    EXPECT_FALSE(Import(std::string(largestConfiguration + 1, 'a')));
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
}

TEST_F(Winuae, AnImportBehindANewTickMakesTheMaster) {
    form.MasterConfigName.clear();
    files.Remove(masterName);
    OpenWindow();
    EXPECT_TRUE(Import("b=2\r\n"));
    EXPECT_EQ(form.MasterConfigName, masterName);
    EXPECT_EQ(OnDisk(), launch::DefaultMasterConfiguration());
    EXPECT_EQ(window.TxtMasterConfig.Text(), "b=2\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

// --- A test-run.

TEST_F(Winuae, ATestRunStartsWinUaeWithTheMasterOnTheDisk) {
    files.AddFile("D:\\My Emu\\winuae.exe", "MZ");
    OpenWindow();
    window.txtWinUAEExe.SetText("D:\\My Emu\\winuae.exe");
    window.TxtMasterConfig.SetText("b=2");
    bool enabled = true;
    host.starter.onRun = [&](const auto&) { enabled = window.Command3.Enabled(); };
    form.CURRENT_PROGRAM_STARTED.clear();
    window.SaveBtn.SetEnabled(false);
    window.Command3.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    const auto& request = host.starter.runs[0].request;
    EXPECT_EQ(request.command, std::string("\"D:\\My Emu\\winuae.exe\" -f ") + masterName);
    EXPECT_THAT(request.words, ElementsAre("D:\\My Emu\\winuae.exe", "-f", masterName));
    EXPECT_EQ(request.style, platform::WindowStyle::Normal);
    EXPECT_TRUE(request.watched);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(window.Command3.Enabled());
    EXPECT_TRUE(window.SaveBtn.Enabled());
    // Shortened as every name there, whose last four characters are its ending.
    EXPECT_EQ(form.CURRENT_PROGRAM_STARTED, "Master Co");
    EXPECT_EQ(form.CurrentRunninApplication, "winuae.exe");
    EXPECT_FALSE(form.EmuActiveTimer.Enabled());
    EXPECT_THAT(loadingScreen.owners, ElementsAre(&window));
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
}

TEST(WinuaeOnPosix, ATestRunGivesAWindowsProgramAPathOfItsWorld) {
    SettingsRoom room('/');
    room.files.AddFile("/emu/winuae.exe", "MZ");
    room.form.MasterConfigName = "/opt/kivu/Config/Kivu_Master.uaecfg";
    room.files.AddFile(room.form.MasterConfigName, "a=1\r\n");
    room.Open("/emu/winuae.exe", "/");
    room.window.UseMasterConfig.SetValue(1);
    room.window.Command3.Click();
    room.window.txtWinUAEExe.SetText("/emu/amiberry");
    room.window.UseMasterConfig.SetValue(1);
    room.window.Command3.Click();
    ASSERT_EQ(room.host.starter.runs.size(), 2U);
    EXPECT_THAT(room.host.starter.runs[0].request.words,
                ElementsAre("/emu/winuae.exe", "-f", "Z:\\opt\\kivu\\Config\\Kivu_Master.uaecfg"));
    EXPECT_THAT(room.host.starter.runs[1].request.words,
                ElementsAre("/emu/amiberry", "-f", "/opt/kivu/Config/Kivu_Master.uaecfg"));
}

TEST_F(Winuae, ATestRunBehindANewTickHasAMaster) {
    form.MasterConfigName.clear();
    files.Remove(masterName);
    OpenWindow();
    window.Command3.Click();
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_EQ(host.starter.runs[0].request.words.back(), masterName);
    EXPECT_EQ(OnDisk(), launch::DefaultMasterConfiguration());
}

}  // namespace
}  // namespace kivu::settings
