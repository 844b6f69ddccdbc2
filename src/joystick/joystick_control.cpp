#include "joystick/joystick_control.h"

#include <string>
#include <utility>

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "joystick/joystick.h"
#include "joystick/pad_events.h"

namespace kivu::joystick {

void JoystickControl::JoystickEnable(bool bEnable) {
    if (switching) {
        offWished = !bEnable;
        return;
    }
    const core::Raised once(switching);
    offWished = false;
    Switch(bEnable);
    if (std::exchange(offWished, false)) Switch(false);
}

void JoystickControl::Switch(bool on) {
    if (on) {
        if (!form.JoystickTimer.Enabled()) SwitchOn();
        return;
    }
    form.JoystickIcon.SetVisible(false);
    if (!form.JoystickTimer.Enabled()) return;
    joystick.ShutdownJoystick();
    form.JoystickTimer.SetEnabled(false);
}

void JoystickControl::SwitchOn() {
    form.JoystickTimer.SetEnabled(false);
    joystick.ShutdownJoystick();
    joystick.InitJoystick(pad, Joystick::deadZone);
    if (form.Ended) return;
    if (joystick.JoystickCount() < 1) {
        OfferToSwitchOff();
        return;
    }
    form.MyCaptionLabel.SetCaption("Joysticks: " + std::to_string(joystick.JoystickCount()));
    form.JoystickTimer.SetEnabled(true);
    form.JoystickIcon.SetVisible(true);
}

void JoystickControl::OfferToSwitchOff() {
    // The box may stand for long.
    ini.StoreWriteBacks();
    const std::string question = form.Say(
        "Es wurden keine Joysticks oder Gampads gefunden! (DX8 Fehler?)\r\r"
        "Soll die Joystick-Bedienung den Optionen ausgeschaltet werden?",
        "No Joysticks or Gampads found!\r\rDo you want to disable the Joystick-Navigation? ");
    const auto answer = services.dialogs.MessageBox(
        question, "Joysticks / Gamepads = 0)", platform::Buttons::YesNo, platform::Icon::Question);
    if (answer == platform::Answer::Yes)
        ini.Write(profile::keys::UseJoystick, core::ProfilesOf(form), "0");
}

void JoystickControl::JoystickTimer_Timer() {
    if (IsForOthers()) {
        silent = true;
        return;
    }
    if (!form.Busy && joystick.HasChanged()) TakeChange();
    // Events have run.
    if (IsForOthers()) return;
    if (silent) HoldButtonsBack();
    joystick.PollJoysticks();
}

// Neither in a game, nor in an emulator that runs by itself, nor behind another program's window is
// the pad held for the launcher.
bool JoystickControl::IsForOthers() const {
    return form.GameIsRunning || form.EmulatorRuns() ||
           windows.ActiveWindow() == forms::WindowHost::Activity::others;
}

// As a click on the picture does. The title line tells the count where it has become another one;
// the first change comes with the start, where the title belongs there.
void JoystickControl::TakeChange() {
    const int before = joystick.JoystickCount();
    const std::string title = form.MyCaptionLabel.Caption();
    const bool shown = form.MyCaptionLabel.Visible();
    OpenAnew();
    // One that comes with a button down does not act by that.
    silent = true;
    const bool first = !std::exchange(changed, true);
    if (!first && joystick.JoystickCount() != before) return;
    form.MyCaptionLabel.SetCaption(title);
    form.MyCaptionLabel.SetVisible(shown);
}

void JoystickControl::GameHasEnded() {
    form.ExitButtonTimer.SetEnabled(false);
    HoldButtonsBack();
}

void JoystickControl::HoldButtonsBack() {
    silent = false;
    joystick.HoldButtonsBack();
}

void JoystickControl::JoystickIcon_Click() {
    OpenAnew();
    services.beeper.Beep();
}

void JoystickControl::OpenAnew() {
    // Events run: a launch that begins in there would leave the devices open.
    const core::Raised working(form.Busy);
    form.JoystickIcon.SetVisible(false);
    JoystickEnable(false);
    services.events.DoEvents();
    JoystickEnable(true);
    pad.SetJoystickButtonSetupModus(false);
    form.JoystickIcon.SetVisible(true);
}

}  // namespace kivu::joystick
