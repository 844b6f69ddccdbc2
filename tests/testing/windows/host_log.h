#pragma once

#include "hosts/windows/log_windows.h"

namespace kivu::testing {

// The log of the host that the tests run on.
using HostLog = hosts::WindowsLog;
inline constexpr const char* logLineEnd = "\r";  // behind what std::getline gives

}  // namespace kivu::testing
