#pragma once

#include <optional>
#include <string_view>

#include "platform/clock.h"

namespace kivu::driver {

// "14:05:09". Empty: not a time of day.
inline std::optional<platform::TimeOfDay> TimeFromText(std::string_view text) {
    if (text.size() != 8 || text[2] != ':' || text[5] != ':') return {};
    int parts[3] = {};
    for (std::size_t i = 0; i < 3; ++i) {
        for (const char digit : text.substr(i * 3, 2)) {
            if (digit < '0' || digit > '9') return {};
            parts[i] = parts[i] * 10 + (digit - '0');
        }
    }
    if (parts[0] > 23 || parts[1] > 59 || parts[2] > 59) return {};
    return platform::TimeOfDay{parts[0], parts[1], parts[2]};
}

}  // namespace kivu::driver
