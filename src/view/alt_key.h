#pragma once

#include <QEvent>
#include <chrono>
#include <functional>
#include <optional>

namespace kivu::view {

// Tells a close request that a window manager makes of Alt+F4 from that of a panel. The manager
// takes the F4 for itself, and its request may come after Alt has been let go, but the keys before
// and after it are the window's.
class AltKey {
 public:
    using Clock = std::function<std::chrono::milliseconds()>;

    // Without a clock only what is held now counts.
    void SetClock(Clock newClock) { clock = std::move(newClock); }
    // Each event of the window.
    void See(const QEvent& event);
    // Now, or so lately that a close request can still be on its way.
    bool IsHeld() const;
    // A close request has been taken for Alt+F4.
    void Use();

 private:
    Clock clock;
    std::optional<std::chrono::milliseconds> moved;  // when it last went down or up
    bool used = false;  // with another key of the window's since it went down
};

}  // namespace kivu::view
