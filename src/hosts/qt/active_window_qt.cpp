#include "hosts/qt/active_window_qt.h"

#include <QGuiApplication>
#include <QWindow>

#include "hosts/qt/x11_requests.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace kivu::hosts {

namespace {

#ifdef Q_OS_WIN

bool IsActiveElsewhere() {
    if (QGuiApplication::platformName() != QLatin1String("windows")) return false;
    const HWND active = ::GetForegroundWindow();
    DWORD process = 0;
    if (active != nullptr) ::GetWindowThreadProcessId(active, &process);
    return process != 0 && process != ::GetCurrentProcessId();
}

#elif QT_CONFIG(xcb)

bool IsActiveElsewhere() {
    X11Requests* x11 = X11Requests::Instance();
    if (!x11) return false;
    // EWMH: the window manager names the active window here.
    static const std::uint32_t property = x11->Atom("_NET_ACTIVE_WINDOW");
    const std::uint32_t active = x11->RootWindowProperty(property);
    if (active == 0) return false;
    // The toolkit may not have heard of it yet.
    for (QWindow* window : QGuiApplication::allWindows()) {
        if (window->handle() && window->winId() == active) return false;
    }
    return true;
}

#else

bool IsActiveElsewhere() {
    return false;
}

#endif

}  // namespace

bool IsAnotherProgramActive() {
    return !QGuiApplication::focusWindow() && IsActiveElsewhere();
}

}  // namespace kivu::hosts
