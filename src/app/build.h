#pragma once

#include "platform/build.h"

namespace kivu::app {

// The addresses that this program has been built with.
platform::Build ThisBuild();

}  // namespace kivu::app
