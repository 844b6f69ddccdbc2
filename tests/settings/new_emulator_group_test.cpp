#include "settings/new_emulator_group.h"

#include <gmock/gmock.h>

#include "settings_room.h"

namespace kivu::settings {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Answer = platform::Answer;

struct NewGroup : ::testing::Test, SettingsRoom {
    NewGroup() {
        for (const char* name : {"Beta", "Delta"}) {
            files.AddDirectory(form.ConfigPath + name);
            form.EmuListbox.AddItem(name);
            form.EmulatorLongListbox.AddItem(name);
        }
        form.EmuListbox.SetListIndexQuietly(1);
        form.CurrentEmuIndex = form.EmuBoxIndexSaved = 1;
        newEmulator.hooks.LoadAnew = [this](bool keepTyped) {
            loads.push_back(keepTyped);
            // As the window does, which now shows another emulator.
            if (!keepTyped) window.txtWinUAEExe.SetText("C:\\Kivu");
        };
        newEmulator.ShowState();
        window.SaveBtn.SetEnabled(false);
    }
    void Press(std::deque<std::string> names) {
        host.dialogs.inputs = std::move(names);
        window.NewEmuBtn.SetFocus();
        window.NewEmuBtn.Click();
    }
    std::vector<bool> loads;
};

TEST_F(NewGroup, TheTopRowSaysWhichEmulatorIsLoaded) {
    EXPECT_EQ(window.EmuNameLabel.Caption(), "Delta");
    EXPECT_TRUE(window.NewEmuBtn.Enabled());
    form.CurrentEmuIndex = -1;
    newEmulator.ShowState();
    EXPECT_EQ(window.EmuNameLabel.Caption(), "No Emulator found");
}

TEST_F(NewGroup, WhileAnEmulatorIsWatchedThereIsNoNewOne) {
    form.EmuActiveTimer.SetEnabled(true);
    newEmulator.ShowState();
    EXPECT_FALSE(window.NewEmuBtn.Enabled());
    // A game that was seen as started stays so without the watch.
    form.EmuActiveTimer.SetEnabled(false);
    form.GameIsRunning = true;
    newEmulator.ShowState();
    EXPECT_TRUE(window.NewEmuBtn.Enabled());
    form.Busy = true;
    newEmulator.NewEmuBtn_Click();
    EXPECT_THAT(host.dialogs.shown, IsEmpty());
}

// The watch rests under the window.
TEST_F(NewGroup, WhatWasStartedOutOfTheWindowIsLookedForByAPress) {
    form.CurrentRunninApplication = "stella.exe";
    form.EmuActiveTimer.SetEnabled(true);
    Press({"Gamma"});
    EXPECT_EQ(running.looks, 1);
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_EQ(host.dialogs.shown[0].title, "New emulator");
    EXPECT_EQ(host.dialogs.shown[0].text,
              "stella.exe\r\rThis program is still running. Please end it first.");
    EXPECT_THAT(loads, IsEmpty());
    // It has gone, and the main window has come back on top.
    running.onLook = [this] {
        form.EmuActiveTimer.SetEnabled(false);
        form.SetTopmost(true);
    };
    Press({"Gamma"});
    EXPECT_EQ(running.looks, 2);
    EXPECT_THAT(loads, ElementsAre(false));
    EXPECT_FALSE(form.IsTopmost());
}

TEST_F(NewGroup, ANewOneIsMadeListedAndLoaded) {
    Press({" Gamma "});
    EXPECT_EQ(host.dialogs.shown[0].text, "Name of the new emulator:");
    EXPECT_EQ(host.dialogs.shown[0].title, "New emulator");
    EXPECT_TRUE(files.IsDirectory(form.ConfigPath + "Gamma"));
    EXPECT_THAT(form.EmuListbox.Rows(), ElementsAre("Beta", "Delta", "Gamma"));
    EXPECT_THAT(form.EmulatorLongListbox.Rows(), ElementsAre("Beta", "Delta", "Gamma"));
    EXPECT_THAT(switching.selected, ElementsAre("Gamma"));
    EXPECT_FALSE(switching.addedToGlobal);
    EXPECT_FALSE(switching.windowEnabled);
    EXPECT_TRUE(window.Enabled());
    // The main window must not lie over this one.
    EXPECT_FALSE(form.IsTopmost());
    EXPECT_THAT(loads, ElementsAre(false));
    EXPECT_TRUE(window.txtWinUAEExe.HasFocus());
    EXPECT_EQ(window.ExeAtFocus, window.txtWinUAEExe.Text());
}

TEST_F(NewGroup, ARowBeforeTheLoadedOneMovesWhatIsNoted) {
    form.EmuBoxIndexSaved = 0;
    int noted = -1, saved = -1;
    form.EmuListbox.onClick = [&] {
        noted = form.CurrentEmuIndex;
        saved = form.EmuBoxIndexSaved;
    };
    Press({"Aard"});
    EXPECT_THAT(form.EmuListbox.Rows(), ElementsAre("Aard", "Beta", "Delta"));
    EXPECT_EQ(noted, 2);
    EXPECT_EQ(saved, 1);
    EXPECT_THAT(switching.selected, ElementsAre("Aard"));
}

TEST_F(NewGroup, ARowBehindTheLoadedOneMovesNothing) {
    int noted = -1;
    form.EmuListbox.onClick = [&] { noted = form.CurrentEmuIndex; };
    Press({"Zeta"});
    EXPECT_EQ(noted, 1);
}

TEST_F(NewGroup, AnEmptyNameLeaves) {
    for (const char* name : {"", "   "}) {
        Press({name});
        EXPECT_EQ(host.dialogs.shown.size(), 1U);
        host.dialogs.shown.clear();
    }
    EXPECT_THAT(switching.selected, IsEmpty());
    EXPECT_THAT(loads, IsEmpty());
}

TEST_F(NewGroup, ARefusedNameIsAskedForAgainWithTheSameText) {
    const std::string longName(300, 'x');
    Press({"NUL.txt", "..", "beta", longName, "'\"$&;", ""});
    const auto& shown = host.dialogs.shown;
    ASSERT_EQ(shown.size(), 11U);
    EXPECT_EQ(shown[0].initial, "");
    EXPECT_EQ(shown[1].text, "NUL.txt\r\rOn Windows this is the name of a device.");
    EXPECT_EQ(shown[2].initial, "NUL.txt");
    EXPECT_EQ(shown[4].initial, "..");
    EXPECT_EQ(shown[5].text, "beta\r\rThis name exists already.");
    EXPECT_EQ(shown[8].initial, longName);
    EXPECT_EQ(shown[10].initial, "'\"$&;");
    EXPECT_THAT(form.EmuListbox.Rows(), ElementsAre("Beta", "Delta"));
    EXPECT_THAT(switching.selected, IsEmpty());
}

TEST_F(NewGroup, ADirectoryThatCannotBeMadeIsTold) {
    files.SetReadOnly("C:\\Kivu\\Config");
    Press({"Gamma"});
    ASSERT_EQ(host.dialogs.shown.size(), 2U);
    EXPECT_EQ(host.dialogs.shown[1].icon, platform::Icon::Error);
    EXPECT_THAT(form.EmuListbox.Rows(), ElementsAre("Beta", "Delta"));
    EXPECT_THAT(loads, IsEmpty());
}

TEST_F(NewGroup, UnsavedChangesAreAskedAboutFirst) {
    window.SaveBtn.SetEnabled(true);
    Answers({Answer::Cancel});
    Press({"Gamma"});
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_EQ(host.dialogs.shown[0].title, "Undo changes and exit?");
    EXPECT_FALSE(files.IsDirectory(form.ConfigPath + "Gamma"));
    Answers({Answer::Ok});
    Press({"Gamma"});
    EXPECT_THAT(loads, ElementsAre(false));
}

TEST_F(NewGroup, WhatWasTypedWithoutAnEmulatorIsMeantForTheFirst) {
    form.CurrentEmuIndex = form.EmuBoxIndexSaved = -1;
    window.txtWinUAEExe.SetText("D:\\Emu\\thing.exe");
    ASSERT_TRUE(window.SaveBtn.Enabled());
    Press({"Gamma"});
    ASSERT_EQ(host.dialogs.shown.size(), 1U);
    EXPECT_THAT(loads, ElementsAre(true));
    EXPECT_EQ(window.ExeAtFocus, "D:\\Emu\\thing.exe");
}

TEST_F(NewGroup, SpeaksGerman) {
    form.CurrentLanguage = 1;
    Press({"con", ""});
    EXPECT_EQ(host.dialogs.shown[0].text, "Name des neuen Emulators:");
    EXPECT_EQ(host.dialogs.shown[0].title, "Neuer Emulator");
    EXPECT_EQ(host.dialogs.shown[1].text, "con\r\rUnter Windows ist das der Name eines Geräts.");
}

TEST_F(NewGroup, AnEmulatorThatComesUpWhileTheNameIsTypedEndsIt) {
    host.dialogs.onShow = [&] { form.EmuActiveTimer.SetEnabled(true); };
    Press({"Gamma"});
    EXPECT_FALSE(files.IsDirectory(form.ConfigPath + "Gamma"));
    EXPECT_THAT(switching.selected, IsEmpty());
}

}  // namespace
}  // namespace kivu::settings
