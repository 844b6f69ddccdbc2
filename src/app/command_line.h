#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kivu::app {

// Takes "--log" away from in front of the other arguments and from behind them: whether it was
// there. Between others it is a part of a file's name that a shell has split at its blanks.
bool TakeLogOption(std::vector<std::string>& arguments);

// The user's arguments as one text, joined by blanks. A relative path of an existing file becomes
// absolute below `directory` (with or without a closing separator), be it one argument or, where a
// shell has split it at its blanks, all of them together.
std::string CommandLineText(std::vector<std::string> arguments, const std::string& directory,
                            const std::function<bool(const std::string&)>& fileExists);

}  // namespace kivu::app
