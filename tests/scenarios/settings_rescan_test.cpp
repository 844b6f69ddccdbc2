// What the settings window starts of its own: rescans, the repair of favourites, profiles in the
// editor, the set-up of the controllers' buttons.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using ::testing::HasSubstr;

using SettingsWork = SettingsScenario;

TEST_F(SettingsWork, RescanClosesTheWindow) {
    tree.Write("Roms/Alpha/Dog (1993).adf", "x");
    Start();
    Open([&] {
        Click("LoadBtn");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Get("UAE_Short.ListCount"), 4);
    EXPECT_TRUE(Visible("UAE_Short"));
    EXPECT_EQ(Get("Focus"), "Form1.UAE_Short");
    EXPECT_TRUE(Visible("EmuListbox"));
    EXPECT_EQ(Get("LoadBtn.Enabled"), true);
    EXPECT_EQ(Get("Busy"), false);
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(SettingsWork, RescanOfUnsavedSettingsIsRefusedInGermanAndCopiesThePath) {
    for (const char* language : {"English", "German"}) {
        options.language = language;
        Start();
        Open([&] {
            const std::string typed = tree.Path("Roms/Beta");
            Set("TxtRomPath.Text", typed);
            Click("LoadBtn");
            EXPECT_TRUE(open());
            const Json boxes = Boxes();
            ASSERT_EQ(boxes.size(), 1u);
            EXPECT_EQ(boxes[0]["title"], "Speichern");
            EXPECT_EQ(boxes[0]["text"], "Bitte erst speichern");
            EXPECT_EQ(boxes[0]["icon"], "Information");
            EXPECT_EQ(Get("TxtRomPath.Text"), typed + testing::HostPath("/"));
            EXPECT_TRUE(Unsaved());
            EXPECT_TRUE(On("LoadBtn"));
            Do("answer", "OK");
            Key("Escape");
        });
        EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    }
}

TEST_F(SettingsWork, ARelativeDirectoryIsBelowTheProgramsWhereverTheProcessStands) {
    struct Typed {
        const char *text, *copied;
    };
    for (const Typed& typed : {Typed{"Roms/Beta", "Roms/Beta/"}, Typed{"", ""}}) {
        SCOPED_TRACE(typed.text);
        Start();
        Open([&] {
            // Leaving the program's field would propose another one for an empty text.
            Do("focus", "SettingsForm.DirBefehleTxt");
            Set("TxtRomPath.Text", testing::HostPath(typed.text));
            Click("LoadBtn");
            EXPECT_EQ(Boxes().size(), 1U);
            EXPECT_EQ(Get("TxtRomPath.Text"), Text("AppDir") + testing::HostPath(typed.copied));
            Do("answer", "OK");
            Key("Escape");
        });
    }
}

TEST_F(SettingsWork, ARelativeDirectoryIsScannedOnceItIsSaved) {
    Start();
    Open([&] {
        Set("TxtRomPath.Text", testing::HostPath("Roms/Beta"));
        Save();
        Click("LoadBtn");
        EXPECT_FALSE(open());
    });
    EXPECT_EQ(Get("UAE_Short.List"), Json({"Cat (1992)(Maker)"}));
}

TEST_F(SettingsWork, NobodyClosesTheWindowInARescan) {
    struct Wording {
        const char *language, *title;
    };
    for (const Wording& wording :
         {Wording{"German", "Bitte warten! Verzeichniss wird durchsucht..."},
          Wording{"English", "Please wait!  searching directory.."}}) {
        options.language = wording.language;
        Start();
        Open([&] {
            int looks = 0;
            Host().events.onEvents = [&] {
                ++looks;
                EXPECT_EQ(Of("Caption"), wording.title);
                EXPECT_EQ(Of("Enabled"), false);
                EXPECT_FALSE(On("ExitBtn"));
                EXPECT_FALSE(On("LoadBtn"));
                for (const char* button : {"ExitBtn", "LoadBtn", "ReloadAllBtn", "NewEmuBtn"})
                    EXPECT_TRUE(Refused("click", std::string("SettingsForm.") + button));
                EXPECT_EQ(Do("close", "SettingsForm")["value"], false);
                EXPECT_TRUE(open());
            };
            Click("LoadBtn");
            Host().events.onEvents = {};
            EXPECT_GT(looks, 0);
            EXPECT_FALSE(open());
        });
        EXPECT_EQ(Get("UAE_Short.ListCount"), 3);
    }
}

TEST_F(SettingsWork, RescanOfAllAsksInBothLanguages) {
    tree.Write("Roms/Beta/Dog (1993).adf", "x");
    struct Wording {
        const char *language, *text;
    };
    for (const Wording& wording :
         {Wording{"German",
                  "Sollen alle Rom-Verzeichnisse aller Emulatoren neu eingelesen werden?"},
          Wording{"English", "Re-scan all directories of all emulators in list?"}}) {
        options.language = wording.language;
        Start();
        Open([&] {
            Click("ReloadAllBtn");
            EXPECT_TRUE(open());
            Json boxes = Boxes();
            ASSERT_EQ(boxes.size(), 1u);
            EXPECT_EQ(boxes[0]["title"], "Reload all");
            EXPECT_EQ(boxes[0]["text"], wording.text);
            EXPECT_EQ(boxes[0]["buttons"], "OKCancel");
            EXPECT_EQ(boxes[0]["icon"], "Question");
            // With unsaved changes it is asked about those first.
            Set("UAELaunchParaneter.Text", "-x");
            Click("ReloadAllBtn");
            EXPECT_TRUE(open());
            boxes = Boxes();
            ASSERT_EQ(boxes.size(), 1u);
            EXPECT_NE(boxes[0]["title"], "Reload all");
            Do("answer", "OK", "OK");
            Click("ReloadAllBtn");
            EXPECT_FALSE(open());
            EXPECT_EQ(Boxes().size(), 2u);
        });
        EXPECT_EQ(tree.Stored("Config/Beta/Kivu.ini", "RomCount"), "2");
        EXPECT_EQ(Stored("RomCount"), "3");
        EXPECT_EQ(Get("Busy"), false);
        EXPECT_NE(Get("Focus"), "");
    }
}

TEST_F(SettingsWork, NotOpenedOnceMoreWhileAllAreRead) {
    Start();
    Open([&] {
        int tried = 0;
        Host().events.onEvents = [&] {
            ++tried;
            Call("SettingsBtn_Click");
            EXPECT_FALSE(open());
        };
        Do("answer", "OK");
        Click("ReloadAllBtn");
        Host().events.onEvents = {};
        EXPECT_GT(tried, 0);
    });
}

TEST_F(SettingsWork, ProfilesOpenInTheEditor) {
    Start();
    const std::string skin = "Config/Alpha/Skin/Skin.ini";
    std::filesystem::remove_all(testing::PathOf(tree.Path("Config/Alpha/Skin")));
    Open([&] {
        Do("runs");
        Click("IniBtn");
        const Json runs = Do("runs")["value"];
        ASSERT_EQ(runs.size(), 2u);
        EXPECT_EQ(runs[0]["command"], tree.Path(profile));
        EXPECT_EQ(runs[1]["command"], tree.Path(skin));
        EXPECT_TRUE(tree.Exists(skin));
        EXPECT_FALSE(Unsaved());
        EXPECT_TRUE(Boxes().empty());
        Host().starter.result = std::make_error_code(std::errc::no_such_file_or_directory);
        Click("IniBtn");
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 2u);
        EXPECT_THAT(boxes[0]["text"].get<std::string>(), HasSubstr(tree.Path(profile)));
        EXPECT_THAT(boxes[1]["text"].get<std::string>(), HasSubstr(tree.Path(skin)));
        Key("Escape");
    });
}

TEST_F(SettingsWork, FavouritesAreRepaired) {
    Start();
    Open([&] {
        Do("focus", "SettingsForm.FavoritenReparierenLabel");
        Key("Enter");
        const Json boxes = Boxes();
        ASSERT_EQ(boxes.size(), 1u);
        EXPECT_EQ(boxes[0]["title"], "Repair result:");
        EXPECT_EQ(boxes[0]["text"], "No errors found!!");
        EXPECT_TRUE(On("FavoritenReparierenLabel"));
        EXPECT_TRUE(open());
        Key("Escape");
    });
}

TEST_F(SettingsWork, ButtonsAreSetUpOverIt) {
    tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"UseJoystick", "1"}});
    Start();
    Do("device", "add", "Pad", 12);
    Open([&] {
        EXPECT_TRUE(Shown("SetJOyBtn"));
        int shown = 0;
        another = [&](forms::Form& form) {
            ++shown;
            EXPECT_EQ(form.Name(), "SetJoystickButtons");
            EXPECT_EQ(Do("windows")["value"][2]["over"], "SettingsForm");
            EXPECT_EQ(Of("Topmost"), false);
            Do("key", "SetJoystickButtons", "Escape");
        };
        Click("SetJOyBtn");
        EXPECT_EQ(shown, 1);
        EXPECT_EQ(Of("Topmost"), true);
        EXPECT_TRUE(open());
        EXPECT_FALSE(Unsaved());
        Key("Escape");
    });
}

