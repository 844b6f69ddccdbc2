#include "joystick/pad_state.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace kivu::joystick {

namespace {

constexpr int centre = 32768;
constexpr int centreOfZ = 65536;

void Rest(std::int16_t& rest, int value, int middle) {
    using Limits = std::numeric_limits<std::int16_t>;
    const std::int64_t distance = std::int64_t{value} - middle;
    if (distance == 0 || distance < Limits::min() || distance > Limits::max()) return;
    rest = static_cast<std::int16_t>(distance);
}

}  // namespace

RestPosition RestOf(const platform::ControllerState& state, RestPosition rest) {
    Rest(rest.x, state.x, centre);
    Rest(rest.y, state.y, centre);
    Rest(rest.rz, state.rz, centre);
    Rest(rest.z, state.z, centreOfZ);
    return rest;
}

std::vector<StickEvent> StickEvents(const platform::ControllerState& state,
                                    const RestPosition& rest, int deadZone) {
    const int x = state.x - centre - rest.x;
    const int y = state.y - centre - rest.rz;
    const int r = state.rz - centre - rest.rz;
    const int dead = std::abs(deadZone);
    std::vector<StickEvent> events;
    const auto add = [&](Move move, int value, int panel) {
        events.push_back({move, value, panel});
    };
    if (std::abs(x) >= std::abs(y)) {
        if (std::abs(x) > dead) add(x > deadZone ? Move::right : Move::left, x, 1);
    } else if (std::abs(y) > dead) {
        add(y > deadZone ? Move::down : Move::up, x, 1);
    }
    if (std::abs(r) > dead) add(r > 0 ? Move::right : Move::left, r, 2);
    return events;
}

std::vector<int> PressedButtons(const platform::ControllerState& state, int buttonCount) {
    const int last = std::min(buttonCount, lastButton - 1) + 1;
    std::vector<int> pressed;
    for (int button = 1; button <= last; ++button) {
        if (state.buttons[static_cast<std::size_t>(button - 1)]) pressed.push_back(button);
    }
    return pressed;
}

}  // namespace kivu::joystick
