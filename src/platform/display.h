#pragma once

#include <optional>

namespace kivu::platform {

struct DisplayMode {
    int width = 0, height = 0;  // pixels
    int bits = 0;               // of a pixel
    int frequency = 0;          // hertz
    bool operator==(const DisplayMode&) const = default;
};

// The mode of the user's main screen.
class Display {
 public:
    virtual ~Display() = default;
    // Never with a frequency of 0: a screen that has none, such as a virtual one, tells 60. Empty:
    // there is no screen whose mode could be read and changed.
    virtual std::optional<DisplayMode> Current() = 0;
    // Until the program ends; nothing is stored. A 0 keeps what there is, and four of them change
    // nothing. False: the screen does not offer that.
    virtual bool Change(const DisplayMode& mode) = 0;
};

}  // namespace kivu::platform
