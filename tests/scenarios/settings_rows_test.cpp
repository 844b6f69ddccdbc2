// Each control of the settings window is changed and saved, and its key is in its profile.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

class SettingsRows : public WinuaeSettings {
 protected:
    // What the control holds as the window opens, what the user makes of it, and what then stands
    // in the file. Opened once more it is there again.
    template <typename Value>
    void Row(const char* file, const char* control, const char* key, Value before, Value after,
             const std::string& stored) {
        SCOPED_TRACE(control);
        Start();
        Open([&] {
            EXPECT_EQ(Of(control), before);
            EXPECT_FALSE(Unsaved());
            Set(control, after);
            Save();
            EXPECT_EQ(tree.Stored(file, key), stored);
            // The program's field has the focus, and leaving it asks about a new one.
            EXPECT_EQ(Boxes().size(), std::string(key) == "EmulatorPath" ? 1u : 0u);
            Key("Escape");
            EXPECT_FALSE(open());
        });
        Open([&] {
            EXPECT_EQ(Of(control), after);
            Key("Escape");
        });
        EXPECT_TRUE(Boxes().empty());
    }
    // A box, in both directions.
    void Box(const char* file, const std::string& name, const char* key, bool on = false) {
        const std::string control = name + ".Value";
        Row(file, control.c_str(), key, on ? 1 : 0, on ? 0 : 1, on ? "0" : "1");
        Row(file, control.c_str(), key, on ? 0 : 1, on ? 1 : 0, on ? "1" : "0");
    }
    void Line(const std::string& name, const char* key, const char* before, const char* after) {
        const std::string control = name + ".Text";
        Row(profile, control.c_str(), key, std::string(before), std::string(after), after);
    }
};

TEST_F(SettingsRows, OfTheProgram) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "0"}});
    Box(programProfile, "Joystickcheck", "UseJoystick");
    Box(programProfile, "ResetScreenRes", "ResetScreenResolution");
    Row(programProfile, "FontSizeCombo.ListIndex", "Fontsize", 16, 21, "21");
    Row(programProfile, "KillButtonKombo.ListIndex", "UseJoystickExitbutton", 0, 3, "3");
    const std::string tool = tree.Write("Tools/deamon.exe", "MZ");
    Row(programProfile, "DeamonPath.Text", "DeamonToolPath", std::string(), tool, tool);
}

TEST_F(SettingsRows, OfTheEmulator) {
    Box(profile, "AutoMoundDeamonTools", "AutoMountDeamonTool");
    Line("DirBefehleTxt", "Dir_Parameter", "*.adf", "*.dms, *.zip");
    Line("UAELaunchParaneter", "EmulatorParameter", "", "-x -y");
    Box(profile, "UAELaunchParameterAddPath", "EmulatorParameterAddDiskPath");
    Box(profile, "ParameterWithoutPath", "EmulatorParameterAddDiskPathWithoutPath");
    Line("SecondsTimerTxt", "SplashTimer", "4", "12");
}

TEST_F(SettingsRows, OfWinUae) {
    Box(profile, "FullscreenCheck", "FullScreen", true);
    Box(profile, "IntelligenteRomauswahl", "SmartRomSelection", true);
    Line("UAEMasterConfigLaunchParameter", "WinUAE_ConfigParameter", "-f", "-config");
    Box(profile, "UseMasterConfig", "WinUAE_UseMasterConfig", true);
}

TEST_F(SettingsRows, PathsAreStoredRelativeToTheProgram) {
    const std::string games = tree.Path("Roms/Beta") + testing::HostPath("/");
    Row(profile, "TxtRomPath.Text", "RomPath", tree.Path("Roms/Alpha") + testing::HostPath("/"),
        games, testing::HostPath("/Roms/Beta"));
    const std::string rom = tree.Write("kick13.rom", "x");
    Row(profile, "TxtKickstartRomFile.Text", "KickstartRom", std::string(), rom,
        testing::HostPath("/kick13.rom"));
    const std::string other = tree.Write("Emu2/winuae64.exe", "MZ");
    Row(profile, "txtWinUAEExe.Text", "EmulatorPath", tree.Path("Emu/winuae.exe"), other,
        testing::HostPath("/Emu2/winuae64.exe"));
}

