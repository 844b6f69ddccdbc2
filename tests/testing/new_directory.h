#pragma once

#include <filesystem>
#include <random>
#include <string>

namespace kivu::testing {

// The host's own separator in place of each "/".
inline std::string HostPath(const std::string& path) {
    return std::filesystem::path(path).make_preferred().string();
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
