#include "scenarios/scenario.h"

namespace kivu::scenarios {
namespace {

using Language = LoadedScenario;

TEST_F(Language, NameThatHoldsGermanSelectsGerman) {
    for (const char* name : {"German", "German (Austria)", "Swiss GERMAN", "german"}) {
        options.language = name;
        Start();
        EXPECT_EQ(Get("CurrentLanguage"), 1) << name;
        EXPECT_EQ(Call("Get_Current_Language"), 1) << name;
    }
}

TEST_F(Language, EveryOtherNameAndNoneSelectEnglish) {
    for (const char* name : {"English", "French", "Germ", ""}) {
        options.language = name;
        Start();
        EXPECT_EQ(Get("CurrentLanguage"), 2) << name;
    }
}

TEST_F(Language, LocaleTextIsTheLanguagesName) {
    options.language = "German (Germany)";
    Start();
    EXPECT_EQ(Call("GetLocaleString", 4097), "German (Germany)");
    EXPECT_EQ(Call("GetSystemLanguageIsGerman"), true);
}

TEST_F(Language, GermanKeepsTheDesignsCaptions) {
    options.language = "German";
    Start();
    EXPECT_EQ(Get("ExitBtn.Caption"), "&Exit");
    EXPECT_EQ(Get("EmuListbox.ToolTipText"), "Emulator auswählen");
    EXPECT_EQ(Get("EmuListbox.Text"), "Emulator auswählen:");
    EXPECT_EQ(Get("FontSizeCombo.List")[0], "Schriftgröße: 8");
    EXPECT_EQ(Get("Label1.Caption"), " Favoriten (0) ");
    EXPECT_EQ(Get("Label2.Caption"), " Einfach (2) ");
    EXPECT_EQ(Get("Label3.Caption"), " Komplett (3) ");
}

TEST_F(Language, EnglishWritesItsCaptionsOverThem) {
    Start();
    EXPECT_EQ(Get("DonateBtn.Caption"), "Donate");
    EXPECT_EQ(Get("ExitBtn.Caption"), "Exit");
    EXPECT_EQ(Get("SettingsBtn.ToolTipText"), "Options..");
    EXPECT_EQ(Get("EmuListbox.ToolTipText"), "Select emulator");
    EXPECT_EQ(Get("AppRunningPicture.ToolTipText"), "Kill Emulator process");
    EXPECT_EQ(Get("JoystickIcon.ToolTipText"), "Joystick / Gamepad navigation aktiv");
    EXPECT_EQ(Get("SearchDblsTxt.ToolTipText"), "Search for a game (Ctrl+F)");
    EXPECT_EQ(Get("SuchErg.ToolTipText"), "Search");
    EXPECT_EQ(Get("NormalMaxCapt.ToolTipText"), "Maximize and back");
    EXPECT_EQ(Get("FontSizeCombo.ToolTipText"), "Font size of the lists");
    EXPECT_EQ(Get("TitleStr.ToolTipText"), "Opens the home page in the browser");
    EXPECT_EQ(Get("Label1.Caption"), " Favorites (0) ");
    EXPECT_EQ(Get("Label2.Caption"), " Simple (2) ");
    EXPECT_EQ(Get("Label3.Caption"), " Complete List (3) ");
}

TEST_F(Language, SomeCaptionsStayGermanOnAnEnglishSystem) {
    Start();
    EXPECT_EQ(Get("LoadBtn.Caption"), "Liste Neu einlesen");
    EXPECT_EQ(Get("SearchAllBtn.ToolTipText"), "Srg + Return (Suche in allen Emulatoren)");
    EXPECT_EQ(Get("Label4.Caption"), " Suchergebnisse (0) ");
}

TEST_F(Language, QuestionToEndSpeaksBothLanguages) {
    Start();
    Do("key", "Form1", "Escape");
    Json box = Do("boxes")["value"][0];
    EXPECT_EQ(box["text"], "Quit Kivu now?");
    EXPECT_EQ(box["title"], "Exit Kivu?");
    options.language = "German";
    Start();
    Do("key", "Form1", "Escape");
    box = Do("boxes")["value"][0];
    EXPECT_EQ(box["text"], "Kivu jetzt wirklich beenden?");
    EXPECT_EQ(box["title"], "Kivu beenden?");
}

}  // namespace
}  // namespace kivu::scenarios
