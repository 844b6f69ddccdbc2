#pragma once

#include "forms/types.h"

namespace kivu::library {

// SearchAllBtn tells by its colour what the box searches: a light green over the list of a search
// through all emulators, white over the current emulator's.
inline constexpr forms::Color allEmulatorsColor = forms::Rgb(192, 255, 192);
inline constexpr forms::Color currentListColor = forms::Rgb(255, 255, 255);

// The list of the hits has a button's face: a little lighter than the window.
inline forms::Color HitListColor(forms::Color window) {
    const auto lighter = [&](unsigned shift) {
        const unsigned channel = window >> shift & 0xff;
        return channel + (255 - channel) * 16 / 100;
    };
    return forms::Rgb(lighter(0), lighter(8), lighter(16));
}

}  // namespace kivu::library
