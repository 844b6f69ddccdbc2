#pragma once

#include <functional>

namespace kivu::platform {

// Work beside the window's thread.
class Background {
 public:
    virtual ~Background() = default;
    // Runs `work` on one other thread, one after the other in their order, and then `done` on the
    // window's thread, from its event loop. Neither runs any more once this is destroyed. A host of
    // tests may run both before this returns.
    virtual void Run(std::function<void()> work, std::function<void()> done) = 0;
};

}  // namespace kivu::platform
