#pragma once

#include <string>
#include <vector>

#include "platform/program_starter.h"

namespace kivu::hosts {

// Ways to open a file in an editor for plain text, the user's own first: the desktop's program for
// text/plain, $VISUAL and $EDITOR in a terminal, and what else is installed. Whatever goes by the
// file's own kind is passed over, since it would run a script instead of showing it. `path` is
// absolute. Programs are found by then, and yet one may fail to start: then the next.
std::vector<platform::StartRequest> EditorsFor(const std::string& path);

}  // namespace kivu::hosts
