#include "hosts/linux/display_linux.h"

namespace kivu::hosts {

// The first look is the launcher's at its start: what is there is what ends up there again.
std::optional<ScreenModes> LinuxDisplay::Look(X11Screen* screen) {
    auto modes = screen != nullptr ? screen->Modes() : std::nullopt;
    if (modes && !atStart) atStart = modes->current;
    return modes;
}

std::optional<platform::DisplayMode> LinuxDisplay::Current() {
    const auto screen = X11Screen::Open();
    const auto modes = Look(screen.get());
    return modes ? CurrentMode(*modes) : std::nullopt;
}

bool LinuxDisplay::Change(const platform::DisplayMode& mode) {
    if (mode == platform::DisplayMode{}) return true;
    const auto screen = X11Screen::Open();
    const auto modes = Look(screen.get());
    const auto chosen = modes ? ChooseMode(*modes, mode) : std::nullopt;
    if (!chosen) return false;
    // Before the change, so that no crash comes in between. Without a guard the user would be left
    // in that mode.
    if (*chosen != *atStart && !guard.Keep(*atStart)) return false;
    const bool done = *chosen == modes->current || screen->Set(*chosen);
    if ((done ? *chosen : modes->current) == *atStart) guard.Rest();
    return done;
}

}  // namespace kivu::hosts
