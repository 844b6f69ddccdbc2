#pragma once

#include <array>

namespace kivu::wiring {

struct WaitingWish {
    const char* name;
    const char* waitsFor;
};

// Wishes that nobody serves yet: they do nothing until then. Whoever builds what one waits for
// joins it and takes it off here.
inline constexpr std::array<WaitingWish, 0> waitingWishes{};

}  // namespace kivu::wiring
