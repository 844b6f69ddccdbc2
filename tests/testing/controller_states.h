#pragma once

#include <cstddef>
#include <initializer_list>

#include "platform/controllers.h"

namespace kivu::testing {

inline platform::ControllerState At(int x, int y, int rz = 32768) {
    platform::ControllerState state;
    state.x = x;
    state.y = y;
    state.rz = rz;
    return state;
}

// Buttons from 0, with all axes in the centre.
inline platform::ControllerState Down(std::initializer_list<std::size_t> buttons) {
    platform::ControllerState state;
    for (const std::size_t button : buttons)
        state.buttons[button] = true;
    return state;
}

}  // namespace kivu::testing
