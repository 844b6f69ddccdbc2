#include "hosts/linux/system_colors_linux.h"

#include "platform/classic_colors.h"

namespace kivu::hosts {

std::uint32_t LinuxSystemColors::SystemColor(int index) const {
    return platform::ClassicColor(index);
}

}  // namespace kivu::hosts
