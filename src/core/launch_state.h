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
    // Of the launch that is under way: the game's path, empty where there is none; whether nothing
    // has been started yet, so that the user can still stop it; and that this is wanted.
    std::string StartingGame;
    bool StartCanBeGivenUp = false;
    bool StartGivenUp = false;
    std::array<std::string, 6> DiskSlots;
};

}  // namespace kivu::core