TEST_F(SettingsWork, TheMountingToolIsLookedFor) {
    const std::string tool = tree.Write("Tools/deamon.exe", "MZ");
    Start();
    Open([&] {
        Set("AutoMoundDeamonTools.Value", 1);
        Save();
        Click("DeamonButton");
        EXPECT_TRUE(Shown("FehlerIcon(3)"));
        Click("FehlerIcon(3)");
        EXPECT_TRUE(open());
        int asked = 0;
        another = [&](forms::Form& form) {
            ++asked;
            EXPECT_EQ(form.Name(), "Files");
            EXPECT_THAT(Do("get", "Files.Caption")["value"].get<std::string>(),
                        HasSubstr("Deamon-Tool"));
            if (asked == 1) {
                Do("key", "Files", "Escape");
                return;
            }
            Do("set", "Files.FileName.Text", tool);
            Do("click", "Files.Ok");
        };
        Click("Command4");
        EXPECT_EQ(TextOf("DeamonPath"), "");
        EXPECT_FALSE(Unsaved());
        Click("Command4");
        EXPECT_EQ(asked, 2);
        EXPECT_EQ(TextOf("DeamonPath"), tool);
        EXPECT_FALSE(Shown("FehlerIcon(3)"));
        EXPECT_TRUE(Unsaved());
        Set("DeamonPath.Text", tree.Path("Tools"));
        EXPECT_TRUE(Shown("FehlerIcon(3)"));
        Set("DeamonPath.Text", tool + "x");
        EXPECT_TRUE(Shown("FehlerIcon(3)"));
        Do("focus", "SettingsForm.DeamonPath");
        Set("DeamonPath.Text", "\"" + tool + "\"");
        Do("focus", "SettingsForm.UAELaunchParaneter");
        EXPECT_EQ(TextOf("DeamonPath"), tool);
        EXPECT_FALSE(Shown("FehlerIcon(3)"));
        Save();
        EXPECT_EQ(StoredByProgram("DeamonToolPath"), tool);
        Click("DeamonButton");
        Key("Escape");
    });
}

}  // namespace
}  // namespace kivu::scenarios
