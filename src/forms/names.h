#pragma once

#include <algorithm>
#include <string_view>

namespace kivu::forms {

// Names of windows and controls are ASCII and count without regard to case.
inline bool SameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

}  // namespace kivu::forms
