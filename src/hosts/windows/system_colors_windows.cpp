#include "hosts/windows/system_colors_windows.h"

#include "hosts/windows/win32.h"

namespace kivu::hosts {

std::uint32_t WindowsSystemColors::SystemColor(int index) const {
    return index < 0 ? 0 : GetSysColor(index) & 0xffffff;
}

}  // namespace kivu::hosts
