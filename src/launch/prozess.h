#pragma once

#include <cstdint>
#include <string>

#include "platform/processes.h"

namespace kivu::launch {

// Which processes a name stands for.
enum class Reach {
    nameOnly,   // those that carry the name
    andLaunch,  // and every process of the last launch, since wrappers change names
};

// The launcher's look at the process list. The launcher itself, the programs that started it and
// other users' processes are never seen. An empty name finds nothing.
class Prozess {
 public:
    explicit Prozess(platform::ProcessList& list) : list(list) {}

    // Id of the process of exactly this name, without regard to case; failing that, of the last one
    // whose name contains it. 0 for none. With the launch in reach its processes come first.
    std::int32_t FindProcessId(const std::string& name, Reach reach) const;
    // A process of exactly this name, without regard to case.
    bool IsProcessRunning(const std::string& name, Reach reach) const;
    void KillProcess(std::int32_t id) { list.Kill(id); }

 private:
    platform::ProcessList& list;
};

}  // namespace kivu::launch
