#pragma once

#include "core/form1.h"
#include "core/hook.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"

namespace kivu::core {

// Keys that belong to the window as a whole; they come here before any control.
class WindowKeys {
 public:
    struct Hooks {
        Hook<void()> ExitBtn_Click;
        Hook<void()> AppRunningPicture_Click;
        Hook<void(int)> JoystickDirection;
    };

    WindowKeys(Form1& form, platform::Dialogs& dialogs, platform::Beeper& beeper)
        : form(form), dialogs(dialogs), beeper(beeper) {}

    void Form_KeyDown(forms::Key& key);
    void Form_KeyPress(forms::Character& character);
    // Alt+F4 as a close request of the window manager: the window stays open.
    void Form_QueryClose(bool& cancel);

    Hooks hooks;

 private:
    void CloseKey();
    void ResizeBy(int keyCode);
    bool MovesInSearchText() const;

    Form1& form;
    platform::Dialogs& dialogs;
    platform::Beeper& beeper;
};

}  // namespace kivu::core
