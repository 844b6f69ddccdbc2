// What the settings window says, in both languages.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

#include "settings/settings_form.h"

namespace kivu::settings {
namespace {

using forms::Control;
constexpr int german = 1, english = 2;

struct Word {
    const char* control;
    const char* german;
    const char* english;  // null: the German one stays
};

std::string CaptionOf(const Control& control) {
    if (const auto* label = dynamic_cast<const forms::Label*>(&control)) return label->Caption();
    if (const auto* button = dynamic_cast<const forms::CommandButton*>(&control))
        return button->Caption();
    if (const auto* box = dynamic_cast<const forms::ValueButton*>(&control)) return box->Caption();
    return "?";
}

TEST(SettingsFormWords, CaptionsOfBothLanguages) {
    const Word words[]{
        {"TitleLabel", "Einstellungen", nullptr},
        {"NewEmuBtn", "Neuer Emulator..", "New emulator.."},
        {"Label1", "Emulator (Winuae, Mame, x64, Project64, Fusion.exe...) inkl. Pfad: ",
         "Emulator (Winuae.exe, x64.exe, Fusion.exe...) incl. path: "},
        {"LaunchButton", "Starten", "Run"},
        {"KnownEmuLabel", "Bekannte Emulatoren", "Known emulators"},
        {"EmuDownload", "Download", nullptr},
        {"WinUAEBtn", "WinUAE Einstellungen", "WinUAE settings"},
        {"Label2", "Disketten - Images (Roms):", "Image / Rom directory:"},
        {"LoadBtn", "Images neu einlesen", "Reload Directory"},
        {"ReloadAllBtn", "Alle (!)", "All (!)"},
        {"ErwLabel", "Datei-Erweiterung(en): ", "File extension:"},
        {"UseMasterConfig", "WinUAE -  Config Vorlage benutzen:", "Use WinUAE config template"},
        {"Label6", "Parameter", nullptr},
        {"Command1", "<   Importieren", "Import config"},
        {"Command3", "Starten", "Run"},
        {"FullscreenCheck", "WinUAE Fullscreen starten", "Start WinUAE fullscreen"},
        {"IntelligenteRomauswahl", "Autom. Multi-ROM Auswahl", "Intelligent Rom selection"},
        {"Label4", "WinUAE - OS-Rom (Kickstart)", nullptr},
        {"Label3", "Parameter:", nullptr},
        {"UAELaunchParameterAddPath", "Rom-Pfad", "Rom path"},
        {"UseAnfz", "In Anführungszeichen (\"Pfad\")", "Add quotes"},
        {"ParameterWithoutPath", "Nur Datei ohne Pfad", nullptr},
        {"DeMulAutostart", "Startscript (vbs)", nullptr},
        {"AutoMoundDeamonTools", "Auto-Mount Images (CD/DVD/BR)", "Auto-Mount (Deamon-Tools)"},
        {"DeamonButton", "Deamon Tools >", nullptr},
        {"Label14", "Deamon Tools:", nullptr},
        {"DeamonToolsIinfo",
         "Wichtig: Sicheren Modus abschalten: Rechts-klick auf  Deamon-Tool  im Tray -> "
         "Einstellungen -> Sicherer Modus = Aus",
         "Disable secure-Modus (Right-click on Deamon-Tool  in Tray -> Settings -> Secure-Mode = "
         "Off)"},
        {"Label11", "Spiel-Splashscreen (Sek)", "Game loading screen (sec.)"},
        {"Joystickcheck", "Joystick / Gamepad Menüsteuerung", "Use Joystick navigation"},
        {"KillButtonLabel", "Button zum Spiel killen:", nullptr},
        {"ResetScreenRes", "Bildschirmauflösung zurücksetzen", "Restore Screen Res."},
        {"Command5", "Schrift && Farben ..", nullptr},
        {"Label9", "Farben && Schrift anpassen", nullptr},
        {"Label12", "Farben werden in dieser Version  nicht gespeichert!", nullptr},
        {"FensterRahmChk", "Fensterrahmen", nullptr},
        {"FavoritenReparierenLabel", "Favoriten reparieren", "Repair favorites"},
        {"Label7", "Homepage", nullptr},
        {"Label5", "Online-Update", nullptr},
        {"DonateBtn", "Spenden", "Donate"},
        {"SaveBtn", "Speichern", "&Save"},
        {"ExitBtn", "Schliessen", "&Close"},
    };
    for (const int language : {german, english, 0, 3}) {
        const SettingsForm form({}, language);
        EXPECT_EQ(form.Caption(), "Einstellungen");
        for (const Word& word : words) {
            const bool stays = language == german || !word.english;
            const Control* control = form.Find(word.control);
            ASSERT_TRUE(control) << word.control;
            EXPECT_EQ(CaptionOf(*control), stays ? word.german : word.english) << word.control;
        }
    }
}

TEST(SettingsFormWords, ToldToolTips) {
    const SettingsForm de({}, german), en({}, english);
    EXPECT_EQ(de.IntelligenteRomauswahl.ToolTipText(),
              "Wählt automatisch die folgenden Disketten / Roms aus");
    EXPECT_EQ(en.ResetScreenRes.ToolTipText(),
              "Restore your original Screen resolution after game ends");
    EXPECT_EQ(en.ReloadAllBtn.ToolTipText(), "Rescan all directories for all emulators.");
}

// What a user could not guess.
TEST(SettingsFormWords, HintsTellOfTheSharedTemplateAndOfTheResolution) {
    for (const int language : {german, english}) {
        const SettingsForm form({}, language);
        EXPECT_THAT(form.TxtMasterConfig.ToolTipText(), ::testing::HasSubstr("WinUAE"));
        EXPECT_THAT(form.UseMasterConfig.ToolTipText(), ::testing::HasSubstr("WinUAE"));
        EXPECT_THAT(form.ResetScreenHint.Caption(), ::testing::HasSubstr("800 x 600"));
        EXPECT_TRUE(form.ResetScreenHint.Visible());
    }
}

TEST(SettingsFormWords, EverythingThatActsHasAHint) {
    const std::set<std::string> speaksForItself{"DonateBtn", "ExitBtn", "FullscreenCheck"};
    const SettingsForm de({}, german), en({}, english);
    for (const Control* control : de.Controls()) {
        const bool picker = control->Parent() == &de.ColorSelect1.frame;
        if (!control->TakesFocus() || picker || speaksForItself.count(control->Name())) continue;
        const Control* other = en.Find(control->Name());
        EXPECT_FALSE(control->ToolTipText().empty()) << control->Name();
        EXPECT_FALSE(other->ToolTipText().empty()) << control->Name();
        EXPECT_NE(other->ToolTipText(), control->ToolTipText()) << control->Name();
    }
}

}  // namespace
}  // namespace kivu::settings
