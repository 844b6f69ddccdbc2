#pragma once

#include <array>
#include <string>

namespace kivu::core {

// The running launch.
struct LaunchState {
    std::string CurrentRunninApplication;
    std::string CURRENT_PROGRAM_STARTED;  // lines split by CR
    int StartGraceTicks = 0;
    int SplashSeconds = 0;
    bool GameIsRunning = false;
    std::array<std::string, 6> DiskSlots;
};

}  // namespace kivu::core
