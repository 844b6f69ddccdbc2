// What a user's hands and the window manager do.

#include <optional>

#include "driver/commands.h"
#include "forms/controls.h"
#include "forms/directory_controls.h"
#include "forms/keys.h"
#include "forms/list_control.h"
#include "forms/user_input.h"

namespace kivu::driver {

namespace {

using forms::Control;
using forms::UserInput;

forms::Form& FormOf(Control& control) {
    if (control.GetKind() == forms::Kind::form) return static_cast<forms::Form&>(control);
    return *control.ParentForm();
}

Control& ControlAt(Session& session, const Json& command, std::size_t place) {
    return session.OpenWindows().Control(TextFrom(command[place], "the control"));
}

// A control that a hand can reach at the moment.
Control& Reachable(Session& session, const Json& command, std::size_t place = 1) {
    Control& control = ControlAt(session, command, place);
    const forms::Form& form = FormOf(control);
    const bool inSight = session.Screen().IsOpen(form) && !session.Screen().IsBlocked(form);
    if (!inSight || !control.IsReachable())
        throw CommandError(NameOf(control) + " cannot be reached");
    return control;
}

std::optional<int> RowCount(const Control& control) {
    if (const auto* list = dynamic_cast<const forms::ListControl*>(&control))
        return list->ListCount();
    if (const auto* list = dynamic_cast<const forms::DirectoryControl*>(&control))
        return list->ListCount();
    return {};
}

std::optional<int> RowAt(const Control& control, const Json& command, std::size_t place) {
    if (command.size() <= place) return {};
    const int row = WholeFrom(command[place], "the row");
    const auto count = RowCount(control);
    if (!count) throw CommandError(NameOf(control) + " has no rows");
    if (row < 0 || row >= *count)
        throw CommandError(NameOf(control) + " has no row " + std::to_string(row));
    return row;
}

Json Start(Session& session, const Json&) {
    if (session.started) throw CommandError("the program has been started already");
    session.started = true;
    session.Program().Start();
    return Json::object();
}

Json Select(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    const auto row = RowAt(control, command, 2);
    const std::string held = command.size() > 3 ? TextFrom(command[3], "the key") : "";
    const bool ctrl = held == "ctrl", shift = held == "shift";
    if (command.size() > 3 && !ctrl && !shift)
        throw CommandError("the keys for select are \"ctrl\" and \"shift\"");
    UserInput(FormOf(control))
        .Click(control, row,
               ctrl    ? forms::shifts::ctrl
               : shift ? forms::shifts::shift
                       : 0);
    return Json::object();
}

Json Click(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    UserInput(FormOf(control)).Click(control, RowAt(control, command, 2));
    return Json::object();
}

Json DoubleClick(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    UserInput(FormOf(control)).DoubleClick(control, RowAt(control, command, 2));
    return Json::object();
}

Json RightClick(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    UserInput(FormOf(control)).RightClick(control, RowAt(control, command, 2));
    return Json::object();
}

forms::Mouse MouseAt(const Json& command) {
    forms::Mouse mouse;
    mouse.button = WholeFrom(command[2], "the button");
    mouse.shift = WholeFrom(command[3], "the shift state");
    mouse.x = WholeFrom(command[4], "x");
    mouse.y = WholeFrom(command[5], "y");
    if (mouse.button < 0 || mouse.button > 7) throw CommandError("the button must be 0 to 7");
    if (mouse.shift < 0 || mouse.shift > 7) throw CommandError("the shift state must be 0 to 7");
    return mouse;
}

template <void (UserInput::*event)(Control&, const forms::Mouse&)>
Json MouseEvent(Session& session, const Json& command) {
    const forms::Mouse mouse = MouseAt(command);
    Control& control = Reachable(session, command);
    (UserInput(FormOf(control)).*event)(control, mouse);
    return Json::object();
}

// The button goes down at the grip and comes up over the target.
Json Drag(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    Control& target = Reachable(session, command, 2);
    const forms::Point place{WholeFrom(command[3], "x"), WholeFrom(command[4], "y")};
    const forms::Point grip{WholeFrom(command[5], "grabX"), WholeFrom(command[6], "grabY")};
    if (&FormOf(control) != &FormOf(target)) throw CommandError("both must be in one window");
    UserInput(FormOf(control)).Drag(control, grip, target, place);
    return Json::object();
}

// The control with the focus from here on. A window has no focus of its own.
void GiveFocus(Control& control) {
    if (control.GetKind() == forms::Kind::form) return;
    if (!control.TakesFocus()) throw CommandError(NameOf(control) + " takes no focus");
    control.SetFocus();
}

Json Focus(Session& session, const Json& command) {
    Control& control = Reachable(session, command);
    if (control.GetKind() == forms::Kind::form)
        throw CommandError(NameOf(control) + " takes no focus");
    GiveFocus(control);
    return Json::object();
}

Json Type(Session& session, const Json& command) {
    const std::string& text = TextFrom(command[2], "the text");
    Control& control = Reachable(session, command);
    if (!control.TakesFocus()) throw CommandError(NameOf(control) + " takes no focus");
    UserInput(FormOf(control)).Type(control, text);
    return Json::object();
}

Json Key(Session& session, const Json& command) {
    const std::string& name = TextFrom(command[2], "the key");
    auto key = forms::KeyByName(name);
    if (!key) throw CommandError("no key " + name);
    key->repeat = command.size() > 3 && TextFrom(command[3], "the way") == "repeat";
    if (command.size() > 3 && !key->repeat) throw CommandError("a key takes \"repeat\" at most");
    Control& control = Reachable(session, command);
    GiveFocus(control);
    UserInput(FormOf(control)).Stroke(*key);
    return Json::object();
}

Json Tick(Session& session, const Json& command) {
    auto* timer = dynamic_cast<forms::Timer*>(&ControlAt(session, command, 1));
    if (!timer) throw CommandError("not a timer");
    const int count = command.size() > 2 ? WholeFrom(command[2], "the count") : 1;
    if (count < 1 || count > 1'000'000) throw CommandError("the count must be 1 to 1000000");
    int ticks = 0;
    while (ticks < count && timer->Tick())
        ++ticks;
    if (ticks == 0) throw CommandError(NameOf(*timer) + " is off");
    return Value(ticks);
}

Json Resize(Session& session, const Json& command) {
    const int width = WholeFrom(command[2], "the width");
    const int height = WholeFrom(command[3], "the height");
    if (width < 0 || height < 0) throw CommandError("a window has no negative size");
    forms::Form& form = session.OpenWindows().Window(TextFrom(command[1], "the window"));
    form.Move(form.Left(), form.Top(), width, height);
    return Json::object();
}

Json State(Session& session, const Json& command) {
    const int state = WholeFrom(command[2], "the state");
    if (state < 0 || state > 2) throw CommandError("the state must be 0, 1 or 2");
    session.OpenWindows()
        .Window(TextFrom(command[1], "the window"))
        .SetState(static_cast<forms::WindowState>(state));
    return Json::object();
}

// The value says whether the window agrees to be closed. With the main one the program would end.
Json Close(Session& session, const Json& command) {
    forms::Form& form = session.OpenWindows().Window(TextFrom(command[1], "the window"));
    if (session.Screen().IsBlocked(form) || !session.Screen().IsOpen(form))
        throw CommandError(form.Name() + " cannot be reached");
    const bool isMain = &form == static_cast<forms::Form*>(&session.MainWindow());
    return Value(isMain ? form.RequestClose() : form.Close());
}

}  // namespace

const std::vector<Command>& HandCommands() {
    static const std::vector<Command> commands{
        {"start", 0, 0, true, Start},
        {"select", 2, 3, true, Select},
        {"click", 1, 2, true, Click},
        {"dblclick", 1, 2, true, DoubleClick},
        {"rightclick", 1, 2, true, RightClick},
        {"mousedown", 5, 5, true, MouseEvent<&UserInput::MouseDown>},
        {"mousemove", 5, 5, true, MouseEvent<&UserInput::MouseMove>},
        {"mouseup", 5, 5, true, MouseEvent<&UserInput::MouseUp>},
        {"drag", 6, 6, true, Drag},
        {"focus", 1, 1, true, Focus},
        {"type", 2, 2, true, Type},
        {"key", 2, 3, true, Key},
        {"tick", 1, 2, true, Tick},
        {"resize", 3, 3, true, Resize},
        {"state", 2, 2, true, State},
        {"close", 1, 1, true, Close},
    };
    return commands;
}

}  // namespace kivu::driver
