// The master configuration between its file and its box.

#include "winuae_room.h"

namespace kivu::settings {
namespace {

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

// The change to the new emulator has made it.
TEST_F(FirstWinuae, SavesWhatWasTypedOverTheLaunchersOwnDefault) {
    winuae.EmptyMasterText();
    window.TxtMasterConfig.SetText("b=2\r\n");
    Master(launch::DefaultMasterConfiguration());
    LoadNew();
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

}  // namespace
}  // namespace kivu::settings
