// The settings window comes up: in which shape, with what, and what that writes.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using ::testing::UnorderedElementsAre;

class Opening : public SettingsScenario {
 protected:
    std::vector<std::string> Lines(const char* file) {
        std::vector<std::string> lines;
        std::istringstream bytes(tree.Read(file));
        for (std::string line; std::getline(bytes, line);) {
            if (line.ends_with('\r')) line.pop_back();
            lines.push_back(line);
        }
        return lines;
    }
};

TEST_F(Opening, StoresTheToldDefaultsAndNothingElse) {
    std::filesystem::remove(testing::PathOf(tree.Path(profile)));
    Start();
    const auto before = Lines(profile);
    const std::string program = tree.Read(programProfile);
    Open([&] { Key("Escape"); });
    auto added = Lines(profile);
    std::erase_if(added, [&](const std::string& line) {
        return std::find(before.begin(), before.end(), line) != before.end();
    });
    EXPECT_THAT(added, UnorderedElementsAre("Dir_Parameter=*.adf", "SplashTimer=4",
                                            "WinUAE_UseMasterConfig=1", "AutoMountDeamonTool=0",
                                            "UseQuote=0", "EmulatorParameterAddDiskPath=0",
                                            "EmulatorParameterAddDiskPathWithoutPath=0"));
    for (const char* key : {"RomPath", "EmulatorPath", "RunVBS_Script"})
        EXPECT_EQ(Stored(key), "(none)") << key;
    EXPECT_EQ(tree.Read(programProfile), program);
    const std::string after = tree.Read(profile);
    Open([&] { Key("Escape"); });
    EXPECT_EQ(tree.Read(profile), after);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Opening, OfAReadOnlyDirectoryShowsTheDefaults) {
    tree.Write(profile);
    Start();
    Do("disk", "read-only");
    Open([&] {
        EXPECT_EQ(TextOf("DirBefehleTxt"), "*.adf");
        EXPECT_EQ(TextOf("SecondsTimerTxt"), "4");
        EXPECT_FALSE(Unsaved());
        Key("Escape");
    });
    EXPECT_EQ(Stored("Dir_Parameter"), "(none)");
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Opening, ShowsTheEmulatorsFiles) {
    Start();
    Open([&] {
        EXPECT_EQ(Of("IniPath"), tree.Path(profile));
        EXPECT_EQ(Of("ColorsIniName"), Get("ColorsIniName"));
        EXPECT_EQ(Of("StartPfad"), Get("StartPfad"));
        EXPECT_EQ(Of("Caption"), "Einstellungen");
        EXPECT_EQ(Of("MainSettingsOnly"), false);
        EXPECT_EQ(Of("Loading"), false);
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "Alpha");
        EXPECT_EQ(TextOf("txtWinUAEExe"), tree.Path("Emu/alpha"));
        EXPECT_EQ(TextOf("TxtRomPath"), tree.Path("Roms/Alpha") + testing::HostPath("/"));
        EXPECT_FALSE(Shown("FehlerIcon(0)"));
        EXPECT_FALSE(Shown("FehlerIcon(1)"));
        for (const char* icon : {"FehlerIcon(1)", "FehlerIcon(2)", "FehlerIcon(3)"})
            EXPECT_EQ(Of(std::string(icon) + ".Picture"), Of("FehlerIcon(0).Picture"));
        EXPECT_EQ(Of("DeMulAutostart.Left"), Of("UAELaunchParameterAddPath.Left"));
        EXPECT_EQ(Of("DeMulAutostart.Top"), Of("UAELaunchParameterAddPath.Top"));
        EXPECT_EQ(Of("BackgroundFrame.Left"), -60);
        EXPECT_EQ(Of("BackgroundFrame.Top"), -60);
        EXPECT_EQ(Of("BackgroundFrame.Width"), Of("Width").get<int>() + 120);
        EXPECT_EQ(Of("BackgroundFrame.Height"), Of("Height").get<int>() + 120);
        for (const char* panel : {"UAEFrame", "DeamonFrame", "DarstellungFrame"})
            EXPECT_FALSE(Shown(panel)) << panel;
        Key("Escape");
    });
}

// The first focus goes through its handler, or leaving the field would ask about its own text.
TEST_F(Opening, TheFieldInFocusKnowsItsText) {
    Start();
    Open([&] {
        EXPECT_EQ(Of("Focus"), "SettingsForm.txtWinUAEExe");
        EXPECT_EQ(Of("ExeAtFocus"), TextOf("txtWinUAEExe"));
        Key("Tab");
        EXPECT_NE(Of("Focus"), "SettingsForm.txtWinUAEExe");
        EXPECT_FALSE(Unsaved());
        Key("Escape");
    });
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Opening, AnEmptyProfileShowsTheProgramsDirectory) {
    tree.Write(profile);
    Start();
    Open([&] {
        EXPECT_EQ(TextOf("TxtRomPath"), Get("AppDir"));
        EXPECT_EQ(TextOf("txtWinUAEExe") + testing::HostPath("/"), Get("AppDir"));
        EXPECT_TRUE(Shown("FehlerIcon(0)"));
        Set("UAELaunchParaneter.Text", "-x");
        Save();
        Key("Escape");
    });
    EXPECT_EQ(Stored("RomPath"), "");
    EXPECT_EQ(Stored("EmulatorPath"), "");
}

