// The way to an emulator in the settings window: a new one, its program, its games, the first
// start.

#include <filesystem>
#include <utility>

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class Emulators : public SettingsScenario {
 protected:
    // What the dialog for files is answered.
    void AnswerFile(const std::string& path) {
        another = [this, path](forms::Form&) {
            Do("type", "Files.FileName", path);
            Do("click", "Files.Ok");
        };
    }
    void AnswerDirectory(const std::string& path) {
        another = [this, path](forms::Form&) {
            Do("set", "Files.KomplettPfadText.Text", path);
            Do("key", "Files.KomplettPfadText", "Enter");
            Do("click", "Files.OkBtn2");
        };
    }
    std::vector<std::string> Titles() {
        std::vector<std::string> titles;
        for (const Json& box : Boxes())
            titles.push_back(box["title"].get<std::string>());
        return titles;
    }
    std::vector<std::string> Rows(const char* list) {
        return Get(std::string(list) + ".List").get<std::vector<std::string>>();
    }
    std::string Program(const char* name) { return tree.Write(std::string("Emu/") + name, "MZ"); }
};

class FirstEmulator : public Emulators {
 protected:
    FirstEmulator() {
        std::filesystem::remove_all(testing::PathOf(tree.Path("Config")));
        tree.Write("Games/Ant (1990)(Maker).bin", "x");
        tree.Write("Games/sub/Bee (1991)(Maker).bin", "x");
        tree.Write("Games/readme.txt", "x");
    }
};

TEST_F(FirstEmulator, IsThereWithoutATextEditor) {
    const std::string exe = Program("stella.exe");
    Start();
    EXPECT_THAT(Text("LoadingBtn.Hint"), HasSubstr("New emulator.."));
    Boxes();
    Open([&] {
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "No Emulator found");
        Do("input", "Atari 2600");
        Click("NewEmuBtn");
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Atari 2600");
        EXPECT_EQ(Of("Focus"), "SettingsForm.txtWinUAEExe");
        EXPECT_EQ(Of("IniPath"), tree.Path("Config/Atari 2600/Kivu.ini"));
        EXPECT_THAT(Titles(), ElementsAre("New emulator"));
        AnswerFile(exe);
        Do("answer", "Yes", "Yes", "No");
        Click("Command2");
        EXPECT_THAT(Titles(), ElementsAre("set defaults?", "set defaults?", "stella.exe starten?"));
        EXPECT_EQ(TextOf("DirBefehleTxt"), "*.bin, *.zip");
        EXPECT_EQ(TextOf("TxtRomPath"), tree.Path("Emu") + testing::HostPath("/"));
        AnswerDirectory(tree.Path("Games"));
        Click("BrowseDir");
        EXPECT_EQ(TextOf("TxtRomPath"), tree.Path("Games") + testing::HostPath("/"));
        EXPECT_FALSE(Shown("FehlerIcon(1)"));
        Save();
        Click("LoadBtn");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Get("UAE_Short.ListCount"), 2);
    EXPECT_EQ(tree.Stored("Config/Atari 2600/Kivu.ini", "EmulatorPath"),
              testing::HostPath("/Emu/stella.exe"));
    EXPECT_EQ(tree.Stored(programProfile, "LastEmulator"), "Atari 2600");
    // A scan fills the complete list alone, and the other one says so.
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 0);
    EXPECT_THAT(Text("WIthoutDoubles.Hint"), HasSubstr("\"Complete List\""));
    Do("runs");
    Do("click", "Form1.Label3");
    Do("dblclick", "Form1.UAE_Short", 0);
    EXPECT_EQ(Do("runs")["value"].size(), 1u);
    EXPECT_THAT(tree.Read("Config/Atari 2600/Kivu_tmp.bat"), HasSubstr("Ant (1990)(Maker).bin"));
    // And it is all there at the next start.
    Start();
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Get("UAE_Short.ListCount"), 2);
}

