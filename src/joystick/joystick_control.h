#pragma once

#include "forms/window_host.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

class Joystick;
class PadEvents;

// Switches the controllers on and off, and looks at them as long as they are on.
class JoystickControl {
 public:
    struct Services {
        platform::Dialogs& dialogs;
        platform::EventPump& events;
        platform::Beeper& beeper;
    };

    JoystickControl(core::Form1& form, profile::Ini& ini, Joystick& joystick, PadEvents& pad,
                    const forms::WindowHost& windows, Services services)
        : form(form),
          ini(ini),
          joystick(joystick),
          pad(pad),
          windows(windows),
          services(services) {}

    // Events run while the devices are opened; what is wished meanwhile is done at the end.
    void JoystickEnable(bool bEnable);
    void JoystickTimer_Timer();
    // The devices anew, with the present positions of their sticks as those at rest.
    void JoystickIcon_Click();
    // Buttons that are still down from a game act once they have been released.
    void GameHasEnded();

 private:
    void Switch(bool on);
    void SwitchOn();
    void OfferToSwitchOff();
    void OpenAnew();
    void TakeChange();
    bool IsForOthers() const;
    void HoldButtonsBack();

    core::Form1& form;
    profile::Ini& ini;
    Joystick& joystick;
    PadEvents& pad;
    const forms::WindowHost& windows;
    Services services;
    bool switching = false;
    bool offWished = false;  // while switching
    bool changed = false;    // devices have come or gone since the start
    bool silent = false;     // the last ticks have not polled: what is held by now is old
};

}  // namespace kivu::joystick
