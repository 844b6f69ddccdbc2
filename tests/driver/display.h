#pragma once

#include <vector>

namespace kivu::driver {

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
