#pragma once

#include "forms/on_demand.h"
#include "forms/window_host.h"
#include "joystick/button_setup_window.h"

namespace kivu::core {
struct Form1;
class SettingsLoader;
}  // namespace kivu::core

namespace kivu::joystick {

// Opens the set-up of the buttons, from the main window's icon or over the settings.
class ButtonSetupOpener {
 public:
    struct Routines {
        Joystick& joystick;
        PadEvents& pad;
        core::SettingsLoader& settings;
        support::AlwaysOnTop& alwaysOnTop;
    };

    ButtonSetupOpener(core::Form1& form, forms::OnDemand<ButtonSetupWindow>& window,
                      forms::WindowHost& windows, Routines routines)
        : form(form), window(window), windows(windows), routines(routines) {}

    // Modal over the window. Where buttons have been set, they count when this returns.
    void Show(forms::Form& over);
    // Over the main window, which is not kept on top meanwhile.
    void JoystickIcon_DblClick();
    // Goes to the window, if it is there.
    void SetNextButton(int Pressed_Button);

 private:
    core::Form1& form;
    forms::OnDemand<ButtonSetupWindow>& window;
    forms::WindowHost& windows;
    Routines routines;
    bool showing = false;
};

}  // namespace kivu::joystick
