#pragma once

namespace kivu::wiring {

struct WaitingWish {
    const char* name;
    const char* waitsFor;
};

// Wishes that nobody serves yet: they do nothing until then. Whoever builds what one waits for
// joins it and takes it off here.
inline constexpr WaitingWish waitingWishes[] = {
    {"EmulatorSwitch.SaveAndSetDisplayMode", "the change of the display mode"},
    {"RunningWatch.RestoreDisplayMode", "the change of the display mode"},
    {"GameLaunch.MountGameImage", "the mounting of disc images"},
    {"GameLaunch.RunStartScript", "the start script"},
};

}  // namespace kivu::wiring
