#pragma once

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>

namespace kivu::testing {

// The host's own separator in place of each "/".
inline std::string HostPath(std::string path) {
    std::replace(path.begin(), path.end(), '/',
                 static_cast<char>(std::filesystem::path::preferred_separator));
    return path;
}

// A path whose bytes are UTF-8. From other text the library makes names in the system's code page.
inline std::filesystem::path PathOf(const std::string& path) {
    return std::filesystem::path(std::u8string(path.begin(), path.end()));
}

// Makes an empty directory with a name of its own in `parent`.
inline std::string NewDirectory(const std::filesystem::path& parent) {
    std::random_device random;
    for (;;) {
        const auto path = parent / ("kivu-test-" + std::to_string(random()));
        if (std::filesystem::create_directory(path)) return HostPath(path.string());
    }
}

}  // namespace kivu::testing
