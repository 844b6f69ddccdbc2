#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "hosts/linux/display_guard.h"
#include "hosts/linux/x11_screen.h"
#include "platform/display.h"

namespace kivu::hosts {

// By RandR, where the session has it: not under Wayland, and not without a screen. A mode that the
// launcher has set ends with it, by a guard, as the system itself does it on the other host.
class LinuxDisplay : public platform::Display {
 public:
    // What to run as the guard: the launcher itself, unless a test says otherwise.
    explicit LinuxDisplay(std::vector<std::string> guard = {"/proc/self/exe", "--keep-display"})
        : guard(std::move(guard)) {}

    std::optional<platform::DisplayMode> Current() override;
    bool Change(const platform::DisplayMode& mode) override;

 private:
    std::optional<ScreenModes> Look(X11Screen* screen);

    DisplayGuard guard;
    std::optional<std::uint32_t> atStart;  // the mode at the first look
};

}  // namespace kivu::hosts
