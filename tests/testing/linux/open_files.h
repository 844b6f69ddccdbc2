#pragma once

#include <filesystem>
#include <system_error>

namespace kivu::testing {

// Whether this process holds the file open.
inline bool IsOpen(const std::filesystem::path& path) {
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code ignored;
        if (std::filesystem::read_symlink(entry.path(), ignored) == path) return true;
    }
    return false;
}

}  // namespace kivu::testing
