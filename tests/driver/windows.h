#pragma once

#include <string>
#include <string_view>

#include "forms/window_host.h"

namespace kivu::driver {

// The launcher's windows that are loaded, and their controls by name. Names count without regard to
// case.
class Windows {
 public:
    explicit Windows(const forms::WindowHost& host) : host(host) {}

    // These throw CommandError when there is nothing of the name.
    forms::Form& Window(std::string_view name) const;
    // "Form1.UAE_Short", "Form1.Check_Dfx(0)"; a window's own name is the window.
    forms::Control& Control(std::string_view name) const;

    // What "Form1.UAE_Short.List" and "Form1.ListMode" name: a member of a control, or of the
    // window itself.
    struct Member {
        forms::Form& window;
        forms::Control& owner;  // the window itself for a member of it
        std::string name;
    };
    Member FindMember(std::string_view name) const;

 private:
    const forms::WindowHost& host;
};

// "Form1.Check_Dfx(0)"; the window's own name for a window.
std::string NameOf(const forms::Control& control);

bool SameName(std::string_view a, std::string_view b);

}  // namespace kivu::driver