TEST_F(Opening, ShapeGoesByTheButton) {
    Start();
    Do("click", "Form1.EmuListbox");
    OpenShort([&] {
        EXPECT_EQ(Of("MainSettingsOnly"), true);
        EXPECT_EQ(Of("Label1.Caption"), "General Settings:");
        for (const char* shown :
             {"Label11", "Joystickcheck", "ResetScreenRes", "FontSizeCombo", "SetJOyBtn", "SaveBtn",
              "ExitBtn", "Label7", "Label5", "DeamonButton", "Command4", "DeamonPath", "Picture2",
              "BackgroundFrame", "Label1"})
            EXPECT_TRUE(Shown(shown)) << shown;
        for (const char* hidden :
             {"SecondsTimerTxt", "txtWinUAEExe", "TxtRomPath", "LoadBtn", "ReloadAllBtn",
              "NewEmuBtn", "Command5", "IniBtn", "WinUAEBtn", "DonateBtn", "EmuDownload"})
            EXPECT_FALSE(Shown(hidden)) << hidden;
        EXPECT_EQ(Of("Focus"), "SettingsForm.Joystickcheck");
        EXPECT_FALSE(Unsaved());
        Set("ResetScreenRes.Value", 1);
        Save();
        Key("Escape");
    });
    EXPECT_EQ(StoredByProgram("ResetScreenResolution"), "1");
    // The choice of emulators stands as it was.
    EXPECT_TRUE(Visible("EmulatorLongListbox"));
    EXPECT_EQ(Get("EmuListbox.BackColor"), "#000000");
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Opening, WithNothingLoadedBothProfilesAreOneFile) {
    tree.WriteProgramProfile({});
    Start();
    EXPECT_EQ(Get("CurrentEmuIndex"), -1);
    Open([&] {
        EXPECT_EQ(Of("IniPath"), tree.Path(programProfile));
        EXPECT_EQ(Of("EmuNameLabel.Caption"), "No Emulator found");
        EXPECT_FALSE(On("LoadBtn"));
        Set("ResetScreenRes.Value", 1);
        Set("UAELaunchParaneter.Text", "-x");
        Save();
        EXPECT_EQ(StoredByProgram("ResetScreenResolution"), "1");
        EXPECT_EQ(StoredByProgram("EmulatorParameter"), "-x");
        Key("Escape");
    });
    EXPECT_TRUE(Visible("SettingsBtn"));
}

TEST_F(Opening, SkinPictureAndColours) {
    Start();
    const Json design = [&] {
        Json picture;
        Open([&] {
            picture = Of("BackgroundFrame.Picture");
            Key("Escape");
        });
        return picture;
    }();
    tree.Write("Config/Alpha/Skin/Settings.bmp", "BM not a picture");
    Open([&] {
        EXPECT_EQ(Of("BackgroundFrame.Picture"), design);
        Key("Escape");
    });
    tree.Write("Config/Alpha/Skin/Skin.ini",
               "[Settings]\r\nBackColor=#102030\r\nFontColor=#f0e0d0\r\n");
    Open([&] {
        EXPECT_EQ(Of("BackColor"), "#102030");
        EXPECT_EQ(Of("Label1.ForeColor"), "#F0E0D0");
        // Fields stand out the other way round.
        EXPECT_EQ(Of("txtWinUAEExe.BackColor"), "#F0E0D0");
        EXPECT_EQ(Of("txtWinUAEExe.ForeColor"), "#102030");
        Key("Escape");
    });
}

TEST_F(Opening, NotWhileSomethingIsUnderWay) {
    Start();
    int tried = 0;
    Host().events.onEvents = [&] {
        if (Get("Busy") != true) return;
        ++tried;
        for (const char* routine : {"SettingsBtn_Click", "SettingsShortBtn_Click"})
            Call(routine);
        EXPECT_TRUE(Refused("get", "SettingsForm.Caption"));
    };
    Do("dblclick", "Form1.EmuListbox", 1);
    Do("click", "Form1.LoadBtn");
    Host().events.onEvents = {};
    EXPECT_GT(tried, 0);
}

TEST_F(Opening, OnceAtATime) {
    Start();
    Open([&] {
        Call("SettingsBtn_Click");
        EXPECT_TRUE(open());
        EXPECT_EQ(Do("windows")["value"].size(), 2u);
        for (const char* control : {"ExitBtn", "SettingsBtn", "LoadBtn", "UAE_Short"})
            EXPECT_TRUE(Refused("click", std::string("Form1.") + control));
        Key("Escape");
    });
}

TEST_F(Opening, OverASearchItsHitsStay) {
    Start();
    Do("type", "Form1.SearchDblsTxt", "bee");
    Open([&] { Key("Escape"); });
    EXPECT_EQ(Get("SuchErgList.List"), Json({"Bee (1991)(Maker)"}));
    EXPECT_TRUE(Visible("SuchErgList"));
}

}  // namespace
}  // namespace kivu::scenarios
