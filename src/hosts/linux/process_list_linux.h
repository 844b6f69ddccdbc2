#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "hosts/linux/launch_session.h"
#include "platform/processes.h"

namespace kivu::hosts {

// The processes of the proc file system. Zombies and the kernel's own threads are left out.
class LinuxProcessList : public platform::ProcessList {
 public:
    // `session` is the watched launch's; a look that finds it gone ends it.
    explicit LinuxProcessList(LaunchSession& session, std::string root = "/proc")
        : session(session), root(std::move(root)) {}

    std::optional<std::vector<platform::ProcessEntry>> Snapshot() const override;

    // The launcher itself, init and ids that name no single process are never touched.
    void Kill(std::int32_t id) override;

 private:
    LaunchSession& session;
    std::string root;
};

}  // namespace kivu::hosts
