#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kivu::app {

// The user's arguments as one text, joined by blanks. A relative path of an existing file becomes
// absolute below `directory` (with or without a closing separator), be it one argument or, where a
// shell has split it at its blanks, all of them together.
std::string CommandLineText(std::vector<std::string> arguments, const std::string& directory,
                            const std::function<bool(const std::string&)>& fileExists);

}  // namespace kivu::app
