#include "settings/winuae_group.h"

#include "core/disabled_meanwhile.h"
#include "core/form1.h"
#include "launch/emulator_program.h"
#include "launch/game_launch.h"
#include "launch/uae_configuration.h"
#include "launch/uae_files.h"
#include "settings/boxes.h"
#include "settings/linux_emulators.h"
#include "settings/path_box.h"
#include "settings/path_fields.h"
#include "support/path_forms.h"
#include "text/command_line.h"
#include "text/paths.h"

namespace kivu::settings {

namespace {

constexpr const char* configurationMask = "*.uae*";
constexpr const char* romMask = "*.rom";

}  // namespace

void WinuaeGroup::RunChangeHandlers() {
    form.MarkUnsaved();
    ShowKickstartFault();
}

void WinuaeGroup::JoinEvents() {
    const auto markUnsaved = [this] { form.MarkUnsaved(); };
    form.WinUAEBtn.onClick = [this] { WinUAEBtn_Click(); };
    form.RemovePicEnabled.onClick = [this] { form.UAEFrame.SetVisible(false); };
    form.UseMasterConfig.onClick = [this] { UseMasterConfig_Click(); };
    form.TxtMasterConfig.onChange = markUnsaved;
    form.TxtMasterConfig.onDblClick = [this] { TxtMasterConfig_DblClick(); };
    form.UAEMasterConfigLaunchParameter.onChange = markUnsaved;
    form.Command1.onClick = [this] { Command1_Click(); };
    form.Command3.onClick = [this] { Command3_Click(); };
    form.FullscreenCheck.onClick = markUnsaved;
    form.IntelligenteRomauswahl.onClick = markUnsaved;
    form.TxtKickstartRomFile.onChange = [this] { TxtKickstartRomFile_Change(); };
    form.TxtKickstartRomFile.onLostFocus = [this] { TxtKickstartRomFile_LostFocus(); };
    form.BrowseKickromBtn.onClick = [this] { BrowseKickromBtn_Click(); };
    form.FehlerIcon[SettingsForm::faultyKickstart].onClick = [this] { BrowseKickromBtn_Click(); };
}

void WinuaeGroup::LoadMaster() {
    form.TxtMasterConfig.SetText(master.Load(main.MasterConfigName));
}

void WinuaeGroup::TakeMaster() {
    if (form.TxtMasterConfig.Text().empty()) {
        LoadMaster();
    } else {
        master.SetPath(main.MasterConfigName);
        master.FileMadeWith(launch::DefaultMasterConfiguration());
    }
}

bool WinuaeGroup::SaveMaster() {
    const std::string path = PathOfMaster();
    if (path.empty()) return true;
    switch (master.StepFor(form.TxtMasterConfig.Text())) {
        case MasterText::Step::leave:
            // What the defaults of an emulator have emptied shows again what it stands for.
            if (master.IsEmptied()) LoadMaster();
            return true;
        case MasterText::Step::write:
            return WriteMaster(path);
        case MasterText::Step::ask:
            if (Show(services.dialogs, MasterQuestion(path, main, master.IsEmptied())) ==
                platform::Answer::Yes)
                return WriteMaster(path);
            break;
        case MasterText::Step::reload:
            break;
    }
    LoadMaster();
    return true;
}

bool WinuaeGroup::WriteMaster(const std::string& path) {
    if (!master.Write(form.TxtMasterConfig.Text())) return true;
    Show(services.dialogs, NotSavedBox(path, main));
    return false;
}

// The emulator may have been switched to before the box was ticked, without a master.
std::string WinuaeGroup::PathOfMaster() {
    const bool first = main.MasterConfigName.empty() && form.UseMasterConfig.Value() == 1;
    if (first) main.MasterConfigName = main.ConfigPath + main.EXE + "_Master.uaecfg";
    const bool there = services.files.FileExists(main.MasterConfigName);
    const std::string path = services.uaeFiles.GetMasterConfig();
    if (first && form.TxtMasterConfig.Text().empty()) {
        LoadMaster();
        return path;
    }
    if (first) master.SetPath(path);
    if (!there) master.FileMade();
    return path;
}

void WinuaeGroup::TakeProgram(const std::string& path) {
    const bool winuae = CountsAsWinUAE(path);
    form.WinUAEBtn.SetVisible(winuae);
    if (winuae) return;
    form.TxtKickstartRomFile.SetText("");
    form.IntelligenteRomauswahl.SetValue(0);
    form.UseMasterConfig.SetValue(0);
    form.UAEMasterConfigLaunchParameter.SetText("");
    form.FullscreenCheck.SetValue(0);
}

void WinuaeGroup::EmptyMasterText() {
    form.TxtMasterConfig.SetText("");
    master.EmptiedByDefaults();
}

void WinuaeGroup::WinUAEBtn_Click() {
    EnableMasterControls();
    form.TogglePanel(form.UAEFrame);
}

void WinuaeGroup::UseMasterConfig_Click() {
    form.MarkUnsaved();
    const bool on = form.UseMasterConfig.Value() == 1;
    if (on && form.UAEMasterConfigLaunchParameter.Text().empty())
        form.UAEMasterConfigLaunchParameter.SetText("-f");
    EnableMasterControls();
}

void WinuaeGroup::EnableMasterControls() {
    const bool on = form.UseMasterConfig.Value() == 1;
    forms::Control* const controls[] = {&form.TxtMasterConfig, &form.UAEMasterConfigLaunchParameter,
                                        &form.Command1, &form.FullscreenCheck, &form.Command3};
    for (forms::Control* control : controls)
        control->SetEnabled(on);
}

void WinuaeGroup::TxtKickstartRomFile_Change() {
    form.MarkUnsaved();
    if (CanBeTested(form, form.TxtKickstartRomFile)) ShowKickstartFault();
}

void WinuaeGroup::ShowKickstartFault() {
    form.FehlerIcon[SettingsForm::faultyKickstart].SetVisible(
        !NamesFile(main, services.files, form.TxtKickstartRomFile.Text()));
}

void WinuaeGroup::TxtKickstartRomFile_LostFocus() {
    ResolveTyped(form.TxtKickstartRomFile, services.files,
                 [this](const std::string& text) { return NamesFile(main, services.files, text); });
    ShowKickstartFault();
}

void WinuaeGroup::BrowseKickromBtn_Click() {
    const std::string& old = form.TxtKickstartRomFile.Text();
    const std::string start =
        old.empty() ? support::DirectoryOf(services.files, form.txtWinUAEExe.Text()) : old;
    // The title has always been that of another question.
    const std::string chosen =
        services.fileDialogs.FileOpenDialog(start, "WinUAE.Exe wählen", romMask, &form);
    if (chosen.empty() || chosen == romMask) return;
    form.TxtKickstartRomFile.SetText(chosen);
    form.MarkUnsaved();
}

void WinuaeGroup::TxtMasterConfig_DblClick() {
    const std::string path = PathOfMaster();
    if (path.empty()) return;
    if (services.starter.EditText(path)) Show(services.dialogs, NotEditedBox(path, main));
    form.MarkUnsaved();
}

void WinuaeGroup::Command1_Click() {
    const std::string start =
        text::AddPathSeparator(support::DirectoryOf(services.files, form.txtWinUAEExe.Text()));
    const std::string chosen = services.fileDialogs.FileOpenDialog(
        start, "WinUAE Config file für Import wählen", configurationMask, &form);
    if (chosen.empty() || chosen == configurationMask) {
        Show(services.dialogs, ImportCancelledBox());
        return;
    }
    const std::string path = PathOfMaster();
    if (path.empty() || !services.files.FileExists(path)) return;
    if (const auto text = master.Import(chosen)) {
        form.TxtMasterConfig.SetText(*text);
        form.MarkUnsaved();
    } else {
        Show(services.dialogs, ImportCancelledBox());
    }
}

void WinuaeGroup::Command3_Click() {
    const core::DisabledMeanwhile off(form.Command3);
    StartWith(PathOfMaster());
    services.loadingScreen.ShowLoadingInfo(&form);
    form.MarkUnsaved();
}

void WinuaeGroup::StartWith(const std::string& masterPath) {
    const std::string program = launch::ResolveEmulator(form.txtWinUAEExe.Text(), main.AppDir,
                                                        services.files, services.starter);
    const bool windowsPaths = services.starter.UsesShell() && text::IsWindowsProgram(program);
    std::string entry = "Master Config";
    services.launch.Add_CURRENT_PROGRAM_STARTED(entry);
    platform::StartRequest request;
    request.command = text::QuoteIfNeeded(program) + " -f " + text::QuoteIfNeeded(masterPath);
    request.words = {program, "-f", windowsPaths ? text::ToWinePath(masterPath) : masterPath};
    request.style = platform::WindowStyle::Normal;
    request.watched = true;
    // What the loading screen's button ends.
    services.launch.SetCurrentRunninApplication(text::GetFileNameOnly(program));
    services.log.Write("test-run: " + request.command);
    (void)services.starter.Run(request);
}

}  // namespace kivu::settings
