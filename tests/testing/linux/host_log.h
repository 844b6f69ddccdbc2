#pragma once

#include "hosts/linux/log_linux.h"

namespace kivu::testing {

// The log of the host that the tests run on.
using HostLog = hosts::LinuxLog;
inline constexpr const char* logLineEnd = "";  // behind what std::getline gives

}  // namespace kivu::testing
