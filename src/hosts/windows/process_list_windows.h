#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/processes.h"

namespace kivu::hosts {

// The processes of the system's snapshot, each under the name of its executable. No launch is told
// apart here: ofLaunch stays false.
class WindowsProcessList : public platform::ProcessList {
 public:
    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override;

    // Exit code 1. The launcher itself is never touched, and what the system refuses stays.
    void Kill(std::int32_t id) override;
};

// One row of the system's snapshot.
struct SnapshotRow {
    std::uint32_t id = 0;
    std::uint32_t parent = 0;  // an id that may have gone to a later process meanwhile
    std::string name;
};

// What the system tells about a process by its id; empty where it tells nothing.
struct ProcessQuestions {
    std::function<std::optional<std::uint64_t>(std::uint32_t)> startTime;  // only to be compared
    std::function<std::optional<std::uint32_t>(std::uint32_t)> session;    // of one user's desktop
};

// The rows as the launcher sees them. Foreign are the launcher `own`, the processes that it hangs
// from, and those of other sessions. A process that nothing is known about counts as one of the
// user's: an emulator that was started with more rights than the launcher has is one.
std::vector<platform::ProcessEntry> EntriesOf(const std::vector<SnapshotRow>& rows,
                                              std::uint32_t own, const ProcessQuestions& ask);

}  // namespace kivu::hosts
