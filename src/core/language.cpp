#include "core/language.h"

#include "core/form1.h"
#include "text/text.h"

namespace kivu::core {

std::string GetLocaleString(const platform::Locale& locale, int LCType) {
    return LCType == LOCALE_SENGLANGUAGE ? locale.LanguageEnglishName() : std::string{};
}

bool GetSystemLanguageIsGerman(const platform::Locale& locale) {
    return text::ToUpperAscii(GetLocaleString(locale, LOCALE_SENGLANGUAGE)).find("GERMAN") !=
           std::string::npos;
}

void ApplyEnglishCaptions(Form1& form) {
    if (form.CurrentLanguage == 1) return;
    form.DonateBtn.SetCaption("Donate");
    form.ExitBtn.SetCaption("Exit");
    form.SettingsBtn.SetToolTipText("Options..");
    form.EmuListbox.SetToolTipText("Select emulator");
    form.AppRunningPicture.SetToolTipText("Kill Emulator process");
    form.DrivesResizeLabel.SetToolTipText("Fold and unfold the drives");
    form.SearchDblsTxt.SetToolTipText("Search for a game (Ctrl+F)");
    form.SuchErg.SetToolTipText("Search");
    form.FontSizeCombo.SetToolTipText("Font size of the lists");
    form.TitleStr.SetToolTipText("Opens the home page in the browser");
    form.NormalMaxCapt.SetToolTipText("Maximize and back");
    form.JoystickIcon.SetToolTipText("Joystick / Gamepad navigation aktiv");
}

}  // namespace kivu::core
