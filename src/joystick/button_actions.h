#pragma once

#include <array>

#include "core/hook.h"
#include "core/ports.h"
#include "forms/list_control.h"
#include "joystick/row_steps.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

// What the twelve actions are numbered by; the table of buttons holds them in this order.
enum class Action {
    quit,
    select,
    start,
    switchEmulator,
    fullScreen,
    tenDown,
    tenUp,
    hundredDown,
    hundredUp,
    toLastRow,
    toFirstRow,
    addFavourite
};
inline constexpr int actionCount = 12;

// The action of a button in the table: the first that has it. A button that none has quits.
Action ActionOf(const std::array<int, 13>& table, int button);

// A button of the controller as one of the actions.
class ButtonActions {
 public:
    struct Hooks {
        core::Hook<void(int)> SetNextButton{"ButtonActions.SetNextButton"};
        core::Hook<void()> HoldButtonsBack{"ButtonActions.HoldButtonsBack"};
    };
    struct Routines {
        core::EmulatorChoice& choice;
        core::Launching& launching;
        core::RunningEmulator& watch;
        core::Drives& drives;
    };

    ButtonActions(core::Form1& form, Routines routines)
        : form(form), routines(routines), rows(form, routines.drives) {}

    // While the buttons are being set up, the window that asks for them gets it; else nothing comes
    // of it while the launcher is busy.
    void JoystickButtonClick(int Pressed_Button);

    Hooks hooks;

 private:
    void Act(Action action, int focus);
    bool ActOn(forms::ListBox& list, Action action);
    void Select(int focus);
    void Start(int focus);
    // The mouse's whole gesture on the row that is selected.
    void DoubleClick(forms::ListBox& list);
    void LoadChosenEmulator();
    void SwitchEmulator(int focus);
    void ToggleFullScreen();
    // The list of the focus, if it is one of those that take part in long steps; else null.
    forms::ListBox* ListOf(int focus) const;
    void ScrollDown(int focus, int step);
    void ScrollUp(int focus, int step);
    void StepBy(int focus, int step);
    void ClampAll(int focus, int step);
    void Put(forms::ListBox& list, int row, int focus);
    void GoTo(int focus, bool last);

    core::Form1& form;
    Routines routines;
    RowSteps rows;
};

}  // namespace kivu::joystick
