// What the settings window does as it comes and goes.

#include <initializer_list>

#include "core/form1.h"
#include "core/raised.h"
#include "settings/form_values.h"
#include "settings/settings_window.h"
#include "ui/picture_loader.h"
#include "ui/skins.h"
#include "ui/window_colors.h"

namespace kivu::settings {

namespace {

// Of the picture that may still be on its way when the window has gone.
constexpr const char* skinPurpose = "settings window";

}  // namespace

void SettingsWindow::Form_Load() {
    alwaysOnTop.LoadSettings();
    alwaysOnTop.SetToTop();
    for (forms::Image& icon : form.FehlerIcon)
        icon.SetPicture(form.FehlerIcon[SettingsForm::faultyEmulator].GetPicture());
    TakeFiles();
    LoadValues();
}

void SettingsWindow::Form_Unload() {
    (void)routines.pictures.LoadSkin("", skinPurpose, {});
    routines.mainOnTop.SetToTop();
}

void SettingsWindow::TakeFiles() {
    form.IniPath = main.GetIniPath();
    form.ColorsIniName = main.GetColorsIniName();
    form.StartPfad = main.GetStartPfad();
    // Without an emulator there is no directory of games.
    form.LoadBtn.SetEnabled(main.CurrentEmuIndex >= 0);
    newEmulator.ShowState();
}

void SettingsWindow::LoadValues() {
    const core::Raised loading(form.Loading);
    const profile::Ini::GatheredWriteBacks gathered(services.ini);
    winuae.LoadMaster();
    const SettingsValues values = store.Load();
    program.FillKillButtons();
    ShowPathsAndBoxes(form, values);
    routines.windowColors.SetColors(form, -1, -1);
    ShowSkin();
    ShowParameters(form, values);
    form.PlaceBackground();
    program.CopyFontSizes();
    program.ShowEmuDownload();
    program.ShowDonateBtn();
    RunChangeHandlers(values);
    known.FillKnownEmuCombo();
    looks.Load();
    form.PlaceScriptBox();
    // All of this has run handlers, and nothing has been changed yet.
    form.SaveBtn.SetEnabled(false);
}

// What their fields hold may be what they held before. A profile that nobody has saved uses the
// template by default, but has no parameter for it.
void SettingsWindow::RunChangeHandlers(const SettingsValues& values) {
    paths.RunChangeHandlers(values.UseMasterConfig == 1 &&
                            !values.UAEMasterConfigLaunchParameter.empty());
    winuae.RunChangeHandlers();
    program.RunChangeHandlers();
}

void SettingsWindow::ShowSkin() {
    const std::string path = ui::FindSettingsPicture(services.files, form.StartPfad);
    if (path.empty()) form.BackgroundFrame.SetPicture(designPicture);
    (void)routines.pictures.LoadSkin(path, skinPurpose, [this](forms::Picture picture) {
        form.BackgroundFrame.SetPicture(std::move(picture));
    });
}

void SettingsWindow::ShowMainSettingsOnly(bool showIt) {
    form.ShowMainSettingsOnly(showIt);
    if (!showIt) return;
    form.SaveBtn.SetEnabled(false);
    program.ShowDonateBtn();
}

void SettingsWindow::LoadAnew(bool keepTyped) {
    for (forms::Control* panel : std::initializer_list<forms::Control*>{
             &form.UAEFrame, &form.DeamonFrame, &form.DarstellungFrame})
        panel->SetVisible(false);
    TakeFiles();
    if (keepTyped) {
        winuae.TakeMaster();
    } else {
        LoadValues();
    }
    form.ExeAtFocus = form.txtWinUAEExe.Text();
    form.txtWinUAEExe.SetFocus();
}

}  // namespace kivu::settings
