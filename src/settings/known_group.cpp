#include "settings/known_group.h"

#include "core/form1.h"
#include "forms/keys.h"
#include "settings/path_fields.h"
#include "settings/winuae_group.h"

namespace kivu::settings {

namespace {

// Those that move the row of a closed combo box: with Alt, Down opens it.
bool MovesRow(const forms::Key& key) {
    namespace keys = forms::keys;
    if ((key.shift & forms::shifts::alt) != 0) return false;
    const bool arrow = key.code >= keys::pageUp && key.code <= keys::down;
    const bool character = key.code >= '0' && key.code <= 'Z';
    return arrow || character || key.code == keys::otherCharacter;
}

}  // namespace

void KnownGroup::JoinEvents() {
    forms::ComboBox& combo = form.KnownEmuCombo;
    combo.onClick = [this] { KnownEmuCombo_Click(); };
    combo.onKeyDown = [this](forms::Key& key) { KnownEmuCombo_KeyDown(key); };
    combo.onMouseDown = [this](const forms::Mouse&) { byKey = false; };
    combo.onLostFocus = [this] { KnownEmuCombo_LostFocus(); };
}

std::string KnownGroup::ProgramOf(const std::string& text) const {
    return ProgramFile(
        main, services.files,
        [this](const std::string& name) { return services.starter.FindInPath(name); }, text);
}

bool KnownGroup::IsSearchPath(const std::string& directory) const {
    return services.files.Separator() == '/' && services.starter.SearchesIn(directory);
}

void KnownGroup::FillKnownEmuCombo() {
    choices = KnownChoices(services.files.Separator() == '/', [this](const std::string& name) {
        return !services.starter.FindInPath(name).empty();
    });
    form.KnownEmuCombo.Clear();
    for (const KnownChoice& choice : choices)
        form.KnownEmuCombo.AddItem(choice.text);
    ShowNoChoice();
}

void KnownGroup::DetectKnownEmulator(const std::string& exePath) {
    const bool posix = services.files.Separator() == '/';
    // It may be another one than the rows have given.
    ShowNoChoice();
    Take(DetectEmulator(exePath, main, posix,
                        [this](const std::string& path) { return IsProgram(path); }));
    if (exePath.empty()) return;
    form.MarkUnsaved();
    const auto romPath = RomPathBesideProgram(
        form.TxtRomPath.Text(), main.AppDir, form.txtWinUAEExe.Text(), services.files,
        [this](const std::string& directory) { return IsSearchPath(directory); });
    if (romPath) form.TxtRomPath.SetText(*romPath);
}

void KnownGroup::SetEmulatorDefaults() {
    Assign(EmulatorDefaults());
}

bool KnownGroup::Take(const Detection& detection) {
    Assign(detection.first);
    if (detection.warning) Show(services.dialogs, *detection.warning);
    const bool yes =
        detection.question && Show(services.dialogs, *detection.question) == platform::Answer::Yes;
    if (yes) {
        Assign(detection.onYes);
        if (!detection.pathOnYes.empty()) form.txtWinUAEExe.SetText(detection.pathOnYes);
    }
    if (!detection.path.empty()) form.txtWinUAEExe.SetText(detection.path);
    return yes;
}

void KnownGroup::Assign(const Assignments& assignments) {
    for (const Assignment& one : assignments)
        Assign(one);
}

void KnownGroup::Assign(const Assignment& one) {
    const std::string text(one.value);
    const int value = text == "1" ? 1 : 0;
    switch (one.field) {
        case Field::UseMasterConfig:
            return form.UseMasterConfig.SetValue(value);
        case Field::AutoMoundDeamonTools:
            return form.AutoMoundDeamonTools.SetValue(value);
        case Field::FullscreenCheck:
            return form.FullscreenCheck.SetValue(value);
        case Field::UAEMasterConfigLaunchParameter:
            return form.UAEMasterConfigLaunchParameter.SetText(text);
        case Field::UAELaunchParaneter:
            return form.UAELaunchParaneter.SetText(text);
        case Field::UseAnfz:
            return form.UseAnfz.SetValue(value);
        case Field::UAELaunchParameterAddPath:
            return form.UAELaunchParameterAddPath.SetValue(value);
        case Field::DirBefehleTxt:
            return form.DirBefehleTxt.SetText(text);
        case Field::IntelligenteRomauswahl:
            return form.IntelligenteRomauswahl.SetValue(value);
        case Field::TxtMasterConfig:
            return winuae.EmptyMasterText();
        case Field::SecondsTimerTxt:
            return form.SecondsTimerTxt.SetText(text);
        case Field::ParameterWithoutPath:
            return form.ParameterWithoutPath.SetValue(value);
    }
}

void KnownGroup::KnownEmuCombo_Click() {
    lookedAt = true;
    if (byKey) {
        byKey = false;
    } else {
        TakeChoice();
    }
}

void KnownGroup::KnownEmuCombo_KeyDown(forms::Key& key) {
    byKey = MovesRow(key);
    if (key.code != forms::keys::enter || !lookedAt) return;
    key.code = 0;
    TakeChoice();
}

void KnownGroup::KnownEmuCombo_LostFocus() {
    byKey = false;
    if (lookedAt) ShowNoChoice();
}

void KnownGroup::TakeChoice() {
    lookedAt = false;
    const int row = form.KnownEmuCombo.ListIndex();
    if (row < 0 || row >= static_cast<int>(choices.size())) return;
    const std::string& path = form.txtWinUAEExe.Text();
    const bool hasPath = !path.empty() && !IsAppDirectory(main, path);
    // The question lets events run, and the rows may be filled anew.
    const KnownChoice choice = choices[static_cast<std::size_t>(row)];
    if (Take(Choose(choice, hasPath, main))) {
        form.MarkUnsaved();
        // The path that stays may not look like WinUAE's.
        if (form.UseMasterConfig.Value() == 1) form.WinUAEBtn.SetVisible(true);
    } else {
        ShowNoChoice();
    }
}

void KnownGroup::ShowNoChoice() {
    lookedAt = false;
    form.KnownEmuCombo.SetListIndexQuietly(-1);
    form.KnownEmuCombo.SetText("");
}

}  // namespace kivu::settings
