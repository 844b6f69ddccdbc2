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
        if (accepts) current = mode;
        return accepts;
    }

    std::optional<platform::DisplayMode> current = platform::DisplayMode{1920, 1080, 32, 60};
    std::vector<platform::DisplayMode> sent;
    bool accepts = true;
};

}  // namespace kivu::testing
