#pragma once

#include <optional>
#include <vector>

#include "platform/display.h"

namespace kivu::testing {

// A screen that follows every change, or refuses it.
class ScriptedDisplay : public platform::Display {
 public:
    std::optional<platform::DisplayMode> Current() override { return current; }
    bool Change(const platform::DisplayMode& mode) override {
        sent.push_back(mode);
        if (accepts && current) {
            Take(current->width, mode.width);
            Take(current->height, mode.height);
            Take(current->bits, mode.bits);
            Take(current->frequency, mode.frequency);
        }
        return accepts;
    }

    std::optional<platform::DisplayMode> current = platform::DisplayMode{1920, 1080, 32, 60};
    std::vector<platform::DisplayMode> sent;
    bool accepts = true;

 private:
    // A 0 keeps what there is.
    static void Take(int& value, int wanted) {
        if (wanted != 0) value = wanted;
    }
};

}  // namespace kivu::testing
