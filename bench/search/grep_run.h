#pragma once

#include <string>
#include <vector>

namespace kivu::bench {

// Runs `grep -i -c -F -- pattern files...`, its output thrown away. Throws std::runtime_error if it
// cannot be run or finds nothing.
void RunGrep(const std::string& pattern, const std::vector<std::string>& files);

}  // namespace kivu::bench
