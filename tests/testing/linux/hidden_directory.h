#pragma once

#include <filesystem>
#include <string>

namespace kivu::testing {

// Hidden by its name.
inline void MakeHiddenDirectory(const std::string& parent) {
    std::filesystem::create_directory(parent + "/.hidden");
}

}  // namespace kivu::testing
