#pragma once

#include <array>
#include <chrono>
#include <cstddef>

#include "platform/controllers.h"

namespace kivu::hosts {

// What a device has shown since it was opened.
struct ShapeMemory {
    bool xCentred = false, yCentred = false;
    enum class Rz { unread, stick, pedal };
    Rz rz = Rz::unread;
};

// The state as the launcher takes it, which knows no dead zone to speak of and takes the place of a
// stick when it is opened for its rest:
// - an axis within half of its way is in the centre;
// - x and y are there until they have been, so that a stick that is held over while its device is
//   opened does not move off centre;
// - an rz that begins near an end is a pedal or a trigger, and stays in the centre.
platform::ControllerState Shape(const platform::ControllerState& raw, ShapeMemory& memory);

enum class Arrow { none, left, right, up, down };

// A hat or the arrow buttons of a pad, as far as they are down.
class Arrows {
 public:
    void Set(Arrow arrow) { down[static_cast<std::size_t>(arrow)] = true; }
    bool Has(Arrow arrow) const { return down[static_cast<std::size_t>(arrow)]; }
    void Add(const Arrows& others);

 private:
    std::array<bool, 5> down{};
};

// A direction of theirs is a stick at its end. Both ends at once are none.
void Steer(platform::ControllerState& state, const Arrows& arrows);

// What went down between two reads, and may be up again by the second. A device whose reads have
// rested starts without: what its user has pressed meanwhile was meant for others.
class Taps {
 public:
    static constexpr std::chrono::milliseconds longestPause{500};

    Taps() = default;
    explicit Taps(std::chrono::milliseconds now) : lastRead(now) {}

    void Press(std::size_t button);
    void Press(Arrow arrow) { arrows.Set(arrow); }
    // Adds them to what is down now; they are forgotten.
    void Take(std::chrono::milliseconds now, platform::ControllerState& state, Arrows& held);

 private:
    std::chrono::milliseconds lastRead{0};
    std::array<bool, 32> buttons{};
    Arrows arrows;
};

}  // namespace kivu::hosts
