#include "settings/winuae_group.h"

#include <gmock/gmock.h>

#include "launch/uae_configuration.h"
#include "settings_room.h"
#include "testing/md5.h"

namespace kivu::settings {
namespace {

using kivu::testing::Md5;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;
using Answer = platform::Answer;

constexpr const char* masterName = "C:\\Kivu\\Config\\Kivu_Master.uaecfg";

// An emulator that was switched to with the template on.
struct Winuae : ::testing::Test, SettingsRoom {
    Winuae() {
        files.AddFile("D:\\Emu\\winuae.exe", "MZ");
        files.AddFile("D:\\Games\\a.adf", "x");
        Master("a=1\r\nfloppy1=x\r\n");
        form.MasterConfigName = masterName;
    }
    void Master(std::string_view bytes) { files.AddFile(masterName, bytes); }
    std::string OnDisk() const { return files.BytesOf(masterName); }
    void OpenWindow() {
        winuae.LoadMaster();
        Open("D:\\Emu\\winuae.exe", "D:\\Games\\");
        window.UseMasterConfig.SetValue(1);
        window.SaveBtn.SetEnabled(false);
    }
    bool Import(std::string_view bytes) {
        files.AddFile("D:\\Emu\\other.uae", bytes);
        fileDialogs.answers = {"D:\\Emu\\other.uae"};
        window.Command1.Click();
        return TakeBoxes().empty();
    }
};

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

// --- The master.

TEST_F(Winuae, TheMasterIsShownWithoutWhatEachLaunchWrites) {
    OpenWindow();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "a=1\r\n\r\n");
    winuae.LoadMaster();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
}

TEST_F(Winuae, TheDefaultLosesAnEmptyLineAndGainsOne) {
    Master(launch::DefaultMasterConfiguration());
    OpenWindow();
    EXPECT_EQ(Md5::Of(window.TxtMasterConfig.Text()), "ee4ad06ec82e9684987c084ba9ed86c6");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(Md5::Of(OnDisk()), "b8b95985ca33188f9ed5b9f1a5271c6c");
}

TEST_F(Winuae, WithoutATemplateThereIsNothingToSave) {
    form.MasterConfigName.clear();
    OpenWindow();
    window.UseMasterConfig.SetValue(0);
    window.TxtMasterConfig.SetText("b=2");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
}

TEST_F(Winuae, WhatAnotherEmulatorsDefaultsEmptiedStaysOnTheDisk) {
    OpenWindow();
    window.txtWinUAEExe.SetFocus();
    Answers({Answer::Yes, Answer::Yes});
    EnterProgram("D:\\x\\handy.exe");
    EXPECT_EQ(window.TxtMasterConfig.Text(), "");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
    // The box shows it again, and what is changed there from then on is meant.
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    TakeBoxes();
    window.TxtMasterConfig.SetText("b=2\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Winuae, WhatIsTypedIntoAnEmptiedBoxReplacesTheSharedFileOnlyBehindAQuestion) {
    OpenWindow();
    winuae.EmptyMasterText();
    window.TxtMasterConfig.SetText("b=2\r\n");
    Answers({Answer::No});
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("WinUAE config template",
                                 std::string("All WinUAE profiles use this file, and it is not "
                                             "empty:\r\r") +
                                     masterName +
                                     "\r\rDo you want to overwrite it with the text of this "
                                     "window?")));
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    winuae.EmptyMasterText();
    window.TxtMasterConfig.SetText("b=2\r\n");
    Answers({Answer::Yes});
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
}

