#pragma once

namespace kivu::wiring {

struct WaitingWish {
    const char* name;
    const char* waitsFor;
};

// Wishes that nobody serves yet: they do nothing until then. Whoever builds what one waits for
// joins it and takes it off here.
inline constexpr WaitingWish waitingWishes[] = {
    {"GameLaunch.ShowLoadingInfo", "the loading screen"},
    {"StartHelpers.GivenUp", "the loading screen"},
    {"StartHelpers.UnloadLoadingInfo", "the loading screen"},
};

}  // namespace kivu::wiring
