#include "settings/program_group.h"

#include "core/disabled_meanwhile.h"
#include "core/form1.h"
#include "core/raised.h"
#include "favourites/repair_favoriten.h"
#include "joystick/button_setup_opener.h"
#include "settings/path_box.h"
#include "settings/path_fields.h"
#include "settings/settings_form.h"
#include "settings/settings_store.h"

namespace kivu::settings {

ProgramGroup::ProgramGroup(SettingsForm& form, core::Form1& main, Services services,
                           Routines routines)
    : form(form), main(main), services(services), routines(routines) {
    JoinPrograms();
    JoinLinks();
}

void ProgramGroup::JoinPrograms() {
    form.Joystickcheck.onClick = [this] { Joystickcheck_Click(); };
    form.SetJOyBtn.onClick = [this] { SetJOyBtn_Click(); };
    form.KillButtonKombo.onClick = [this] { form.MarkUnsaved(); };
    form.ResetScreenRes.onClick = [this] { form.MarkUnsaved(); };
    form.FontSizeCombo.onClick = [this] { FontSizeCombo_Click(); };
    form.DeamonButton.onClick = [this] { DeamonButton_Click(); };
    form.DeamonPath.onChange = [this] { DeamonPath_Change(); };
    form.DeamonPath.onLostFocus = [this] { DeamonPath_LostFocus(); };
    form.Command4.onClick = [this] { Command4_Click(); };
    form.Picture2.onClick = [this] { Picture2_Click(); };
}

void ProgramGroup::JoinLinks() {
    form.FavoritenReparierenLabel.onClick = [this] { FavoritenReparierenLabel_Click(); };
    form.Label7.onClick = [this] { Label7_Click(); };
    form.Label5.onClick = [this] { Label5_Click(); };
    form.EmuDownload.onClick = [this] { EmuDownload_Click(); };
    form.DonateBtn.onClick = [this] { DonateBtn_Click(); };
}

void ProgramGroup::FillKillButtons() {
    form.KillButtonKombo.Clear();
    form.KillButtonKombo.AddItem("Keinen");
    for (int button = 1; button < killButtonRows; ++button)
        form.KillButtonKombo.AddItem("Button: " + std::to_string(button));
}

void ProgramGroup::CopyFontSizes() {
    form.FontSizeCombo.Clear();
    form.FontSizeCombo.AddItems(main.FontSizeCombo.Rows());
    form.FontSizeCombo.SetListIndex(main.FontSizeCombo.ListIndex());
}

void ProgramGroup::ShowEmuDownload() {
    const std::string caption = routines.links.EmuDownloadCaption();
    form.EmuDownload.SetVisible(!caption.empty() && !form.MainSettingsOnly);
    if (!caption.empty()) form.EmuDownload.SetCaption(caption);
}

void ProgramGroup::ShowDonateBtn() {
    form.DonateBtn.SetVisible(routines.links.HasDonations());
}

void ProgramGroup::TakeJoystick(int value) {
    const core::Raised loading(form.Loading);
    form.Joystickcheck.SetValue(value);
}

void ProgramGroup::RunChangeHandlers() {
    if (CanBeTested(form.DeamonPath)) ShowFault();
}

void ProgramGroup::Joystickcheck_Click() {
    if (!form.Loading) form.MarkUnsaved();
    const bool on = form.Joystickcheck.Value() == 1;
    form.KillButtonKombo.SetEnabled(on);
    form.SetJOyBtn.SetVisible(on);
}

void ProgramGroup::SetJOyBtn_Click() {
    routines.alwaysOnTop.SetToNormal();
    routines.buttons.Show(form);
    routines.alwaysOnTop.SetToTop();
}

// The main window takes the size at once. While the window opens there is nothing to bring to the
// front.
void ProgramGroup::FontSizeCombo_Click() {
    form.MarkUnsaved();
    if (form.Loading) return;
    main.FontSizeCombo.SetListIndex(form.FontSizeCombo.ListIndex());
    services.windows.Raise(form);
    form.FontSizeCombo.SetFocus();
}

void ProgramGroup::DeamonButton_Click() {
    form.TogglePanel(form.DeamonFrame);
}

void ProgramGroup::DeamonPath_Change() {
    form.MarkUnsaved();
    if (CanBeTested(form, form.DeamonPath)) ShowFault();
}

void ProgramGroup::DeamonPath_LostFocus() {
    ResolveTyped(form.DeamonPath, services.files,
                 [this](const std::string& text) { return NamesFile(main, services.files, text); });
    ShowFault();
}

void ProgramGroup::ShowFault() {
    form.FehlerIcon[SettingsForm::faultyDeamon].SetVisible(
        !NamesFile(main, services.files, form.DeamonPath.Text()));
}

void ProgramGroup::Command4_Click() {
    const std::string before = form.DeamonPath.Text();
    const std::string chosen =
        services.fileDialogs.FileOpenDialog(before, "Deamon-Tool", "deamon.exe", &form);
    if (!chosen.empty() && chosen != before) form.DeamonPath.SetText(chosen);
}

void ProgramGroup::Picture2_Click() {
    form.DeamonFrame.SetVisible(false);
}

// Events run in there.
void ProgramGroup::FavoritenReparierenLabel_Click() {
    if (main.Busy) return;
    const core::DisabledMeanwhile off(form.FavoritenReparierenLabel);
    routines.repair.RepairFavoriten();
}

void ProgramGroup::Label7_Click() {
    const core::DisabledMeanwhile off(form.Label7);
    routines.links.ShowHomePage();
}

void ProgramGroup::Label5_Click() {
    if (updating) return;
    const core::Raised once(updating);
    cancelled = false;
    const bool hadFocus = form.Label5.HasFocus();
    routines.links.UpdateProgram(form.Label5, [this] { return cancelled || form.IsUnloaded(); });
    if (hadFocus && !form.Focus()) form.Label5.SetFocus();
}

void ProgramGroup::EmuDownload_Click() {
    const core::DisabledMeanwhile off(form.EmuDownload);
    routines.links.OpenEmuDownload();
}

void ProgramGroup::DonateBtn_Click() {
    const core::DisabledMeanwhile off(form.DonateBtn);
    routines.links.Donate();
}

}  // namespace kivu::settings