TEST_F(FirstEmulator, HasItsGamesInTheSimpleListFromTheNextStartOn) {
    tree.AddEmulator("VCS", {{"RomPath", "/Games"}, {"Dir_Parameter", "*.bin"}});
    tree.WriteProgramProfile({{"LastEmulator", "VCS"}});
    Start();
    EXPECT_THAT(Text("WIthoutDoubles.Hint"), HasSubstr("No games in the list"));
    Do("click", "Form1.LoadBtn");
    EXPECT_EQ(Get("UAE_Short.ListCount"), 2);
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 0);
    EXPECT_THAT(Text("WIthoutDoubles.Hint"), HasSubstr("from the next start on"));
    Start();
    EXPECT_EQ(Get("WIthoutDoubles.ListCount"), 2);
}

TEST_F(FirstEmulator, TakesWhatWasTypedBeforeIt) {
    const std::string exe = Program("stella.exe");
    Start();
    Boxes();
    Open([&] {
        Do("answer", "Yes");
        Set("txtWinUAEExe.Text", exe);
        Do("focus", "SettingsForm.DirBefehleTxt");
        EXPECT_THAT(Titles(), ElementsAre("set defaults?"));
        Do("input", "VCS");
        Click("NewEmuBtn");
        EXPECT_THAT(Titles(), ElementsAre("New emulator"));
        EXPECT_EQ(TextOf("txtWinUAEExe"), exe);
        EXPECT_EQ(TextOf("DirBefehleTxt"), "*.bin, *.zip");
        EXPECT_EQ(tree.Stored("Config/VCS/Kivu.ini", "Dir_Parameter"), "(none)");
        Save();
        EXPECT_EQ(tree.Stored("Config/VCS/Kivu.ini", "Dir_Parameter"), "*.bin, *.zip");
        // The path was asked about once.
        Do("focus", "SettingsForm.txtWinUAEExe");
        Click("ExitBtn");
    });
    EXPECT_THAT(Titles(), ElementsAre());
}

TEST_F(FirstEmulator, ThatIsWinUaeSavesItsTemplate) {
    const std::string exe = Program("winuae.exe");
    Start();
    Boxes();
    Open([&] {
        Do("answer", "Yes");
        Set("txtWinUAEExe.Text", exe);
        Do("focus", "SettingsForm.DirBefehleTxt");
        Set("TxtMasterConfig.Text", "use_gui=yes\r\n");
        Do("input", "Amiga");
        Click("NewEmuBtn");
        Boxes();
        EXPECT_EQ(TextOf("TxtMasterConfig"), "use_gui=yes\r\n");
        Save();
        EXPECT_EQ(tree.Read("Config/Kivu_Master.uaecfg"), "use_gui=yes\r\n\r\n");
        Key("Escape");
    });
    EXPECT_THAT(Titles(), ElementsAre());
}

TEST_F(Emulators, ANewOneInFrontOfTheLoadedOneIsLoaded) {
    Start();
    Open([&] {
        Do("type", "SettingsForm.UAELaunchParaneter", "-x");
        Do("answer", "Cancel");
        Click("NewEmuBtn");
        EXPECT_THAT(Titles(), ElementsAre("Undo changes and exit?"));
        EXPECT_EQ(TextOf("UAELaunchParaneter"), "-x");
        Do("answer", "OK");
        Do("input", "alpha", "Aardvark");
        Click("NewEmuBtn");
        EXPECT_EQ(TextOf("UAELaunchParaneter"), "");
        EXPECT_FALSE(Unsaved());
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Aardvark");
        EXPECT_FALSE(Form().IsTopmost());
        Key("Escape");
    });
    EXPECT_TRUE(Form().IsTopmost());
    EXPECT_THAT(Rows("EmuListbox"), ElementsAre("Aardvark", "Alpha", "Beta"));
    EXPECT_THAT(Rows("EmulatorLongListbox"), ElementsAre("Aardvark", "Alpha", "Beta"));
    EXPECT_EQ(Get("CurrentEmuIndex"), 0);
    EXPECT_EQ(Text("EmuListbox.Text"), "Aardvark");
    EXPECT_THAT(Text("WIthoutDoubles.Hint"), HasSubstr("No games yet"));
    // The other one is where it was.
    Do("focus", "Form1.EmuListbox");
    Do("dblclick", "Form1.EmulatorLongListbox", 1);
    EXPECT_EQ(Text("EmuListbox.Text"), "Alpha");
    EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
}