TEST_F(Winuae, ATextTypedBehindANewTickIsSaved) {
    form.MasterConfigName.clear();
    files.Remove(masterName);
    OpenWindow();
    window.TxtMasterConfig.SetText("b=2\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(form.MasterConfigName, masterName);
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Winuae, ANewTickAloneShowsTheMasterOfTheOthers) {
    form.MasterConfigName.clear();
    OpenWindow();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    EXPECT_EQ(OnDisk(), "a=1\r\n\r\n");
}

TEST_F(Winuae, ATextTypedBehindANewTickDoesNotReplaceTheMasterOfTheOthersUnasked) {
    form.MasterConfigName.clear();
    OpenWindow();
    window.TxtMasterConfig.SetText("b=2\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(TakeBoxes().size(), 1U);
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
}

// There was no emulator yet when the window opened.
struct FirstWinuae : Winuae {
    FirstWinuae() {
        form.MasterConfigName.clear();
        OpenWindow();
    }
    void LoadNew() {
        form.MasterConfigName = masterName;
        winuae.TakeMaster();
    }
};

TEST_F(FirstWinuae, SavesWhatWasTypedForIt) {
    files.Remove(masterName);
    window.TxtMasterConfig.SetText("b=2\r\n");
    LoadNew();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "b=2\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(FirstWinuae, ShowsTheMasterWhereNothingWasTyped) {
    LoadNew();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "a=1\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "a=1\r\n\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(FirstWinuae, AsksBeforeWhatWasTypedReplacesAMaster) {
    window.TxtMasterConfig.SetText("b=2\r\n");
    LoadNew();
    Answers({Answer::Yes});
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(TakeBoxes().size(), 1U);
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
}

TEST_F(Winuae, AMasterThatASaveMakesKeepsItsDefault) {
    files.Remove(masterName);
    OpenWindow();
    EXPECT_EQ(window.TxtMasterConfig.Text(), "");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), launch::DefaultMasterConfiguration());
    EXPECT_EQ(window.TxtMasterConfig.Text().size(), 229U);
}

TEST_F(Winuae, AnotherProgramsChangeIsTakenWhereTheBoxIsUntouched) {
    OpenWindow();
    Master("c=3\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(window.TxtMasterConfig.Text(), "c=3\r\n");
    EXPECT_EQ(OnDisk(), "c=3\r\n");
    EXPECT_THAT(TakeBoxes(), IsEmpty());
}

TEST_F(Winuae, WhereBothHaveChangedItTheUserIsAsked) {
    OpenWindow();
    window.TxtMasterConfig.SetText("b=2\r\n");
    Master("c=3\r\n");
    Answers({Answer::No});
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_THAT(
        TakeBoxes(),
        ElementsAre(Pair("WinUAE config template",
                         std::string("Another program has changed this file meanwhile:\r\r") +
                             masterName +
                             "\r\rDo you want to overwrite it with the text of this "
                             "window?")));
    EXPECT_EQ(window.TxtMasterConfig.Text(), "c=3\r\n");
    window.TxtMasterConfig.SetText("b=2\r\n");
    Master("d=4\r\n");
    Answers({Answer::Yes});
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
}

TEST_F(Winuae, AFailedWriteIsToldAndLeavesTheOldFile) {
    OpenWindow();
    window.TxtMasterConfig.SetText("b=2\r\n");
    files.SetReadOnly(masterName);
    EXPECT_FALSE(winuae.SaveMaster());
    EXPECT_THAT(TakeBoxes(), ElementsAre(Pair("Save", std::string("This file could not be "
                                                                  "written:\r\r") +
                                                          masterName)));
    EXPECT_EQ(OnDisk(), "a=1\r\nfloppy1=x\r\n");
    files.SetReadOnly(masterName, false);
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "b=2\r\n\r\n");
}

TEST_F(Winuae, AMasterThatIsNoTextIsNeitherShownNorReplaced) {
    for (const std::string& bytes :
         {std::string("a\0b", 3), std::string(largestConfiguration + 1, 'a')}) {
        Master(bytes);
        OpenWindow();
        EXPECT_EQ(window.TxtMasterConfig.Text(), "");
        EXPECT_TRUE(winuae.SaveMaster());
        EXPECT_EQ(OnDisk(), bytes);
    }
}

TEST_F(Winuae, ADoubleClickOpensTheMasterInAnEditor) {
    OpenWindow();
    window.WinUAEBtn.Click();
    input.DoubleClick(window.TxtMasterConfig);
    ASSERT_EQ(host.starter.runs.size(), 1U);
    EXPECT_TRUE(host.starter.runs[0].edited);
    EXPECT_EQ(host.starter.runs[0].request.command, masterName);
    EXPECT_TRUE(window.SaveBtn.Enabled());
    // The work done there is not overwritten.
    Master("edited=1\r\n");
    EXPECT_TRUE(winuae.SaveMaster());
    EXPECT_EQ(OnDisk(), "edited=1\r\n");
    EXPECT_EQ(window.TxtMasterConfig.Text(), "edited=1\r\n");
    host.starter.result = std::make_error_code(std::errc::no_such_file_or_directory);
    input.DoubleClick(window.TxtMasterConfig);
    EXPECT_THAT(TakeBoxes(),
                ElementsAre(Pair("Editor", std::string("No editor could be started for this "
                                                       "file:\r\r") +
                                               masterName)));
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
