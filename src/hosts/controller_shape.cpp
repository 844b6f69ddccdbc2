#include "hosts/controller_shape.h"

#include <cstdlib>

namespace kivu::hosts {

namespace {

constexpr int centre = 32768;
constexpr int greatest = 65535;
// Half of the way to either end: no worn stick rests further out.
constexpr int reach = 16384;
// The outer eighth at either end.
constexpr int low = 8192, high = greatest - 8191;

bool IsNearCentre(int value) {
    return std::abs(value - centre) <= reach;
}

int ShapeStick(int value, bool& centred) {
    centred = centred || IsNearCentre(value);
    return centred && !IsNearCentre(value) ? value : centre;
}

}  // namespace

platform::ControllerState Shape(const platform::ControllerState& raw, ShapeMemory& memory) {
    using Rz = ShapeMemory::Rz;
    platform::ControllerState state = raw;
    state.x = ShapeStick(raw.x, memory.xCentred);
    state.y = ShapeStick(raw.y, memory.yCentred);
    if (memory.rz == Rz::unread) memory.rz = raw.rz < low || raw.rz >= high ? Rz::pedal : Rz::stick;
    if (memory.rz == Rz::pedal || IsNearCentre(raw.rz)) state.rz = centre;
    return state;
}

void Arrows::Add(const Arrows& others) {
    for (std::size_t i = 0; i < down.size(); ++i)
        down[i] = down[i] || others.down[i];
}

void Steer(platform::ControllerState& state, const Arrows& arrows) {
    const auto end = [&](int& axis, Arrow lower, Arrow upper) {
        if (arrows.Has(lower) != arrows.Has(upper)) axis = arrows.Has(lower) ? 0 : greatest;
    };
    end(state.x, Arrow::left, Arrow::right);
    end(state.y, Arrow::up, Arrow::down);
}

void Taps::Press(std::size_t button) {
    if (button < buttons.size()) buttons[button] = true;
}

void Taps::Take(std::chrono::milliseconds now, platform::ControllerState& state, Arrows& held) {
    if (now - lastRead <= longestPause) {
        for (std::size_t i = 0; i < buttons.size(); ++i)
            state.buttons[i] = state.buttons[i] || buttons[i];
        state.pressed = buttons;
        held.Add(arrows);
    }
    *this = Taps(now);
}

}  // namespace kivu::hosts
