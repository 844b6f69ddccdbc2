#include "hosts/linux/system_colors_linux.h"

#include <array>
#include <cstddef>

namespace kivu::hosts {

namespace {

// Red in the lowest byte, by Windows' indices from 0 on.
constexpr std::array<std::uint32_t, 25> classic{
    0xc0c0c0, 0x808000, 0x800000, 0x808080, 0xc0c0c0, 0xffffff, 0x000000, 0x000000, 0x000000,
    0xffffff, 0xc0c0c0, 0xc0c0c0, 0x808080, 0x800000, 0xffffff, 0xc0c0c0, 0x808080, 0x808080,
    0x000000, 0xc0c0c0, 0xffffff, 0x000000, 0xc0c0c0, 0x000000, 0xe1ffff};

}  // namespace

std::uint32_t LinuxSystemColors::SystemColor(int index) const {
    const auto place = static_cast<std::size_t>(index);
    return place < classic.size() ? classic[place] : 0;
}

}  // namespace kivu::hosts
