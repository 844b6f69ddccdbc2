#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace kivu::hosts {

// What a program writes to its standard output until it ends. `words`: the absolute path of its
// file, and its arguments. Empty: it cannot be started, it fails, it writes more than 64 KiB, or it
// takes longer than `limit`; then it is ended, with all that it has started.
std::optional<std::string> OutputOf(const std::vector<std::string>& words,
                                    std::chrono::milliseconds limit);

}  // namespace kivu::hosts
