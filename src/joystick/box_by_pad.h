#pragma once

#include <set>
#include <utility>

#include "forms/window_host.h"
#include "platform/dialogs.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

class Joystick;

// The controller at a box: left and right step between its buttons, the buttons for select and
// start press the one in focus, the one to quit cancels. It looks by itself, whatever else rests
// meanwhile; what is held when the box opens does nothing until it has been released.
class BoxByPad {
 public:
    BoxByPad(core::Form1& form, Joystick& joystick, const forms::WindowHost& windows,
             platform::Dialogs& dialogs)
        : form(form), joystick(joystick), windows(windows), dialogs(dialogs) {}

    void BoxOpens();
    void BoxHasClosed();
    bool BoxIsOpen() const { return open > 0; }
    void BoxButtonTimer_Timer();

 private:
    using Steps = std::set<std::pair<int, bool>>;  // device, and whether to the right

    void Restart();
    void Step(const Steps& now);

    core::Form1& form;
    Joystick& joystick;
    const forms::WindowHost& windows;
    platform::Dialogs& dialogs;
    int open = 0;
    bool elsewhere = false;  // at the last look the user was in another program
    Steps held;
};

}  // namespace kivu::joystick
