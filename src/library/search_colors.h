#pragma once

#include "forms/types.h"

namespace kivu::library {

// SearchAllBtn tells by its colour what the box searches: a light green over the list of a search
// through all emulators, white over the current emulator's.
inline constexpr forms::Color allEmulatorsColor = forms::Rgb(192, 255, 192);
inline constexpr forms::Color currentListColor = forms::Rgb(255, 255, 255);

}  // namespace kivu::library