TEST_F(Emulators, PanelsOfTheFormerOneCloseOverANewOne) {
    Start();
    Open([&] {
        Set("AutoMoundDeamonTools.Value", 1);
        Click("DeamonButton");
        Click("Command5");
        EXPECT_TRUE(Shown("DeamonFrame"));
        EXPECT_TRUE(Shown("DarstellungFrame"));
        Do("answer", "OK");
        Do("input", "Gamma");
        Click("NewEmuBtn");
        for (const char* panel : {"UAEFrame", "DeamonFrame", "DarstellungFrame"})
            EXPECT_FALSE(Shown(panel)) << panel;
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(Emulators, ADirectoryThatCannotBeMadeLeavesAllAsItWas) {
    Start();
    Do("disk", "read-only");
    Open([&] {
        Do("input", "Gamma");
        Click("NewEmuBtn");
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 2u);
        EXPECT_EQ(boxes[1]["icon"], "Error");
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Alpha");
        Key("Escape");
    });
    EXPECT_THAT(Rows("EmuListbox"), ElementsAre("Alpha", "Beta"));
}

TEST_F(Emulators, PressingSaveLeavesTheFieldFirst) {
    const std::string exe = Program("handy.exe");
    Start();
    Open([&] {
        Set("txtWinUAEExe.Text", exe);
        Do("answer", "Yes");
        Click("SaveBtn");
        EXPECT_THAT(Titles(), ElementsAre("set defaults?"));
        EXPECT_FALSE(Unsaved());
        EXPECT_EQ(Stored("Dir_Parameter"), "*.lnx, *.zip");
        EXPECT_EQ(Stored("SplashTimer"), "0");
        Key("Escape");
    });
    EXPECT_THAT(Titles(), ElementsAre());
}

TEST_F(Emulators, TheFieldsTextAtTheFocusIsKept) {
    Start();
    Open([&] {
        const std::string exe = TextOf("txtWinUAEExe");
        EXPECT_EQ(Of("ExeAtFocus"), exe);
        Do("type", "SettingsForm.txtWinUAEExe", "x");
        EXPECT_EQ(Of("ExeAtFocus"), exe);
        // Closing asks nothing about a path that is given up.
        Do("answer", "OK");
        Key("Escape");
    });
    EXPECT_THAT(Titles(), ElementsAre("Undo changes and exit?"));
}

TEST_F(Emulators, AKnownOneIsChosenFromItsRows) {
    Start();
    Open([&] {
        const auto rows = Of("KnownEmuCombo.List").get<std::vector<std::string>>();
        const auto row = std::find_if(rows.begin(), rows.end(), [](const std::string& text) {
            return text.starts_with("Project64");
        });
        ASSERT_NE(row, rows.end());
        Do("answer", "Yes");
        Do("select", "SettingsForm.KnownEmuCombo", row - rows.begin());
        EXPECT_THAT(Titles(), ElementsAre("set defaults?"));
        EXPECT_EQ(TextOf("DirBefehleTxt"), "*.zip, *.7z, *.*64");
        EXPECT_EQ(TextOf("txtWinUAEExe"), tree.Path("Emu/alpha"));
        EXPECT_TRUE(Unsaved());
        Do("answer", "OK");
        Key("Escape");
    });
}

TEST_F(Emulators, TheProgramIsStartedAloneAndWatched) {
    Start();
    Do("runs");
    Open([&] {
        EXPECT_TRUE(On("NewEmuBtn"));
        EmulatorComesUp();
        Click("LaunchButton");
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 1u);
        EXPECT_EQ(runs[0]["words"], Json::array({tree.Path("Emu/alpha")}));
        EXPECT_EQ(runs[0]["directory"], tree.Path("Emu"));
        EXPECT_EQ(Get("CurrentRunninApplication"), "alpha");
        EXPECT_TRUE(Visible("AppRunningPicture"));
        EXPECT_TRUE(On("LaunchButton"));
        Click("NewEmuBtn");
        EXPECT_THAT(Titles(), ElementsAre("New emulator"));
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Alpha");
        // It ends while the window is open, which the watch sees when that has gone.
        EmulatorGoes();
        Key("Escape");
        EXPECT_FALSE(open());
    });
    EXPECT_TRUE(Visible("AppRunningPicture"));
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    Open([&] {
        EXPECT_TRUE(On("NewEmuBtn"));
        Key("Escape");
    });
}

TEST_F(Emulators, AWindowThatIsClosedWhileAProgramComesUpLeavesTheMainOneOnTop) {
    Start();
    ASSERT_TRUE(Form().IsTopmost());
    Open([&] {
        Set("UAELaunchParaneter.Text", "-x");
        Do("beeps");
        bool rested = false;
        Host().clock.onRest = [&] {
            if (std::exchange(rested, true)) return;
            Click("SaveBtn");
            EXPECT_TRUE(Unsaved());
            EXPECT_EQ(Do("beeps")["value"], 1);
            Do("answer", "OK");
            Click("ExitBtn");
            EXPECT_FALSE(open());
        };
        EmulatorComesUp();
        Click("LaunchButton");
        Host().clock.onRest = {};
    });
    EXPECT_TRUE(Form().IsTopmost());
}

TEST_F(Emulators, ANewOneIsMadeBehindAStartThatHasEnded) {
    Start();
    Open([&] {
        EmulatorComesUp();
        Click("LaunchButton");
        EmulatorGoes();
        Do("input", "Gamma");
        Click("NewEmuBtn");
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Gamma");
        EXPECT_FALSE(Visible("AppRunningPicture"));
        Key("Escape");
    });
    EXPECT_EQ(Text("EmuListbox.Text"), "Gamma");
    EXPECT_TRUE(Visible("SettingsBtn"));
}

TEST_F(Emulators, GamesBesideAnotherProgramAreProposed) {
    const std::string exe = Program("thing.exe");
    tree.MakeDirectory("Emu/Roms/empty");
    tree.Write("Emu/Disks/a.adf", "x");
    Start();
    Open([&] {
        Set("TxtRomPath.Text", tree.Path("none"));
        EXPECT_TRUE(Shown("FehlerIcon(1)"));
        Set("txtWinUAEExe.Text", exe);
        Do("answer", "No");
        Do("focus", "SettingsForm.DirBefehleTxt");
        EXPECT_THAT(Titles(), ElementsAre("Unknown Emulator"));
        EXPECT_EQ(TextOf("TxtRomPath"), tree.Path("Emu/Disks") + testing::HostPath("/"));
        EXPECT_FALSE(Shown("FehlerIcon(1)"));
        Do("answer", "OK");
        Key("Escape");
    });
}

TEST_F(Emulators, WinUaesRowOutlivesASaveForAPathOfAnyName) {
    Start();
    Open([&] {
        const auto rows = Of("KnownEmuCombo.List").get<std::vector<std::string>>();
        const auto row = std::find_if(rows.begin(), rows.end(), [](const std::string& text) {
            return text.starts_with("WinUAE (Amiga 500)");
        });
        ASSERT_NE(row, rows.end());
        EXPECT_FALSE(Shown("WinUAEBtn"));
        Do("answer", "Yes");
        Do("select", "SettingsForm.KnownEmuCombo", row - rows.begin());
        EXPECT_TRUE(Shown("WinUAEBtn"));
        Save();
        Key("Escape");
    });
    for (const char* round : {"opened", "opened again"}) {
        SCOPED_TRACE(round);
        Open([&] {
            EXPECT_EQ(TextOf("txtWinUAEExe"), tree.Path("Emu/alpha"));
            EXPECT_TRUE(Shown("WinUAEBtn"));
            EXPECT_EQ(Of("UseMasterConfig.Value"), 1);
            EXPECT_EQ(TextOf("UAEMasterConfigLaunchParameter"), "-f");
            Set("DirBefehleTxt.Text", round);
            Save();
            EXPECT_EQ(Stored("WinUAE_UseMasterConfig"), "1");
            Key("Escape");
        });
    }
}

}  // namespace
}  // namespace kivu::scenarios
