#include "joystick/button_actions.h"

#include <algorithm>

#include "core/form1.h"

namespace kivu::joystick {

namespace {

// Numbers of JoystickFocus.
constexpr int favourites = 1, complete = 3, results = 4, emulators = 5;
constexpr int ten = 10, hundred = 100;

}  // namespace

Action ActionOf(const std::array<int, 13>& table, int button) {
    const auto end = table.begin() + actionCount;
    const auto found = std::find(table.begin(), end, button);
    return found == end ? Action::quit : static_cast<Action>(found - table.begin());
}

void ButtonActions::JoystickButtonClick(int Pressed_Button) {
    if (form.JoystickButtonSetupModus) {
        hooks.SetNextButton(Pressed_Button);
        return;
    }
    if (form.Busy) return;
    if (form.EmulatorLongListbox.Visible()) form.JoystickFocus = emulators;
    const Action action = ActionOf(form.JoystickButtons, Pressed_Button);
    if (form.GameIsRunning && static_cast<int>(action) == form.ExitButtonAction) {
        routines.watch.KillRunning();
        return;
    }
    Act(action, form.JoystickFocus);
}

void ButtonActions::Act(Action action, int focus) {
    forms::ListBox* front = rows.ListOfAllEmulators();
    if (front && ActOn(*front, action)) return;
    switch (action) {
        case Action::quit:
            return form.ExitBtn.Click();
        case Action::select:
            return Select(focus);
        case Action::start:
            return Start(focus);
        case Action::switchEmulator:
            return SwitchEmulator(focus);
        case Action::fullScreen:
            return ToggleFullScreen();
        case Action::tenDown:
        case Action::hundredDown:
            return ScrollDown(focus, action == Action::tenDown ? ten : hundred);
        case Action::tenUp:
        case Action::hundredUp:
            return ScrollUp(focus, action == Action::tenUp ? ten : hundred);
        case Action::toLastRow:
        case Action::toFirstRow:
            return GoTo(focus, action == Action::toLastRow);
        case Action::addFavourite:
            if (form.AddToFavorit.IsReachable()) form.AddToFavorit.Click();
            return;
    }
}

// On a list of all emulators, which is in front. False: the action is not one on a list.
bool ButtonActions::ActOn(forms::ListBox& list, Action action) {
    const int row = list.ListIndex(), last = list.ListCount() - 1;
    const auto step = [&](int by) {
        if (last >= 0) list.SetListIndex(std::clamp(row + by, 0, last));
    };
    switch (action) {
        case Action::select:
            if (row >= 0) list.Click();
            return true;
        case Action::start:
            if (row < 0) return true;
            list.Click();
            list.DoubleClick();
            // Still held, the button would start what has come to the front.
            hooks.HoldButtonsBack();
            return true;
        case Action::tenDown:
            step(ten);
            return true;
        case Action::tenUp:
            step(-ten);
            return true;
        case Action::hundredDown:
            step(hundred);
            return true;
        case Action::hundredUp:
            step(-hundred);
            return true;
        case Action::toLastRow:
            step(last - row);
            return true;
        case Action::toFirstRow:
            step(-row);
            return true;
        default:
            return false;
    }
}

void ButtonActions::Select(int focus) {
    if (focus == complete) {
        // Elsewhere the row that the step has come to is chosen already.
        if (rows.KeepsChosenRows(form.UAE_Short))
            form.UAE_Short.ClickRow(form.UAE_Short.ListIndex(), forms::Choice::toggle);
    } else if (focus == emulators) {
        form.EmuListbox.Click();
        form.JoystickFocus = emulators;
        form.EmuListbox.SetFocus();
    } else if (forms::ListBox* list = focus == results ? &form.SuchErgList : ListOf(focus)) {
        // Without a row there is nothing to click.
        if (list->ListIndex() >= 0) list->Click();
    }
}

// Only a launch and its watch lower the flag again: it keeps the poll silent while the game is
// brought up. A start that leads to no game leaves the controller silent until the next one has
// come and gone.
void ButtonActions::Start(int focus) {
    form.GameIsRunning = true;
    if (focus == emulators) {
        LoadChosenEmulator();
    } else if (focus == results) {
        DoubleClick(form.SuchErgList);
    } else if (forms::ListBox* list = ListOf(focus)) {
        DoubleClick(*list);
        if (!form.Ended) form.JoystickFocus = focus;
    }
}

void ButtonActions::DoubleClick(forms::ListBox& list) {
    // With no row in the complete list the launch says that there is no file.
    if (&list == &form.UAE_Short && list.ListIndex() < 0) {
        routines.launching.LaunchBtn_Click();
        return;
    }
    if (list.ListIndex() < 0) return;
    list.Click();
    list.DoubleClick();
}

void ButtonActions::LoadChosenEmulator() {
    form.GameIsRunning = false;
    routines.choice.EmuListbox_DblClick();
    // Still held, the button would start the new emulator's first game.
    hooks.HoldButtonsBack();
}

void ButtonActions::SwitchEmulator(int focus) {
    if (focus >= emulators) {
        routines.choice.LeaveEmulatorBox();
        return;
    }
    routines.choice.ShowEmulatorBox(true);
    routines.choice.EmuListbox_GotFocus();
    form.EmuListbox.SetFocus();
}

void ButtonActions::ToggleFullScreen() {
    const bool maximized = form.State() == forms::WindowState::maximized;
    form.SetState(maximized ? forms::WindowState::normal : forms::WindowState::maximized);
}

forms::ListBox* ButtonActions::ListOf(int focus) const {
    const std::array<forms::ListBox*, 3> lists{&form.FavoritenListe, &form.WIthoutDoubles,
                                               &form.UAE_Short};
    if (focus < favourites || focus > complete) return nullptr;
    return lists[static_cast<std::size_t>(focus - favourites)];
}

// A list that is not the controller's own moves without its click: that would select another game.
void ButtonActions::Put(forms::ListBox& list, int row, int focus) {
    if (&list == ListOf(focus)) {
        rows.SetRow(list, row);
    } else {
        rows.SetRowQuietly(list, row);
    }
}

void ButtonActions::StepBy(int focus, int step) {
    if (forms::ListBox* list = ListOf(focus)) rows.SetRow(*list, list->ListIndex() + step);
}

void ButtonActions::ClampAll(int focus, int step) {
    for (forms::ListBox* list : {&form.WIthoutDoubles, &form.UAE_Short, &form.FavoritenListe}) {
        const int last = list->ListCount() - 1;
        if (list->ListIndex() + step > last) Put(*list, last, focus);
    }
}

// By ten the lists are clamped in front of the step, by a hundred behind it: there a list within a
// hundred rows of its end goes to the end.
void ButtonActions::ScrollDown(int focus, int step) {
    if (step == hundred) StepBy(focus, step);
    ClampAll(focus, step);
    if (step == ten) StepBy(focus, step);
}

// Whichever list is near its top, it is the simple one that goes there; and the complete one is
// near it with ten rows in either case.
void ButtonActions::ScrollUp(int focus, int step) {
    const auto nearTop = [&](const forms::ListBox& list, int bound) {
        if (list.ListIndex() < bound) Put(form.WIthoutDoubles, 0, focus);
    };
    nearTop(form.WIthoutDoubles, step);
    nearTop(form.UAE_Short, ten);
    nearTop(form.FavoritenListe, step);
    StepBy(focus, -step);
}

void ButtonActions::GoTo(int focus, bool last) {
    if (forms::ListBox* list = ListOf(focus)) rows.SetRow(*list, last ? list->ListCount() - 1 : 0);
}

}  // namespace kivu::joystick
