// SaveBtn: what it writes, what it lets the main window do, and what keeps it on.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

using Saving = SettingsScenario;

TEST_F(Saving, TheMainWindowWorksWithWhatWasWritten) {
    Start();
    Open([&] {
        Set("TxtRomPath.Text", tree.Path("Roms/Beta"));
        Save();
        EXPECT_EQ(Get("TxtRomPath.Text"), tree.Path("Roms/Beta") + testing::HostPath("/"));
        Key("Escape");
    });
    Do("click", "Form1.LoadBtn");
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Cat (1992)(Maker)"}));
}

TEST_F(Saving, SecondsThatAreNoNumberEndIt) {
    tree.Write(profile, ProgramDirectory::Profile({{"EmulatorPath", "/Emu/alpha"},
                                                   {"SplashTimer", "7"},
                                                   {"EmulatorParameter", "-old"}}));
    for (const char* seconds : {"4 sec", "", "x", "40000", "1-2"}) {
        SCOPED_TRACE(seconds);
        Start();
        Open([&] {
            Set("DirBefehleTxt.Text",
                std::string("*.") + std::to_string(std::string(seconds).size()));
            Set("SecondsTimerTxt.Text", seconds);
            Set("UAELaunchParaneter.Text", "-new");
            Do("beeps");
            Click("SaveBtn");
            EXPECT_TRUE(Unsaved());
            EXPECT_EQ(Do("beeps")["value"], 1);
            EXPECT_EQ(Of("Focus"), "SettingsForm.SecondsTimerTxt");
            EXPECT_EQ(Stored("Dir_Parameter"),
                      std::string("*.") + std::to_string(std::string(seconds).size()));
            EXPECT_EQ(Stored("SplashTimer"), "7");
            EXPECT_EQ(Stored("EmulatorParameter"), "-old");
            Set("SecondsTimerTxt.Text", " 7 ");
            Set("UAELaunchParaneter.Text", "-old");
            Save();
            EXPECT_EQ(Stored("SplashTimer"), "7");
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
    }
}

TEST_F(Saving, ADiskThatTakesNothingIsToldOf) {
    for (const char* fault : {"full", "read-only"}) {
        SCOPED_TRACE(fault);
        Start();
        Open([&] {
            const std::string emulator = tree.Read(profile);
            Set("UAELaunchParaneter.Text", fault);
            Set("ResetScreenRes.Value", 1);
            Do("disk", fault);
            Click("SaveBtn");
            EXPECT_TRUE(Unsaved());
            const Json boxes = Boxes();
            ASSERT_EQ(boxes.size(), 2u);
            EXPECT_THAT(boxes[0]["text"].get<std::string>(), HasSubstr(tree.Path(programProfile)));
            EXPECT_THAT(boxes[1]["text"].get<std::string>(), HasSubstr(tree.Path(profile)));
            EXPECT_EQ(boxes[1]["icon"], "Error");
            EXPECT_EQ(tree.Read(profile), emulator);
            Do("disk", "fine");
            Save();
            EXPECT_EQ(Stored("EmulatorParameter"), fault);
            EXPECT_EQ(StoredByProgram("ResetScreenResolution"), "1");
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
}

TEST_F(Saving, OneProfileOfTwoFails) {
    Start();
    Open([&] {
        Set("UAELaunchParaneter.Text", "-x");
        Set("ResetScreenRes.Value", 1);
        Do("disk", "read-only", "Alpha");
        Click("SaveBtn");
        EXPECT_TRUE(Unsaved());
        EXPECT_EQ(Boxes().size(), 1u);
        EXPECT_EQ(StoredByProgram("ResetScreenResolution"), "1");
        EXPECT_NE(Stored("EmulatorParameter"), "-x");
        Do("answer", "OK");
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

// The user's own lines, and those that another editor has written meanwhile.
TEST_F(Saving, KeepsWhatIsNotItsOwn) {
    Start();
    Open([&] {
        tree.Write(profile,
                   "; mine\r\n[Settings]\r\nEmulatorParameter=-a ; b\r\nOwn=1\r\n"
                   "[Other]\r\nEmulatorParameter=z\r\n");
        Set("UAELaunchParaneter.Text", "-x");
        Save();
        const std::string bytes = tree.Read(profile);
        EXPECT_THAT(bytes, HasSubstr("; mine\r\n[Settings]\r\n"));
        EXPECT_THAT(bytes, HasSubstr("Own=1\r\n"));
        EXPECT_THAT(bytes, HasSubstr("[Other]\r\nEmulatorParameter=z\r\n"));
        EXPECT_EQ(Stored("EmulatorParameter"), "-x");
        Key("Escape");
    });
}

TEST_F(Saving, ByKeysFromAnyField) {
    Start();
    Open([&] {
        Key("Ctrl+S");
        EXPECT_EQ(Stored("EmulatorParameter"), "(none)");
        Do("type", "SettingsForm.UAELaunchParaneter", "-x");
        Key("Ctrl+S");
        EXPECT_FALSE(Unsaved());
        EXPECT_EQ(Stored("EmulatorParameter"), "-x");
        EXPECT_EQ(Of("Focus"), "SettingsForm.UAELaunchParaneter");
        EXPECT_EQ(TextOf("UAELaunchParaneter"), "-x");
        // What a field makes of its text when it is left is there, too.
        Set("TxtRomPath.Text", "\"" + tree.Path("Roms/Beta") + "\"");
        Do("focus", "SettingsForm.TxtRomPath");
        Key("Ctrl+S");
        EXPECT_EQ(Stored("RomPath"), testing::HostPath("/Roms/Beta"));
        EXPECT_EQ(Of("Focus"), "SettingsForm.TxtRomPath");
        Key("Escape");
    });
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Saving, TheFocusLeavesAButtonThatGoesOff) {
    Start();
    Open([&] {
        Set("UAELaunchParaneter.Text", "-x");
        Do("focus", "SettingsForm.SaveBtn");
        Click("SaveBtn");
        EXPECT_EQ(Of("Focus"), "SettingsForm.ExitBtn");
        Key("Escape");
    });
}

TEST_F(Saving, DrivesPanelStaysWhereItIs) {
    tree.AddEmulator("Alpha", {{"RomPath", "/Roms/Alpha"},
                               {"EmulatorPath", "/Emu/winuae.exe"},
                               {"DrvWindowX", "100"},
                               {"DrvWindowY", "200"},
                               {"SmartRomSelection", "1"}});
    tree.Write("Emu/winuae.exe", "MZ");
    Start();
    Do("set", std::string("Form1.") + "SettingsSubPicture.Left", 3000);
    Do("set", std::string("Form1.") + "SettingsSubPicture.Top", 2500);
    Open([&] {
        Set("UAELaunchParaneter.Text", "-x");
        Save();
        Key("Escape");
    });
    EXPECT_EQ(Get("SettingsSubPicture.Left"), 3000);
    EXPECT_EQ(Get("SettingsSubPicture.Top"), 2500);
    EXPECT_TRUE(Visible("SettingsSubPicture"));
    // Behind the open choice it is hidden, and stays so.
    Do("click", "Form1.EmuListbox");
    EXPECT_FALSE(Visible("SettingsSubPicture"));
    OpenShort([&] {
        Set("ResetScreenRes.Value", 1);
        Save();
        Key("Escape");
    });
    EXPECT_FALSE(Visible("SettingsSubPicture"));
}

TEST_F(Saving, NoControllersAndNoWishForThem) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "0"}});
    Start();
    Do("device", "clear");
    Open([&] {
        EXPECT_FALSE(Shown("SetJOyBtn"));
        EXPECT_FALSE(On("KillButtonKombo"));
        Set("Joystickcheck.Value", 1);
        EXPECT_TRUE(Shown("SetJOyBtn"));
        EXPECT_TRUE(On("KillButtonKombo"));
        Do("answer", "Yes", "Yes");
        Click("SaveBtn");
        EXPECT_FALSE(Unsaved());
        EXPECT_EQ(Of("Joystickcheck.Value"), 0);
        EXPECT_FALSE(Shown("SetJOyBtn"));
        EXPECT_FALSE(On("KillButtonKombo"));
        Key("Escape");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(StoredByProgram("UseJoystick"), "0");
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
}

TEST_F(Saving, ColoursThatWereTriedGoWithIt) {
    Start();
    const Json skin = Get("FormBackColor");
    Open([&] {
        Click("Command5");
        Set("ColSlider1(0).Value", 77);
        EXPECT_NE(Get("BackColor"), skin);
        EXPECT_TRUE(Unsaved());
        Save();
        EXPECT_EQ(Get("BackColor"), skin);
        EXPECT_EQ(Of("BackColor"), skin);
        Click("Command5");
        Key("Escape");
    });
    EXPECT_EQ(Get("BackColor"), skin);
}

TEST_F(Saving, OverASearchInAllListsItsColoursStay) {
    Start();
    Do("set", "Form1.SearchDblsTxt.Text", "bee");
    Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    ASSERT_TRUE(Visible("GlobalSearchList"));
    const auto colours = [&] {
        Json seen;
        for (const char* name : {"GlobalSearchList", "Label4"}) {
            for (const char* colour : {".BackColor", ".ForeColor"})
                seen.push_back(Get(std::string(name) + colour));
        }
        return seen;
    };
    const Json before = colours();
    EXPECT_NE(Get("GlobalSearchList.BackColor"), Get("FormBackColor"));
    OpenShort([&] {
        Set("ResetScreenRes.Value", 1);
        Save();
        EXPECT_EQ(colours(), before);
        Key("Escape");
    });
    EXPECT_TRUE(Visible("GlobalSearchList"));
    EXPECT_EQ(colours(), before);
}

// A colour that is only tried must not become the skin's.
TEST_F(Saving, TriedColoursAreNotStored) {
    Start();
    const std::string ini = "Config/Alpha/Skin/Skin.ini";
    tree.Write(ini, "[Settings]\r\n");
    Open([&] {
        Click("Command5");
        Set("ColSlider1(2).Value", 5);
        Click("Command5");
        tree.Write(ini, "[Settings]\r\n");
        Click("Command5");
        EXPECT_EQ(tree.Stored(ini, "BackColor"), "(none)");
        EXPECT_EQ(Of("BackGroundPix.BackColor"), Get("BackColor"));
        Click("Command5");
        Do("answer", "OK");
        Key("Escape");
    });
}

TEST_F(Saving, WhileAGameRunsItKeepsTheDevices) {
    prepare = [this](driver::Session&) { Do("device", "add", "Pad", 18); };
    Start();
    EXPECT_EQ(Get("JoystickTimer.Enabled"), true);
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
    OpenShort([&] {
        Set("ResetScreenRes.Value", 1);
        Save();
        EXPECT_EQ(Get("JoystickTimer.Enabled"), false);
        EXPECT_EQ(Of("Joystickcheck.Value"), 1);
        Key("Escape");
    });
    EmulatorGoes();
    Do("tick", "Form1.EmuActiveTimer", 5);
    EXPECT_EQ(Get("JoystickTimer.Enabled"), true);
}

TEST_F(Saving, WhileAGameRunsItGoesOn) {
    Start();
    LaunchBee();
    EmulatorComesUp();
    Do("tick", "Form1.EmuActiveTimer");
    EXPECT_TRUE(Visible("AppRunningPicture"));
    OpenShort([&] {
        Set("ResetScreenRes.Value", 1);
        Save();
        EmulatorGoes();
        EXPECT_TRUE(open());
        EXPECT_TRUE(Visible("AppRunningPicture"));
        Key("Escape");
    });
    EXPECT_FALSE(Visible("UAE_Short"));
    Do("tick", "Form1.EmuActiveTimer", 5);
    EXPECT_FALSE(Visible("AppRunningPicture"));
    EXPECT_TRUE(Visible("WIthoutDoubles"));
    EXPECT_TRUE(Visible("SettingsBtn"));
}

}  // namespace
}  // namespace kivu::scenarios
