#pragma once

#include <filesystem>
#include <string>

#include "hosts/windows/win32.h"

namespace kivu::testing {

// Hidden by its attribute.
inline void MakeHiddenDirectory(const std::string& parent) {
    const std::filesystem::path path = std::filesystem::path(parent) / "hidden";
    std::filesystem::create_directory(path);
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
}

}  // namespace kivu::testing
