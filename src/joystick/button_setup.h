#pragma once

#include "core/hook.h"
#include "forms/types.h"
#include "forms/window_host.h"
#include "joystick/button_setup_form.h"
#include "platform/event_pump.h"
#include "profile/ini.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

class BoxByPad;
class Joystick;
class PadEvents;

// Asks for the twelve buttons in turn. A button is taken once, a key of the keyboard passes an
// action over; what has been given is stored with the last one, and with Escape not at all.
class ButtonSetup {
 public:
    struct Routines {
        Joystick& joystick;
        PadEvents& pad;
        const BoxByPad& boxes;
        support::AlwaysOnTop& alwaysOnTop;
    };

    ButtonSetup(ButtonSetupForm& window, core::Form1& form, profile::Ini& ini,
                platform::EventPump& events, const forms::WindowHost& windows, Routines routines)
        : window(window),
          form(form),
          ini(ini),
          events(events),
          windows(windows),
          routines(routines) {}

    void Form_Load();
    // Begins to ask.
    void CalibrateBtn_Click();
    // Once the window has gone, however that came about.
    void Finish();
    // All twelve were given, and are stored.
    bool HasStored() const { return stored; }

    void SetNextButton(int Pressed_Button);
    void ShowTimer_Timer();
    void PollingTimer_Timer();
    void Form_KeyDown(const forms::Key& key);
    void Form_KeyPress(forms::Character& character);
    void JoystickIcon_Click();
    void Form_QueryClose();

 private:
    bool IsAsking() const;
    void StoreButtons();
    void ActivateLoadBtn();

    ButtonSetupForm& window;
    core::Form1& form;
    profile::Ini& ini;
    platform::EventPump& events;
    const forms::WindowHost& windows;
    Routines routines;
    bool stored = false;
    bool finished = false;
    bool elsewhere = false;  // at the last look the user was in another program
    bool repeated = false;   // the key of the next character is one that is held down
};

}  // namespace kivu::joystick
