#pragma once

#include "joystick/button_setup.h"
#include "joystick/button_setup_form.h"
#include "platform/user_store.h"
#include "support/always_on_top.h"

namespace kivu::joystick {

// The window in which the controller's buttons are set up, made anew for each time.
class ButtonSetupWindow {
 public:
    struct Services {
        profile::Ini& ini;
        platform::EventPump& events;
        platform::UserStore& userStore;
        forms::WindowHost& windows;
    };
    struct Routines {
        Joystick& joystick;
        PadEvents& pad;
        const BoxByPad& boxes;
    };

    ButtonSetupWindow(core::Form1& form, Services services, Routines others);

    forms::Form& GetForm() { return form; }
    ButtonSetup& Setup() { return routines; }

 private:
    void JoinEvents();

    ButtonSetupForm form;
    support::AlwaysOnTop alwaysOnTop;
    ButtonSetup routines;
};

}  // namespace kivu::joystick
