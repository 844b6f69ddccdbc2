#pragma once

#include <string>

#include "platform/build.h"

namespace kivu::app {

// The addresses that this program has been built with.
platform::Build ThisBuild();

// "1.4.0"
std::string Version();

}  // namespace kivu::app
