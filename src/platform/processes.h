#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kivu::platform {

// One process of the list. It answers to every one of its names: that of its executable and, where
// wrappers and interpreters hide it, those of its first argument and its script.
struct ProcessEntry {
    std::int32_t id = 0;
    std::vector<std::string> names;
    bool ofLaunch = false;  // belongs to the launch that was started as watched
    bool foreign = false;   // the launcher itself, its ancestors, other users' processes
};

class ProcessList {
 public:
    virtual ~ProcessList() = default;

    // Empty optional: the system's list could not be read.
    virtual std::optional<std::vector<ProcessEntry>> Snapshot() const = 0;

    // Ends the process at once. A process of the watched launch takes the whole launch with it.
    virtual void Kill(std::int32_t id) = 0;
};

}  // namespace kivu::platform
