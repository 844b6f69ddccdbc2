#include "settings/settings_window.h"

#include <functional>
#include <initializer_list>
#include <utility>

#include "core/form1.h"
#include "library/game_lists.h"
#include "settings/boxes.h"
#include "settings/form_values.h"
#include "settings/path_fields.h"
#include "text/paths.h"

namespace kivu::settings {

namespace keys = forms::keys;
namespace shifts = forms::shifts;

namespace {

// What is pressed with the mouse does nothing while `isHeld` says so. Check boxes and fields hold
// values, and keep what has been made of them.
void HoldCommandsBack(const forms::Container& container, const std::function<bool()>& isHeld) {
    for (forms::Control* control : container.Children()) {
        const forms::Kind kind = control->GetKind();
        const bool isCommand = kind == forms::Kind::commandButton || kind == forms::Kind::label ||
                               kind == forms::Kind::image;
        if (isCommand && control->onClick) {
            control->onClick = [isHeld, run = std::move(control->onClick)] {
                if (!isHeld()) run();
            };
        }
        const auto* inner = dynamic_cast<const forms::Container*>(control);
        if (inner) HoldCommandsBack(*inner, isHeld);
    }
}

}  // namespace

SettingsWindow::SettingsWindow(core::Form1& main, forms::Toolkit toolkit, Services services,
                               Routines routines)
    : main(main),
      services(services),
      routines(routines),
      form(toolkit, main.Get_Current_Language()),
      store(main, services.ini, services.files),
      alwaysOnTop(form, {form.AOT_Enabled, form.AOT_Disabled, form.AOT_MouseMove},
                  services.userStore),
      winuae(form, main,
             {services.files, services.starter, services.dialogs, services.fileDialogs,
              services.log, routines.loadingScreen, routines.uaeFiles, routines.launch}),
      known(form, main, {services.files, services.starter, services.dialogs}, winuae),
      newEmulator(form, main,
                  {services.files, services.dialogs, routines.emulators, routines.watch,
                   services.windows, routines.mainOnTop}),
      paths(form, main, {services.files, services.dialogs, services.fileDialogs, routines.setup},
            {known, winuae, newEmulator}),
      launch(form, routines.startHelpers),
      program(form, main, {services.files, services.windows, services.fileDialogs},
              {routines.buttons, routines.repair, routines.links, alwaysOnTop}),
      looks(form, main, routines.windowColors,
            {services.ini, services.dialogs, services.systemColors}),
      saving(form, main, store, {services.ini, services.dialogs, services.beeper},
             {routines.settings, routines.windowColors, [this] { return winuae.SaveMaster(); },
              [this](int value) { program.TakeJoystick(value); }}),
      designPicture(form.BackgroundFrame.GetPicture()) {
    JoinEvents();
    JoinPin();
    HoldCommandsBack(form, [this] { return program.IsUpdating(); });
}

void SettingsWindow::JoinEvents() {
    winuae.JoinEvents();
    known.JoinEvents();
    newEmulator.JoinEvents();
    newEmulator.hooks.LoadAnew = [this](bool keepTyped) { LoadAnew(keepTyped); };
    paths.JoinEvents();

    form.onLoad = [this] { Form_Load(); };
    form.onUnload = [this] { Form_Unload(); };
    form.onQueryClose = [this](bool& cancel) { Form_QueryClose(cancel); };
    form.onPreviewKeyDown = [this](forms::Key& key) { Form_KeyDown(key); };
    form.onPreviewKeyPress = [this](forms::Character& key) { Form_KeyPress(key); };
    const auto drag = [this](const forms::Mouse& mouse) {
        if (mouse.button == forms::buttons::left) form.BeginDrag();
    };
    for (forms::Control* surface : std::initializer_list<forms::Control*>{
             &form, &form.BackgroundFrame, &form.TitleLabel, &form.EmulatorGroup, &form.StartGroup,
             &form.ProgramGroup})
        surface->onMouseDown = drag;

    form.SaveBtn.onClick = [this] { SaveBtn_Click(); };
    form.ExitBtn.onClick = [this] { ExitBtn_Click(); };
    form.LoadBtn.onClick = [this] { LoadBtn_Click(); };
    form.ReloadAllBtn.onClick = [this] { ReloadAllBtn_Click(); };
    form.IniBtn.onClick = [this] { IniBtn_Click(); };
}

void SettingsWindow::JoinPin() {
    form.onMouseMove = [this](const forms::Mouse&) { alwaysOnTop.MouseLeft(); };
    form.BackgroundFrame.onMouseMove = form.onMouseMove;
    form.AlwaysOnTop1.onMouseLeave = [this] { alwaysOnTop.MouseLeft(); };
    form.AOT_Enabled.onClick = [this] { alwaysOnTop.AOT_Enabled_Click(); };
    form.AOT_Disabled.onClick = [this] { alwaysOnTop.AOT_Disabled_Click(); };
    form.AOT_MouseMove.onClick = [this] { alwaysOnTop.AOT_MouseMove_Click(); };
    form.AOT_Disabled.onMouseMove = [this](const forms::Mouse&) {
        alwaysOnTop.AOT_Disabled_MouseMove();
    };
}

void SettingsWindow::ExitBtn_Click() {
    if (form.IsUnloaded() || IsWorking() || !MayDiscard()) return;
    form.Unload();
}

bool SettingsWindow::MayDiscard() {
    return !form.SaveBtn.Enabled() ||
           Show(services.dialogs, DiscardQuestion(main)) == platform::Answer::Ok;
}

bool SettingsWindow::IsWorking() const {
    return !form.Enabled() || program.IsUpdating();
}

void SettingsWindow::Form_QueryClose(bool& cancel) {
    cancel = IsWorking() || !MayDiscard();
}

void SettingsWindow::Form_KeyPress(forms::Character& character) {
    if (program.IsUpdating()) {
        if (character.code == keys::escape) program.CancelUpdate();
        character.code = 0;
        return;
    }
    if (character.code != keys::escape || form.HasOpenPanel()) return;
    character.code = 0;
    // One that is held down was meant for what it has closed before.
    if (!heldDown) ExitBtn_Click();
}

void SettingsWindow::Form_KeyDown(forms::Key& key) {
    heldDown = key.repeat;
    // Escape comes once more as a character.
    if (program.IsUpdating() && key.code != keys::escape) {
        key = {};
        return;
    }
    if (key.code != 'S' || key.shift != shifts::ctrl) return;
    const bool repeat = key.repeat;
    key = {};
    if (!repeat) SaveByKey();
}

// As a press of the button does: what is being typed is left, and then gone back to.
void SettingsWindow::SaveByKey() {
    if (IsWorking() || !form.SaveBtn.IsReachable()) return;
    forms::Control* typedIn = form.Focus();
    form.SaveBtn.SetFocus();
    if (form.SaveBtn.IsReachable()) SaveBtn_Click();
    const bool left = form.SaveBtn.HasFocus() || form.ExitBtn.HasFocus();
    if (typedIn && left && !form.IsUnloaded()) typedIn->SetFocus();
}

void SettingsWindow::SetTitle(const std::string& title) {
    form.SetCaption(title);
    form.TitleLabel.SetCaption(title);
}

// As the main window reads it from a profile: what is relative means something below the program's
// directory, wherever the process stands.
void SettingsWindow::CopyRomPath() {
    const std::string& typed = form.TxtRomPath.Text();
    main.TxtRomPath.SetText(typed.empty() ? main.AppDir
                                          : text::AddPathSeparator(MeantPath(main, typed)));
}

void SettingsWindow::LoadBtn_Click() {
    if (IsWorking()) return;
    CopyRomPath();
    if (form.SaveBtn.Enabled()) {
        Show(services.dialogs, SaveFirstBox());
        return;
    }
    // There is nothing to look for, and the lists would not come back.
    if (main.Busy || main.CurrentEmuIndex < 0) return;
    // From here on nobody closes the window, whatever events run.
    form.SetEnabled(false);
    form.ExitBtn.SetEnabled(false);
    form.LoadBtn.SetEnabled(false);
    const std::string title = form.Caption();
    SetTitle(ScanTitle(main));
    routines.busy.HideAll(false);
    services.events.DoEvents();
    if (main.Ended) return;
    routines.lists.RescanByButton();
    if (main.Ended) return;
    SetTitle(title);
    form.Unload();
}

void SettingsWindow::ReloadAllBtn_Click() {
    if (IsWorking() || main.Busy || !MayDiscard()) return;
    if (Show(services.dialogs, ReloadAllQuestion(main)) != platform::Answer::Ok) return;
    form.SetVisible(false);
    routines.lists.ReloadEmulatorsAll();
    if (main.Ended) return;
    // Buttons that were off meanwhile have lost the focus.
    if (!main.Focus()) main.UAE_Short.SetFocus();
    form.Unload();
}

void SettingsWindow::IniBtn_Click() {
    services.ini.StoreWriteBacks();
    EditProfile(form.IniPath);
    if (!services.files.FileExists(form.ColorsIniName)) {
        // What could not be made shows in what follows.
        (void)services.files.MakeDirectory(text::GetParentPath(form.ColorsIniName));
        (void)services.files.WriteFile(form.ColorsIniName, "");
    }
    EditProfile(form.ColorsIniName);
}

void SettingsWindow::EditProfile(const std::string& path) {
    if (services.starter.EditText(path)) Show(services.dialogs, NotEditedBox(path, main));
}

}  // namespace kivu::settings
