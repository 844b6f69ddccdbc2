#pragma once

#include <algorithm>
#include <string>

#include "hosts/windows/win32.h"

namespace kivu::hosts {

// What a call gives that fills a buffer of a size in characters and gives the length of its text,
// or the size that it wants. `call` takes both and is called until its text fits. Empty: it failed.
template <typename Call>
std::wstring SystemText(Call call) {
    constexpr std::size_t maxSize = std::size_t{1} << 17;  // no path has more than 32767 characters
    std::wstring text(MAX_PATH, L'\0');
    while (text.size() <= maxSize) {
        const std::size_t length = call(text.data(), static_cast<DWORD>(text.size()));
        if (length < text.size()) {
            text.resize(length);
            return text;
        }
        text.resize(std::max(length + 1, text.size() * 2));
    }
    return {};
}

}  // namespace kivu::hosts
