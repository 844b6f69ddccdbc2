#include "joystick/exit_button.h"

#include <algorithm>
#include <utility>

#include "core/form1.h"
#include "joystick/button_actions.h"
#include "joystick/joystick.h"

namespace kivu::joystick {

namespace {
constexpr int ticksToEnd = 8;  // of a quarter of a second
}  // namespace

void ExitButton::WatchExitButton() {
    ticks.clear();
    // The one that has started the game is still down.
    joystick.HoldButtonsBack();
    form.ExitButtonTimer.SetEnabled(true);
}

void ExitButton::ExitButtonTimer_Timer() {
    if (!form.GameIsRunning || !form.JoystickTimer.Enabled()) {
        form.ExitButtonTimer.SetEnabled(false);
        return;
    }
    if (joystick.TakeChange()) ticks.clear();
    std::map<Button, int> down;
    for (const Joystick::Look& look : joystick.LookAtPads()) {
        for (const int button : look.buttons)
            down[{look.device, button}] = ticks[{look.device, button}] + 1;
        // One that is hammered is down at each look, and never held.
        for (const int button : look.pressed)
            down[{look.device, button}] = 1;
    }
    ticks = std::move(down);
    if (SkipLoadingScreen()) return;
    for (const auto& [button, count] : ticks) {
        const int action = static_cast<int>(ActionOf(form.JoystickButtons, button.second));
        if (count < ticksToEnd || action != form.ExitButtonAction || form.Busy) continue;
        // Held on, it must not end the next program of the name.
        const int number = button.second;
        ticks.clear();
        joystick.HoldButtonsBack();
        actions.JoystickButtonClick(number);
        return;
    }
}

bool ExitButton::SkipLoadingScreen() {
    if (!ports.loading->IsShown()) return false;
    const bool fresh =
        std::any_of(ticks.begin(), ticks.end(), [](const auto& one) { return one.second == 1; });
    if (fresh) {
        ticks.clear();
        joystick.HoldButtonsBack();
        ports.loading->Unload();
    }
    return true;
}

}  // namespace kivu::joystick
