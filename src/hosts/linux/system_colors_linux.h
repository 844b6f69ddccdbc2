#pragma once

#include "platform/system_colors.h"

namespace kivu::hosts {

// The classic table of Windows: a desktop of this host has none of its own.
class LinuxSystemColors : public platform::SystemColors {
 public:
    std::uint32_t SystemColor(int index) const override;
};

}  // namespace kivu::hosts