TEST_F(SettingsRows, QuotesCountWithThePathAlone) {
    Start();
    Open([&] {
        EXPECT_FALSE(Shown("UseAnfz"));
        Set("UAELaunchParameterAddPath.Value", 1);
        EXPECT_TRUE(Shown("UseAnfz"));
        EXPECT_TRUE(Shown("ParameterWithoutPath"));
        Set("UseAnfz.Value", 1);
        Save();
        EXPECT_EQ(Stored("UseQuote"), "1");
        Key("Escape");
    });
    Open([&] {
        EXPECT_EQ(Of("UseAnfz.Value"), 1);
        Set("UAELaunchParameterAddPath.Value", 0);
        EXPECT_EQ(Of("UseAnfz.Value"), 0);
        EXPECT_FALSE(Shown("UseAnfz"));
        EXPECT_FALSE(Shown("ParameterWithoutPath"));
        Save();
        EXPECT_EQ(Stored("UseQuote"), "0");
        Key("Escape");
    });
}

TEST_F(SettingsRows, TheStartScriptCanBeSwitchedOnAndOff) {
    Start();
    Open([&] {
        Set("DeMulAutostart.Value", 1);
        EXPECT_TRUE(Shown("OpenVBS"));
        Save();
        EXPECT_EQ(Stored("RunVBS_Script"), "1");
        Set("DeMulAutostart.Value", 0);
        EXPECT_FALSE(Shown("OpenVBS"));
        Save();
        EXPECT_EQ(Stored("RunVBS_Script"), "0");
        Key("Escape");
    });
}

// Hidden boxes say nothing of it.
TEST_F(SettingsRows, TheProgramsSettingsAloneLeaveTheStartScript) {
    for (const char* stored : {"0", "1", "(none)"}) {
        if (*stored != '(') {
            tree.Write(profile, ProgramDirectory::Profile({{"RomPath", "/Roms/Alpha"},
                                                           {"EmulatorPath", "/Emu/winuae.exe"},
                                                           {"RunVBS_Script", stored}}));
        } else {
            tree.Write(profile, ProgramDirectory::Profile({{"RomPath", "/Roms/Alpha"}}));
        }
        Start();
        Do("click", "Form1.EmuListbox");
        OpenShort([&] {
            EXPECT_FALSE(Shown("OpenVBS"));
            Set("ResetScreenRes.Value", Of("ResetScreenRes.Value") == 1 ? 0 : 1);
            Save();
            Key("Escape");
        });
        EXPECT_EQ(Stored("RunVBS_Script"), stored);
    }
}

TEST_F(SettingsRows, AHiddenScriptOfZeroIsNotRewritten) {
    tree.Write(profile, "[Settings]\r\nRunVBS_Script=0  ; never\r\n");
    Start();
    Open([&] {
        EXPECT_FALSE(Shown("OpenVBS"));
        Set("UAELaunchParaneter.Text", "-x");
        Save();
        Key("Escape");
    });
    EXPECT_EQ(Stored("RunVBS_Script"), "0  ; never");
}

TEST_F(SettingsRows, AButtonThatTheListLacksStays) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystickExitbutton", "11"}});
    Start();
    Open([&] {
        EXPECT_EQ(Of("KillButtonKombo.ListIndex"), -1);
        EXPECT_EQ(Of("KillButtonKombo.List"),
                  Json({"Keinen", "Button: 1", "Button: 2", "Button: 3", "Button: 4", "Button: 5",
                        "Button: 6", "Button: 7", "Button: 8"}));
        Set("ResetScreenRes.Value", 1);
        Save();
        Key("Escape");
    });
    EXPECT_EQ(StoredByProgram("UseJoystickExitbutton"), "11");
}

TEST_F(SettingsRows, QuotesAroundAValueComeBack) {
    for (const char* text : {"\"-x\"", "'-x'", "\"a\" \"b\"", "plain"}) {
        Start();
        Open([&] {
            Set("UAELaunchParaneter.Text", text);
            if (Unsaved()) Save();
            Key("Escape");
        });
        Open([&] {
            EXPECT_EQ(TextOf("UAELaunchParaneter"), text);
            Key("Escape");
        });
    }
}

}  // namespace
}  // namespace kivu::scenarios
