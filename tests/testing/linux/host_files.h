#pragma once

#include "hosts/linux/file_system_linux.h"

namespace kivu::testing {

// The real files of the host that the tests run on.
using HostFileSystem = hosts::LinuxFileSystem;

// A directory that lies in memory, where there is one.
inline constexpr const char* memoryDirectory = "/dev/shm";

}  // namespace kivu::testing
