#pragma once

#include <array>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kivu::driver {

// A game controller by script.
struct ScriptedDevice {
    static constexpr int centre = 32768;
    static constexpr int mostButtons = 32;  // as many as a device's state record has room for
    static constexpr std::array<const char*, 6> axisNames{"x", "y", "z", "rx", "ry", "rz"};

    std::string name;
    int buttonCount = 0;
    std::array<int, axisNames.size()> axes{centre, centre, centre, centre, centre, centre};
    std::set<int> pressed;  // buttons held down, from 0
};

// The screen's mode by script, and the changes that have been asked for.
struct ScriptedDisplay {
    struct Mode {
        int width = 1920;
        int height = 1080;
        int bits = 32;
        int frequency = 60;  // hertz
    };
    Mode mode;
    std::vector<Mode> changes;
};

}  // namespace kivu::driver
