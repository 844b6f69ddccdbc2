// Reading and writing the windows.

#include "driver/commands.h"
#include "driver/fields.h"
#include "driver/properties.h"
#include "wiring/routines.h"

namespace kivu::driver {

namespace {

bool IsOfWindow(const Windows::Member& member) {
    return &member.owner == static_cast<forms::Control*>(&member.window);
}

// What the change of the display mode keeps to itself; nothing but to be looked at.
std::optional<Json> DisplayField(Session& session, const std::string& name) {
    const auto& screen = session.Routines().displayMode;
    if (SameName(name, "SavedMode")) return ModeJson(screen.SavedMode());
    if (SameName(name, "LastMode")) return ModeJson(screen.LastMode());
    if (SameName(name, "Printed")) return Json(screen.Printed());
    return std::nullopt;
}

Json Get(Session& session, const Json& command) {
    const auto member = session.OpenWindows().FindMember(TextFrom(command[1], "the name"));
    if (IsOfWindow(member) && SameName(member.name, "Focus")) {
        const forms::Control* focus = member.window.Focus();
        return Value(focus ? NameOf(*focus) : "");
    }
    if (IsOfWindow(member)) {
        if (auto field = GetField(member.window, member.name)) return Value(*field);
        const bool isMain = &member.window == &session.MainWindow();
        if (auto field = isMain ? DisplayField(session, member.name) : std::nullopt)
            return Value(*field);
    }
    return Value(GetProperty(member.owner, member.name));
}

Json Set(Session& session, const Json& command) {
    const auto member = session.OpenWindows().FindMember(TextFrom(command[1], "the name"));
    const Json& value = command[2];
    if (IsOfWindow(member) && SetField(member.window, member.name, value)) return Json::object();
    SetProperty(member.owner, member.name, value);
    return Json::object();
}

// The window's own properties stand first, under the window's name.
Json Dump(Session& session, const Json& command) {
    forms::Form& form = session.OpenWindows().Window(TextFrom(command[1], "the window"));
    Json controls = Json::object();
    controls[form.Name()] = AllProperties(form);
    for (forms::Control* control : form.Controls())
        controls[control->FullName()] = AllProperties(*control);
    return Value(std::move(controls));
}

// Of the picture that the control shows, not of the screen.
Json Pixel(Session& session, const Json& command) {
    const forms::Control& control =
        session.OpenWindows().Control(TextFrom(command[1], "the control"));
    const int x = WholeFrom(command[2], "x"), y = WholeFrom(command[3], "y");
    const auto& bitmap = control.GetPicture().pixels;
    const bool inside = bitmap && x >= 0 && y >= 0 && x < bitmap->width && y < bitmap->height;
    if (!inside) return Value("");
    const std::uint32_t pixel =
        bitmap->pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap->width) +
                          static_cast<std::size_t>(x));
    if (pixel >> 24 == 0) return Value("");
    return Value(ColorText(forms::Rgb(pixel >> 16, pixel >> 8, pixel)));
}

// From the back to the front.
Json OpenWindows(Session& session, const Json&) {
    Json windows = Json::array();
    for (const auto& window : session.Screen().OpenWindows()) {
        Json shown = Json::object();
        shown["name"] = window.form->Name();
        shown["caption"] = window.form->Caption();
        shown["over"] = window.over ? window.over->Name() : "";
        shown["modal"] = window.modal;
        windows.push_back(std::move(shown));
    }
    return Value(std::move(windows));
}

}  // namespace

Json Value(Json value) {
    Json more = Json::object();
    more["value"] = std::move(value);
    return more;
}

const std::vector<Command>& StateCommands() {
    static const std::vector<Command> commands{
        {"get", 1, 1, false, Get},
        {"set", 2, 2, true, Set},
        {"dump", 1, 1, false, Dump},
        {"pixel", 3, 3, false, Pixel},
        {"windows", 0, 0, false, OpenWindows},
    };
    return commands;
}

}  // namespace kivu::driver
