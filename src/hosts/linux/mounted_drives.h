#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kivu::hosts {

// Where a user begins to look for files: the root, the home directory, and what is mounted below
// /media, /run/media and /mnt, each once and in the order of their paths. The table is
// /proc/self/mounts, as proc(5) tells.
std::vector<std::string> DrivesOf(const std::string& home, std::string_view mountTable);

}  // namespace kivu::hosts
