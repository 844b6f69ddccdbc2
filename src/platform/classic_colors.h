#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kivu::platform {

// The colours of Windows' classic look by their indices from 0 on, red in the lowest byte: for a
// host whose desktop has none by these indices. Black for an index that there is not.
constexpr std::uint32_t ClassicColor(int index) {
    constexpr std::array<std::uint32_t, 25> colors{
        0xc0c0c0, 0x808000, 0x800000, 0x808080, 0xc0c0c0, 0xffffff, 0x000000, 0x000000, 0x000000,
        0xffffff, 0xc0c0c0, 0xc0c0c0, 0x808080, 0x800000, 0xffffff, 0xc0c0c0, 0x808080, 0x808080,
        0x000000, 0xc0c0c0, 0xffffff, 0x000000, 0xc0c0c0, 0x000000, 0xe1ffff};
    const bool known = index >= 0 && static_cast<std::size_t>(index) < colors.size();
    return known ? colors[static_cast<std::size_t>(index)] : 0;
}

}  // namespace kivu::platform
