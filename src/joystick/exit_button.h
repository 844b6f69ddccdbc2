#pragma once

#include <map>
#include <utility>

#include "core/hook.h"
#include "core/ports.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

class ButtonActions;
class Joystick;

// The button that ends a game: held for two seconds it is no part of the game. It is looked for in
// those games alone in which the profile leaves the controllers on.
class ExitButton {
 public:
    struct Ports {
        core::Port<core::LoadingScreen> loading{"ExitButton.loading"};
    };

    ExitButton(core::Form1& form, Joystick& joystick, ButtonActions& actions)
        : form(form), joystick(joystick), actions(actions) {}

    // A game has been started, and the button is to be looked for.
    void WatchExitButton();
    void ExitButtonTimer_Timer();

    Ports ports;

 private:
    using Button = std::pair<int, int>;  // device and number

    // A button that has just gone down takes the loading screen away. False: there is none.
    bool SkipLoadingScreen();

    core::Form1& form;
    Joystick& joystick;
    ButtonActions& actions;
    std::map<Button, int> ticks;  // on end, of those that are down
};

}  // namespace kivu::joystick
