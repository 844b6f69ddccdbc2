#include "hosts/linux/clock_linux.h"

#include <ctime>
#include <thread>

namespace kivu::hosts {

platform::TimeOfDay LinuxClock::Now() const {
    const std::time_t now = std::time(nullptr);
    struct tm local {};
    if (::localtime_r(&now, &local) == nullptr) return {};
    return {local.tm_hour, local.tm_min, local.tm_sec};
}

std::chrono::milliseconds LinuxClock::Steady() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
}

void LinuxClock::Rest(std::chrono::milliseconds duration) {
    if (duration.count() > 0) std::this_thread::sleep_for(duration);
}

}  // namespace kivu::hosts
