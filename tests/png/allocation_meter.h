#pragma once

#include <cstddef>

namespace kivu::png::testing {

// Bytes of the heap that the test program holds by new, and the most since the last Restart.
class AllocationMeter {
 public:
    static void Restart();
    // Beyond what was held at the restart.
    static std::size_t Peak();
    // From now on an allocation fails that would take more than that beyond what is held now; 0
    // lifts the limit.
    static void Limit(std::size_t bytes);
};

}  // namespace kivu::png::testing
