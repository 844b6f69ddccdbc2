#pragma once

#include <cstdint>

namespace kivu::platform {

// The colours that the user's desktop gives to parts of windows.
class SystemColors {
 public:
    virtual ~SystemColors() = default;
    // Red in the lowest byte. `index` as Windows counts them (0 scroll bar, 5 window, 8 text in
    // windows, 15 face of buttons, ...); black for one that there is not.
    virtual std::uint32_t SystemColor(int index) const = 0;
};

}  // namespace kivu::platform
