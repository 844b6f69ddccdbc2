#pragma once

#include "core/hook.h"
#include "core/ports.h"
#include "forms/types.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"

namespace kivu::core {

struct Form1;
class ShutDown;

// Keys that belong to the window as a whole; they come here before any control.
class WindowKeys {
 public:
    struct Hooks {
        Hook<void(int)> JoystickDirection{"WindowKeys.JoystickDirection"};
        Hook<void()> TogglePictureZoom{"WindowKeys.TogglePictureZoom"};
        Hook<bool()> BoxIsOpen{"WindowKeys.BoxIsOpen"};
    };
    struct Ports {
        Port<RunningEmulator> watch{"WindowKeys.watch"};
        Port<LoadingScreen> loading{"WindowKeys.loading"};
    };

    WindowKeys(Form1& form, platform::Dialogs& dialogs, platform::Beeper& beeper,
               ShutDown& shutDown)
        : form(form), dialogs(dialogs), beeper(beeper), shutDown(shutDown) {}

    void Form_KeyDown(forms::Key& key);
    void Form_KeyPress(forms::Character& character);
    // A close request of a panel or the task bar, which asks as Escape does. One by Alt+F4 comes as
    // that key.
    void Form_QueryClose(bool& cancel);

    Hooks hooks;
    Ports ports;

 private:
    void CloseKey();
    void AskToEnd();
    void ResizeBy(int keyCode);
    bool MovesInSearchText() const;

    Form1& form;
    platform::Dialogs& dialogs;
    platform::Beeper& beeper;
    ShutDown& shutDown;
};

}  // namespace kivu::core
