#include "hosts/windows/end_events_windows.h"

#include <utility>

#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

std::function<void()>& Wish() {
    static std::function<void()> wish;
    return wish;
}

BOOL WINAPI Pass(DWORD event) {
    Wish()();
    // The process is ended as soon as this returns.
    const bool lastCall =
        event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT;
    if (lastCall) ::Sleep(INFINITE);
    return TRUE;
}

}  // namespace

void ListenForConsoleEnd(std::function<void()> end) {
    Wish() = std::move(end);
    ::SetConsoleCtrlHandler(Pass, TRUE);
}

}  // namespace kivu::hosts
