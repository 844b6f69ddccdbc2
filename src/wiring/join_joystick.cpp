// The game controllers: when they are on, what their buttons and sticks do, and their set-up.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinJoystick() {
    controllers.ports.window = padEvents;
    buttonActions.hooks.SetNextButton = [this](int button) { buttonSetup.SetNextButton(button); };
    // What is held down over a change of the emulator must not act on the new one's games.
    buttonActions.hooks.HoldButtonsBack = [this] { controllers.HoldButtonsBack(); };

    settingsLoader.hooks.JoystickEnable = [this](bool on) { joystickControl.JoystickEnable(on); };
    settingsLoader.hooks.JoystickCount = [this] { return controllers.JoystickCount(); };
    // In a game its first button skips the loading screen.
    exitButton.ports.loading = windowsBeside.loading;
    gameLaunch.hooks.JoystickEnable = [this](bool on) { joystickControl.JoystickEnable(on); };
    // In a game that leaves them on, one button ends it.
    gameLaunch.hooks.WatchExitButton = [this] { exitButton.WatchExitButton(); };
    watch.hooks.JoystickEnable = [this](bool on) { joystickControl.JoystickEnable(on); };
    watch.hooks.HoldButtonsBack = [this] { joystickControl.GameHasEnded(); };
    // Nobody needs a keyboard to get past a question.
    dialogs.hooks.BoxOpens = [this] { boxByPad.BoxOpens(); };
    dialogs.hooks.BoxHasClosed = [this] { boxByPad.BoxHasClosed(); };

    form.JoystickTimer.onTimer = [this] { joystickControl.JoystickTimer_Timer(); };
    form.ExitButtonTimer.onTimer = [this] { exitButton.ExitButtonTimer_Timer(); };
    form.BoxButtonTimer.onTimer = [this] { boxByPad.BoxButtonTimer_Timer(); };
    form.JoystickIcon.onClick = [this] { joystickControl.JoystickIcon_Click(); };
    form.JoystickIcon.onDblClick = [this] { buttonSetup.JoystickIcon_DblClick(); };
}

std::unique_ptr<joystick::ButtonSetupWindow> Launcher::Routines::MakeButtonSetup() {
    return std::make_unique<joystick::ButtonSetupWindow>(
        form, joystick::ButtonSetupWindow::Services{ini, host.events, host.userStore, windows},
        joystick::ButtonSetupWindow::Routines{controllers, padEvents, boxByPad});
}

}  // namespace kivu::wiring
