#include "settings/paths_group.h"

#include "core/disabled_meanwhile.h"
#include "core/form1.h"
#include "launch/emulator_setup.h"
#include "settings/boxes.h"
#include "settings/detection.h"
#include "settings/known_group.h"
#include "settings/new_emulator_group.h"
#include "settings/path_box.h"
#include "settings/path_fields.h"
#include "settings/winuae_group.h"
#include "text/paths.h"

namespace kivu::settings {

void PathsGroup::JoinEvents() {
    form.txtWinUAEExe.onChange = [this] { txtWinUAEExe_Change(); };
    form.txtWinUAEExe.onGotFocus = [this] { txtWinUAEExe_GotFocus(); };
    form.txtWinUAEExe.onLostFocus = [this] { txtWinUAEExe_LostFocus(); };
    form.TxtRomPath.onChange = [this] { TxtRomPath_Change(); };
    form.TxtRomPath.onLostFocus = [this] { TxtRomPath_LostFocus(); };
    form.Command2.onClick = [this] { Command2_Click(); };
    form.BrowseDir.onClick = [this] { BrowseDir_Click(); };
    form.LaunchButton.onClick = [this] { LaunchButton_Click(); };
    form.FehlerIcon[SettingsForm::faultyEmulator].onClick = [this] { Command2_Click(); };
    form.FehlerIcon[SettingsForm::faultyRomPath].onClick = [this] { BrowseDir_Click(); };
}

void PathsGroup::RunChangeHandlers(bool usesTemplate) {
    form.MarkUnsaved();
    ShowProgramFault();
    if (usesTemplate) {
        form.WinUAEBtn.SetVisible(true);
    } else {
        routines.winuae.TakeProgram(form.txtWinUAEExe.Text());
    }
    ShowRomPathFault();
}

void PathsGroup::txtWinUAEExe_Change() {
    form.MarkUnsaved();
    if (CanBeTested(form, form.txtWinUAEExe)) ShowProgramFault();
    routines.winuae.TakeProgram(form.txtWinUAEExe.Text());
}

void PathsGroup::ShowProgramFault() {
    form.FehlerIcon[SettingsForm::faultyEmulator].SetVisible(
        !routines.known.IsProgram(form.txtWinUAEExe.Text()));
}

void PathsGroup::txtWinUAEExe_GotFocus() {
    form.ExeAtFocus = form.txtWinUAEExe.Text();
}

void PathsGroup::txtWinUAEExe_LostFocus() {
    if (form.txtWinUAEExe.Text() != form.ExeAtFocus) {
        ResolveTyped(form.txtWinUAEExe, services.files,
                     [this](const std::string& text) { return routines.known.IsProgram(text); });
    }
    if (IsTestedOnLeaving(form.txtWinUAEExe.Text())) ShowProgramFault();
    // The resolved text may be the old one again.
    if (form.txtWinUAEExe.Text() != form.ExeAtFocus)
        routines.known.DetectKnownEmulator(form.txtWinUAEExe.Text());
    if (form.FehlerIcon[SettingsForm::faultyRomPath].Visible() && MayGuessGames()) GuessGames();
}

// Nothing has been typed, and the directory may lie on a drive that is not there now.
bool PathsGroup::MayGuessGames() const {
    const std::string& romPath = form.TxtRomPath.Text();
    return form.txtWinUAEExe.Text() != form.ExeAtFocus || romPath.empty() ||
           IsAppDirectory(main, romPath);
}

void PathsGroup::GuessGames() {
    const auto games = GuessRomPath(
        form.txtWinUAEExe.Text(), services.files,
        [this](const std::string& directory) { return routines.known.IsSearchPath(directory); });
    if (games) form.TxtRomPath.SetText(*games);
}

void PathsGroup::TxtRomPath_Change() {
    form.MarkUnsaved();
    if (CanBeTested(form, form.TxtRomPath)) ShowRomPathFault();
}

bool PathsGroup::IsUsable(const std::string& romPath) const {
    if (romPath.empty()) return false;
    const std::string directory = text::AddPathSeparator(MeantPath(main, romPath));
    return services.files.HasEntries(directory).value_or(false);
}

void PathsGroup::ShowRomPathFault() {
    form.FehlerIcon[SettingsForm::faultyRomPath].SetVisible(!IsUsable(form.TxtRomPath.Text()));
}

void PathsGroup::TxtRomPath_LostFocus() {
    ResolveTyped(form.TxtRomPath, services.files, [this](const std::string& text) {
        return !text.empty() && services.files.IsDirectory(MeantPath(main, text));
    });
    if (IsTestedOnLeaving(form.TxtRomPath.Text())) ShowRomPathFault();
}

// The question about the program normally comes twice: once for the choice, and once for the field,
// which holds another text than when it had the focus.
void PathsGroup::Command2_Click() {
    const std::string chosen = services.fileDialogs.FileOpenDialog(
        form.txtWinUAEExe.Text(), "Emulator Exe wählen", "*.exe", &form);
    if (chosen.empty() || chosen == form.txtWinUAEExe.Text()) return;
    form.txtWinUAEExe.SetText(chosen);
    routines.known.DetectKnownEmulator(chosen);
    txtWinUAEExe_LostFocus();
    if (Show(services.dialogs, StartNowQuestion(chosen)) == platform::Answer::Yes)
        LaunchButton_Click();
}

void PathsGroup::BrowseDir_Click() {
    const std::string chosen = services.fileDialogs.FileDirSelectDialog(
        form.TxtRomPath.Text(), "ROM Verzeichnis wählen", &form);
    if (chosen.empty()) return;
    form.TxtRomPath.SetText(chosen);
    form.MarkUnsaved();
}

void PathsGroup::LaunchButton_Click() {
    // Events run while the emulator comes up.
    if (main.Busy) return;
    const core::DisabledMeanwhile off(form.LaunchButton);
    const std::string program = routines.known.ProgramOf(form.txtWinUAEExe.Text());
    if (!program.empty()) services.setup.StartProgram(program, form.EmuNameLabel.Caption());
    (void)services.files.ChangeDirectory(main.AppDir);
    // Where nothing has come up yet, the main window is back as behind a game.
    routines.newEmulator.ComeForward();
}

}  // namespace kivu::settings
