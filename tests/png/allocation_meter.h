#pragma once

#include <cstddef>

namespace kivu::png::testing {

// Bytes of the heap that the test program holds by new, and the most since the last Restart.
class AllocationMeter {
 public:
    static void Restart();
    // Beyond what was held at the restart.
    static std::size_t Peak();
};

}  // namespace kivu::png::testing
