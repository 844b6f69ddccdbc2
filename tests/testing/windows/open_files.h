#pragma once

#include <filesystem>

#include "hosts/windows/win32.h"

namespace kivu::testing {

// Whether somebody holds the file open: then nobody else gets it for himself alone.
inline bool IsOpen(const std::filesystem::path& path) {
    const HANDLE file = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return ::GetLastError() == ERROR_SHARING_VIOLATION;
    ::CloseHandle(file);
    return false;
}

}  // namespace kivu::testing
