#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace kivu::platform {

// Axes from 0 (left, up) to 65535; 32768 is the centre, and what an axis reads that is not there.
struct ControllerState {
    int x = 32768, y = 32768, z = 32768, rx = 32768, ry = 32768, rz = 32768;
    std::array<bool, 32> buttons{};  // down now, or since the last read
    // Went down since the last read: what is down, and not in here, has been held all the while.
    std::array<bool, 32> pressed{};
    bool operator==(const ControllerState&) const = default;
};

struct Controller {
    std::string name;  // empty: it cannot be opened, and reads as one at rest
    int buttons = 0;
};

// Game controllers. "Mouse" and "Keyboard" stand in the list, too, in front of them.
class Controllers {
 public:
    virtual ~Controllers() = default;
    // All that are attached, opened anew. Empty optional: there is no service for them.
    virtual std::optional<std::vector<Controller>> Open() = 0;
    // By its place in the list. False: it is gone, or there is none; the state is one at rest then.
    virtual bool Read(std::size_t device, ControllerState& state) = 0;
    virtual void Close() = 0;
    // One came or went since this was last asked.
    virtual bool Changed() = 0;
};

}  // namespace kivu::platform
