#include "joystick/button_setup.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "forms/look.h"
#include "joystick/box_by_pad.h"
#include "joystick/button_actions.h"
#include "joystick/button_setup_texts.h"
#include "joystick/joystick.h"
#include "joystick/pad_events.h"
#include "ui/window_look.h"

namespace kivu::joystick {

namespace keys = profile::keys;

void ButtonSetup::Form_Load() {
    window.Language = form.Get_Current_Language();
    window.CalibrateBtn.SetCaption(window.Language == 1 ? "Buttons anpassen" : "Set Buttons");
    forms::TakeLook(window, ui::LookOf(form), windows.Room(&form));
    routines.alwaysOnTop.LoadSettings();
    routines.alwaysOnTop.SetToTop();
    window.JoystickIcon.SetPicture(form.JoystickIcon.GetPicture());
    CalibrateBtn_Click();
    ActivateLoadBtn();
}

// The modal window's own loop waits for the buttons; what follows it is Finish.
void ButtonSetup::CalibrateBtn_Click() {
    routines.pad.SetJoystickButtonSetupModus(true);
    window.InfoLabel.SetVisible(true);
    window.CalibrateBtn.SetVisible(false);
    const bool german = window.Language == 1;
    if (!german) window.Label1.SetCaption("Press keyboard to skip button");
    for (int action = 0; action < actionCount; ++action)
        window.Texts[static_cast<std::size_t>(action)] = SetupText(action, german, form.EXE);
    window.ShowTimer.SetEnabled(true);
    window.PollingTimer.SetEnabled(true);
    window.Buttons.fill(ButtonSetupForm::empty);
    window.Buttons[actionCount] = 0;
}

void ButtonSetup::Finish() {
    if (std::exchange(finished, true)) return;
    routines.pad.SetJoystickButtonSetupModus(false);
    window.ShowTimer.SetEnabled(false);
    window.PollingTimer.SetEnabled(false);
    window.InfoLabel.SetCaption(window.Language == 1 ? "Fertig!" : "Done!");
    window.InfoLabel.SetCaption("\r\r\r" + window.InfoLabel.Caption());
    ActivateLoadBtn();
    window.Unload();
}

bool ButtonSetup::IsAsking() const {
    return window.Position < actionCount;
}

void ButtonSetup::SetNextButton(int Pressed_Button) {
    if (!IsAsking() || window.IsUnloaded()) return;
    const auto asked = window.Buttons.begin() + window.Position;
    // Held on, or wanted for two actions.
    if (Pressed_Button >= 0 && std::find(window.Buttons.begin(), asked, Pressed_Button) != asked)
        return;
    *asked = Pressed_Button;
    ++window.Position;
    if (IsAsking()) return;
    StoreButtons();
    routines.pad.SetJoystickButtonSetupModus(false);
    window.Unload();
}

void ButtonSetup::StoreButtons() {
    stored = true;
    const std::string file = core::ProfilesOf(form).Of(keys::Buttons[0].profile);
    // Together: each write puts the whole file anew and waits for the disk.
    auto profile = ini.LoadProfile(file);
    if (!profile) return;
    for (std::size_t action = 0; action < keys::Buttons.size(); ++action)
        profile->Set(keys::section, keys::Buttons[action].name,
                     std::to_string(window.Buttons[action]));
    ini.StoreProfile(*profile, file, true);
}

void ButtonSetup::ShowTimer_Timer() {
    if (!IsAsking()) return;
    window.InfoLabel.SetCaption(window.Texts[static_cast<std::size_t>(window.Position)] + "\r\r" +
                                std::to_string(window.Position + 1) + " / " +
                                std::to_string(actionCount));
}

void ButtonSetup::PollingTimer_Timer() {
    // A box in front of this window has the pad for itself.
    if (!form.JoystickButtonSetupModus || routines.boxes.BoxIsOpen()) return;
    // Behind another program's window the pad is held for that one.
    if (windows.ActiveWindow() == forms::WindowHost::Activity::others) {
        elsewhere = true;
        return;
    }
    const bool back = std::exchange(elsewhere, false);
    if (!routines.joystick.TakeChange() && back) routines.joystick.HoldButtonsBack();
    routines.joystick.PollJoysticks();
    events.DoEvents();
}

void ButtonSetup::Form_KeyDown(const forms::Key& key) {
    repeated = key.repeat;
}

void ButtonSetup::Form_KeyPress(forms::Character& character) {
    const char32_t typed = std::exchange(character.code, 0);
    // A key that is held down would pass all twelve over, and then every button quits.
    if (repeated || !IsAsking()) return;
    SetNextButton(ButtonSetupForm::skipped);
    if (typed == forms::keys::escape) window.Unload();
}

void ButtonSetup::JoystickIcon_Click() {
    window.Unload();
}

void ButtonSetup::Form_QueryClose() {
    ActivateLoadBtn();
}

// Of the settings, where these are open.
void ButtonSetup::ActivateLoadBtn() {
    forms::Form* settings = windows.Find("SettingsForm");
    forms::Control* button = settings ? settings->Find("LoadBtn") : nullptr;
    if (button) button->SetEnabled(true);
}

}  // namespace kivu::joystick
