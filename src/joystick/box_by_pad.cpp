#include "joystick/box_by_pad.h"

#include "core/form1.h"
#include "joystick/button_actions.h"
#include "joystick/joystick.h"

namespace kivu::joystick {

using BoxKey = platform::Dialogs::BoxKey;

namespace {

using Steps = std::set<std::pair<int, bool>>;

Steps StepsOf(const std::vector<Joystick::Look>& looks) {
    Steps steps;
    for (const Joystick::Look& look : looks) {
        for (const StickEvent& event : look.sticks) {
            if (event.move == Move::left || event.move == Move::right)
                steps.emplace(look.device, event.move == Move::right);
        }
    }
    return steps;
}

}  // namespace

void BoxByPad::BoxOpens() {
    ++open;
    elsewhere = false;
    Restart();
    form.BoxButtonTimer.SetEnabled(joystick.JoystickCount() > 0);
}

void BoxByPad::BoxHasClosed() {
    if (--open == 0) form.BoxButtonTimer.SetEnabled(false);
    Restart();
}

// What is held now belongs to what was before.
void BoxByPad::Restart() {
    held = StepsOf(joystick.LookAtPads());
    joystick.HoldButtonsBack();
}

void BoxByPad::BoxButtonTimer_Timer() {
    if (windows.ActiveWindow() == forms::WindowHost::Activity::others) {
        elsewhere = true;
        return;
    }
    const bool changed = joystick.TakeChange();
    if (std::exchange(elsewhere, false) || changed) Restart();
    const std::vector<Joystick::Look> looks = joystick.LookAtPads();
    Step(StepsOf(looks));
    for (const Joystick::Look& look : looks) {
        for (const int button : look.buttons) {
            const Action action = ActionOf(form.JoystickButtons, button);
            const bool presses = action == Action::select || action == Action::start;
            if (!presses && action != Action::quit) continue;
            // The next box, or the same one, wants a press of its own.
            Restart();
            dialogs.PressInBox(presses ? BoxKey::press : BoxKey::cancel);
            return;
        }
    }
}

void BoxByPad::Step(const Steps& now) {
    const Steps before = std::exchange(held, now);
    for (const auto& step : now) {
        if (!before.contains(step))
            dialogs.PressInBox(step.second ? BoxKey::next : BoxKey::previous);
    }
}

}  // namespace kivu::joystick
