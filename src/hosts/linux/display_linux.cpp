#include "hosts/linux/display_linux.h"

#include "hosts/linux/x11_screen.h"

namespace kivu::hosts {

std::optional<platform::DisplayMode> LinuxDisplay::Current() {
    const auto screen = X11Screen::Open();
    const auto modes = screen ? screen->Modes() : std::nullopt;
    return modes ? CurrentMode(*modes) : std::nullopt;
}

bool LinuxDisplay::Change(const platform::DisplayMode& mode) {
    if (mode == platform::DisplayMode{}) return true;
    const auto screen = X11Screen::Open();
    const auto modes = screen ? screen->Modes() : std::nullopt;
    const auto chosen = modes ? ChooseMode(*modes, mode) : std::nullopt;
    if (!chosen) return false;
    if (!atStart) atStart = modes->current;
    // Before the change, so that no crash comes in between. Without a guard the user would be left
    // in that mode.
    if (*chosen != *atStart && !guard.Keep(*atStart)) return false;
    const bool done = *chosen == modes->current || screen->Set(*chosen);
    if ((done ? *chosen : modes->current) == *atStart) guard.Rest();
    return done;
}

}  // namespace kivu::hosts
