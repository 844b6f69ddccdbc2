#include "hosts/windows/clock_windows.h"

#include <thread>

#include "hosts/windows/win32.h"

namespace kivu::hosts {

platform::TimeOfDay WindowsClock::Now() const {
    SYSTEMTIME local{};
    ::GetLocalTime(&local);
    return {local.wHour, local.wMinute, local.wSecond};
}

std::chrono::milliseconds WindowsClock::Steady() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void WindowsClock::Rest(std::chrono::milliseconds duration) {
    if (duration.count() > 0) std::this_thread::sleep_for(duration);
}

}  // namespace kivu::hosts
