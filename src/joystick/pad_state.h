#pragma once

#include <cstdint>
#include <vector>

#include "platform/controllers.h"

namespace kivu::joystick {

// How far from its centre each axis of a device rests. The distance of z is that from 65536.
struct RestPosition {
    std::int16_t x = 0, y = 0, rz = 0, z = 0;
    bool operator==(const RestPosition&) const = default;
};

// The state is taken for the one at rest. An axis at its centre, or out of 16 bits, keeps what it
// had.
RestPosition RestOf(const platform::ControllerState& state, RestPosition before);

enum class Move { right, left, up, down };

struct StickEvent {
    Move move;
    int value;  // of the axis; for up and down that of the horizontal one
    int panel;  // 1 the first stick, 2 the second
    bool operator==(const StickEvent&) const = default;
};

// What the sticks ask for: one event of the first stick at most, and left or right of the second.
// The vertical axis is taken against the rest of rz.
std::vector<StickEvent> StickEvents(const platform::ControllerState& state,
                                    const RestPosition& rest, int deadZone);

// Buttons are numbered from 1; one more is looked at than the device counts, and none behind this.
inline constexpr int lastButton = 18;
std::vector<int> PressedButtons(const platform::ControllerState& state, int buttonCount);

}  // namespace kivu::joystick
