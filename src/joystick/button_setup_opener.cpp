#include "joystick/button_setup_opener.h"

#include "core/form1.h"
#include "core/raised.h"
#include "core/settings_loader.h"
#include "joystick/joystick.h"
#include "joystick/pad_events.h"

namespace kivu::joystick {

void ButtonSetupOpener::Show(forms::Form& over) {
    if (showing || form.Busy) return;
    const core::Raised once(showing);
    // With the option off, or ticked and not saved yet, nobody has opened the devices.
    const bool opens = routines.joystick.JoystickCount() == 0;
    if (opens) {
        // The window is not there yet, and events run.
        const core::Raised working(form.Busy);
        routines.joystick.InitJoystick(routines.pad, Joystick::deadZone);
    }
    if (form.Ended) return;
    ButtonSetupWindow& setup = window.Get();
    const forms::HeldForm held(setup.GetForm());
    windows.ShowModal(setup.GetForm(), &over);
    setup.Setup().Finish();
    if (opens && !form.JoystickTimer.Enabled()) routines.joystick.ShutdownJoystick();
    // The last one is still down, and may mean something else by now.
    routines.joystick.HoldButtonsBack();
    if (setup.Setup().HasStored()) routines.settings.LoadButtons();
}

void ButtonSetupOpener::JoystickIcon_DblClick() {
    routines.alwaysOnTop.SetToNormal();
    Show(form);
    routines.alwaysOnTop.SetToTop();
}

void ButtonSetupOpener::SetNextButton(int Pressed_Button) {
    if (ButtonSetupWindow* setup = window.Loaded()) setup->Setup().SetNextButton(Pressed_Button);
}

}  // namespace kivu::joystick
