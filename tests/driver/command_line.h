#pragma once

#include <optional>
#include <string>
#include <vector>

#include "driver/session.h"

namespace kivu::driver {

inline constexpr const char* usage =
    "usage: kivu-drive --program-dir DIR [--program NAME] [--command-line TEXT]\n"
    "                  [--language NAME] [--time HH:MM:SS] [--start-files shell|windows]\n"
    "                  [--runtime-dir DIR] [--temporary-dir DIR]\n"
    "                  [--update-base URL] [--updater-sha256 HASH] [--home-page URL]\n"
    "                  [--donate-url URL]\n";

// Empty: the arguments (without the program's own) make no sense, and `error` says why.
std::optional<Options> ParseCommandLine(const std::vector<std::string>& arguments,
                                        std::string& error);

}  // namespace kivu::driver
