#include "settings/settings_form.h"

#include <initializer_list>

namespace kivu::settings {

SettingsForm::SettingsForm(forms::Toolkit toolkit, int language)
    : forms::Form("SettingsForm", toolkit), Language(language) {
    Design();
    DesignPictures();
    DesignState();
    PlaceAll();
    NameInGerman();
    if (!IsGerman()) NameInEnglish();
    GiveHints();
}

void SettingsForm::Design() {
    SetHasFrame(false);
    SetCornerRadius(12);
    SetResizable(false);
    // Panels lie over other controls, so that places tell nothing of the order.
    SetTabOrder(forms::TabOrder::asCreated);
    TxtMasterConfig.SetMultiLine(true);
    for (forms::ComboBox* choice : {&KnownEmuCombo, &KillButtonKombo, &FontSizeCombo})
        choice->SetChoice(true);
    for (forms::Label* link : {&EmuDownload, &FavoritenReparierenLabel, &Label7, &Label5})
        link->SetLink(true);
    for (forms::Frame* panel : {&UAEFrame, &DeamonFrame, &DarstellungFrame}) {
        panel->SetRaised(true);
        panel->BringToFront();
    }
    Label9.SetMarksLetter(true);  // its "&&" is one sign
}

// That of the value 0 in every box, whose handlers have not run.
void SettingsForm::DesignState() {
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &UseAnfz, &ParameterWithoutPath, &DeamonButton, &OpenVBS, &WinUAEBtn, &SetJOyBtn,
             &EmuDownload, &UAEFrame, &DeamonFrame, &DarstellungFrame})
        control->SetVisible(false);
    for (forms::Image& sign : FehlerIcon)
        sign.SetVisible(false);
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &SaveBtn, &KillButtonKombo, &TxtMasterConfig, &UAEMasterConfigLaunchParameter,
             &Command1, &FullscreenCheck, &Command3})
        control->SetEnabled(false);
}

void SettingsForm::DesignPictures() {
    AlwaysOnTop1.SetIsUserControl(true);
    AOT_Enabled.SetPicture({":/pin-enabled", nullptr});
    AOT_Disabled.SetPicture({":/pin-disabled", nullptr});
    AOT_MouseMove.SetPicture({":/pin-hover", nullptr});
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove}) {
        pin->SetToolTipText("Always on top");
        pin->SetVisible(pin == &AOT_Disabled);
    }
    for (forms::Image& sign : FehlerIcon)
        sign.SetPicture({":/fault", nullptr});
    for (forms::Image* cross : {&Picture1, &Picture2, &RemovePicEnabled})
        cross->SetPicture({":/close", nullptr});
}

void SettingsForm::TogglePanel(forms::Frame& panel) {
    if (!panel.Visible()) panel.BringToFront();
    panel.SetVisible(!panel.Visible());
}

void SettingsForm::ShowMainSettingsOnly(bool showIt) {
    MainSettingsOnly = showIt;
    if (!showIt) return;
    for (forms::Control* control : Controls())
        control->SetVisible(false);
    for (forms::Control* control : std::initializer_list<forms::Control*>{
             &Label11, &Joystickcheck, &ResetScreenRes, &FontSizeCombo, &SetJOyBtn, &SaveBtn,
             &ExitBtn, &Label7, &Label5, &DonateBtn, &DeamonButton, &Command4, &DeamonPath,
             &Picture2, &BackgroundFrame, &Label1})
        control->SetVisible(true);
    Label1.SetCaption("General Settings:");
    Label11.SetCaption("");
    PlaceMainSettings();
    SaveBtn.SetEnabled(false);
}

}  // namespace kivu::settings
