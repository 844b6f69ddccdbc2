#include "settings/settings_form.h"

namespace kivu::settings {

SettingsForm::SettingsForm(forms::Toolkit toolkit, int language)
    : forms::Form("SettingsForm", toolkit), Language(language) {
    SetCaption("Einstellungen");
    SaveBtn.SetEnabled(false);
    for (forms::Frame* panel : {&UAEFrame, &DeamonFrame, &DarstellungFrame})
        panel->SetVisible(false);
}

void SettingsForm::ShowMainSettingsOnly(bool showIt) {
    MainSettingsOnly = showIt;
}

}  // namespace kivu::settings
