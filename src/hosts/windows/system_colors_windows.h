#pragma once

#include "platform/system_colors.h"

namespace kivu::hosts {

// Those of the user's desktop.
class WindowsSystemColors : public platform::SystemColors {
 public:
    std::uint32_t SystemColor(int index) const override;
};

}  // namespace kivu::hosts
