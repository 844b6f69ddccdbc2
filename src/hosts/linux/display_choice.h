#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/display.h"

namespace kivu::hosts {

// A mode that a screen offers, as the user sees it (turned where the screen is).
struct OfferedMode {
    std::uint32_t id = 0;
    int width = 0, height = 0;
    double rate = 0;  // hertz; 0: the mode has no timing, as on a virtual screen
};

struct ScreenModes {
    std::vector<OfferedMode> offered;
    std::uint32_t current = 0;  // the id of one of them
    int depth = 24;             // of the screen; no mode changes it
};

// The bits that a pixel takes in memory, which is what programs of either host call the depth: 24
// and 30 bits lie in 32.
int BitsOfDepth(int depth);

// Empty: the current mode is none of those offered.
std::optional<platform::DisplayMode> CurrentMode(const ScreenModes& screen);

// The id of the offered mode that is meant: of that size, at that frequency give or take 1 hertz,
// the nearest first, with the screen's own bits. A 0 means the present value; where the size
// changes, the nearest frequency that there is. Empty: the screen offers none.
std::optional<std::uint32_t> ChooseMode(const ScreenModes& screen,
                                        const platform::DisplayMode& wanted);

}  // namespace kivu::hosts
