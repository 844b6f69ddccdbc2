// How the settings window is left: what asks, what is lost, and what keeps it open.

#include "scenarios/settings.h"

namespace kivu::scenarios {
namespace {

using Closing = WinuaeSettings;

TEST_F(Closing, OpenedAndClosedAtOnceAsksNothing) {
    Start();
    for (const char* way : {"Escape", "ExitBtn", "close"}) {
        SCOPED_TRACE(way);
        Open([&] {
            EXPECT_FALSE(Unsaved());
            if (std::string(way) == "ExitBtn")
                Click("ExitBtn");
            else if (std::string(way) == "close")
                Do("close", "SettingsForm");
            else
                Key("Escape");
            EXPECT_FALSE(open());
        });
        EXPECT_TRUE(Boxes().empty());
    }
}

TEST_F(Closing, SavedItAsksNothing) {
    Start();
    Open([&] {
        Do("type", "SettingsForm.UAELaunchParaneter", "-x");
        Save();
        Click("ExitBtn");
        EXPECT_FALSE(open());
    });
    EXPECT_TRUE(Boxes().empty());
}

TEST_F(Closing, UnsavedItAsksInBothLanguages) {
    struct Wording {
        const char *language, *title, *text;
    };
    for (const Wording& box : {Wording{"German", "Änderungen verwerfen?",
                                       "Sie haben noch nicht gespeichert, Änderungen verwerfen?"},
                               Wording{"English", "Undo changes and exit?",
                                       "You have not saved your settings! \r\r Refuse changes?"}}) {
        options.language = box.language;
        Start();
        Open([&] {
            Do("type", "SettingsForm.UAELaunchParaneter", "-x");
            for (const char* way : {"ExitBtn", "close", "Escape"}) {
                if (std::string(way) == "ExitBtn")
                    Click("ExitBtn");
                else if (std::string(way) == "close")
                    Do("close", "SettingsForm");
                else
                    Key("Escape");
                EXPECT_TRUE(open()) << way;
                const Json boxes = Boxes();
                ASSERT_EQ(boxes.size(), 1u) << way;
                EXPECT_EQ(boxes[0]["title"], box.title);
                EXPECT_EQ(boxes[0]["text"], box.text);
                EXPECT_EQ(boxes[0]["buttons"], "OKCancel");
                EXPECT_EQ(boxes[0]["icon"], "Question");
                EXPECT_EQ(boxes[0]["answer"], "Cancel");
                EXPECT_EQ(TextOf("UAELaunchParaneter"), "-x");
            }
            Do("answer", "OK");
            Key("Escape");
            EXPECT_FALSE(open());
        });
        EXPECT_EQ(Stored("EmulatorParameter"), "(none)");
        Boxes();
    }
}

TEST_F(Closing, EscapeDoesNothingWhileAPanelIsOpen) {
    Start();
    const std::pair<const char*, const char*> panels[] = {{"WinUAEBtn", "UAEFrame"},
                                                          {"DeamonButton", "DeamonFrame"},
                                                          {"Command5", "DarstellungFrame"}};
    for (const bool unsaved : {false, true}) {
        Open([&] {
            Set("AutoMoundDeamonTools.Value", 1);
            if (!unsaved) Save();
            for (const auto& [button, panel] : panels) {
                Click(button);
                EXPECT_TRUE(Shown(panel)) << button;
                Key("Escape");
                EXPECT_TRUE(open()) << panel;
                EXPECT_TRUE(Shown(panel));
                Click(button);
                EXPECT_FALSE(Shown(panel)) << button;
            }
            EXPECT_TRUE(Boxes().empty());
            // All three may stand open together.
            for (const auto& [button, panel] : panels)
                Set(std::string(panel) + ".Visible", true);
            Key("Escape");
            EXPECT_TRUE(open());
            for (const auto& [panel, cross] :
                 {std::pair{"UAEFrame", "RemovePicEnabled"}, std::pair{"DeamonFrame", "Picture2"},
                  std::pair{"DarstellungFrame", "Picture1"}}) {
                EXPECT_TRUE(Shown(panel));
                Click(cross);
                EXPECT_FALSE(Shown(panel)) << panel;
            }
            Do("answer", "OK");
            Key("Escape");
            EXPECT_FALSE(open());
            EXPECT_EQ(Boxes().size(), unsaved ? 1u : 0u);
        });
        tree.Write(profile, ProgramDirectory::Profile({{"EmulatorPath", "/Emu/winuae.exe"}}));
    }
}

TEST_F(Closing, MountingUntickedTakesItsPanelAway) {
    Start();
    Open([&] {
        EXPECT_FALSE(Shown("DeamonButton"));
        Set("AutoMoundDeamonTools.Value", 1);
        EXPECT_TRUE(Shown("DeamonButton"));
        Click("DeamonButton");
        EXPECT_TRUE(Shown("DeamonFrame"));
        Set("AutoMoundDeamonTools.Value", 0);
        EXPECT_FALSE(Shown("DeamonButton"));
        EXPECT_FALSE(Shown("DeamonFrame"));
        Do("answer", "OK");
        Key("Escape");
    });
}

// Every control that the user can change turns the button on.
TEST_F(Closing, EachChangeTurnsSavingOn) {
    Start();
    for (const char* box :
         {"AutoMoundDeamonTools", "DeMulAutostart", "FullscreenCheck", "IntelligenteRomauswahl",
          "Joystickcheck", "ParameterWithoutPath", "ResetScreenRes", "UAELaunchParameterAddPath",
          "UseAnfz", "UseMasterConfig"}) {
        Open([&] {
            const std::string value = std::string(box) + ".Value";
            Set(value, Of(value) == 1 ? 0 : 1);
            EXPECT_TRUE(Unsaved()) << box;
            Do("answer", "OK");
            Key("Escape");
        });
    }
    for (const char* field :
         {"DeamonPath", "DirBefehleTxt", "SecondsTimerTxt", "TxtKickstartRomFile",
          "TxtMasterConfig", "TxtRomPath", "txtWinUAEExe", "UAELaunchParaneter",
          "UAEMasterConfigLaunchParameter"}) {
        Open([&] {
            Set(std::string(field) + ".Text", "other");
            EXPECT_TRUE(Unsaved()) << field;
            Do("answer", "OK");
            Key("Escape");
        });
    }
    for (const char* choice : {"FontSizeCombo", "KillButtonKombo"}) {
        Open([&] {
            Set(std::string(choice) + ".ListIndex", 5);
            EXPECT_TRUE(Unsaved()) << choice;
            Do("answer", "OK");
            Key("Escape");
        });
    }
    Open([&] {
        Click("Command5");
        EXPECT_FALSE(Unsaved());
        Set("ColSlider1(0).Value", 200);
        EXPECT_TRUE(Unsaved());
        Click("Command5");
        Do("answer", "OK");
        Key("Escape");
    });
}

TEST_F(Closing, TheMainWindowIsOnTopAgain) {
    Start();
    EXPECT_EQ(Get("Topmost"), true);
    Open([&] {
        EXPECT_EQ(Get("Topmost"), false);
        EXPECT_EQ(Of("Topmost"), true);
        Key("Escape");
    });
    EXPECT_EQ(Get("Topmost"), true);
}

TEST_F(Closing, AnEscapeThatIsHeldDownIsNotMeantForIt) {
    Start();
    Open([&] {
        Do("key", "SettingsForm", "Escape", "repeat");
        EXPECT_TRUE(open());
        Key("Escape");
        EXPECT_FALSE(open());
    });
}

TEST_F(Closing, NobodyClosesIt) {
    Start();
    Open([] {});
    Open([&] { Set("UAELaunchParaneter.Text", "-x"); });
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(Stored("EmulatorParameter"), "(none)");
}

TEST_F(Closing, TheSizeOfTheTextAndTheFrameOutliveIt) {
    Start();
    Open([&] {
        EXPECT_EQ(Of("FontSizeCombo.List"), Get("FontSizeCombo.List"));
        EXPECT_EQ(Of("FontSizeCombo.ListIndex"), Get("FontSizeCombo.ListIndex"));
        Do("select", "SettingsForm.FontSizeCombo", 25);
        EXPECT_EQ(Get("FontSizeCombo.ListIndex"), 25);
        EXPECT_EQ(Get("UAE_Short.FontSize"), 20);
        EXPECT_TRUE(open());
        EXPECT_EQ(Of("Focus"), "SettingsForm.FontSizeCombo");
        EXPECT_TRUE(Unsaved());
        Do("answer", "OK");
        Key("Escape");
    });
    EXPECT_EQ(Get("UAE_Short.FontSize"), 20);
    const Json frame = Get("HasFrame");
    Open([&] {
        EXPECT_EQ(Of("FensterRahmChk.Value"), frame == true ? 1 : 0);
        Click("FensterRahmChk");
        EXPECT_NE(Get("HasFrame"), frame);
        EXPECT_FALSE(Unsaved());
        Key("Escape");
    });
    EXPECT_NE(Get("HasFrame"), frame);
    Open([&] {
        EXPECT_NE(Of("FensterRahmChk.Value"), frame == true ? 1 : 0);
        Click("FensterRahmChk");
        Key("Escape");
    });
    EXPECT_EQ(Get("HasFrame"), frame);
}

}  // namespace
}  // namespace kivu::scenarios
