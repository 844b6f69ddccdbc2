#pragma once

#include "platform/windows/file_system_windows.h"

namespace kivu::testing {

// The real files of the host that the tests run on.
using HostFileSystem = platform::WindowsFileSystem;

}  // namespace kivu::testing
