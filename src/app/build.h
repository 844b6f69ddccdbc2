#pragma once

#include <string>

#include "platform/build.h"

namespace kivu::app {

// The name by which desktops know the program: that of its desktop file, which gives its windows
// their icon and their group.
const char* ApplicationId();

// The addresses that this program has been built with.
platform::Build ThisBuild();

// "1.4.0"
std::string Version();

}  // namespace kivu::app
