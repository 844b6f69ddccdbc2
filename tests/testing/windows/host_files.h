#pragma once

#include "hosts/windows/file_system_windows.h"

namespace kivu::testing {

// The real files of the host that the tests run on.
using HostFileSystem = hosts::WindowsFileSystem;

// A directory that lies in memory, where there is one: Wine shows that of its host.
inline constexpr const char* memoryDirectory = "Z:\\dev\\shm";

}  // namespace kivu::testing
