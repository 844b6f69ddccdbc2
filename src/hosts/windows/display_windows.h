#pragma once

#include "platform/display.h"

namespace kivu::hosts {

// The display on which the desktop begins. The system puts its mode back when the program ends.
class WindowsDisplay : public platform::Display {
 public:
    std::optional<platform::DisplayMode> Current() override;
    bool Change(const platform::DisplayMode& mode) override;
};

}  // namespace kivu::hosts
