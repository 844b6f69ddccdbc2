#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

// One line of the kernel's table of processes.
struct ProcessState {
    pid_t id = 0;
    pid_t parent = 0;
    pid_t session = 0;
    std::string shortName;
    bool ended = false;   // a zombie: it only waits for its parent to look
    bool kernel = false;  // a thread of the kernel itself
};

// Reads the line of /proc/ID/stat; the name in it may hold anything, brackets and line ends too.
std::optional<ProcessState> ParseProcessState(std::string_view line);

// A mounted proc file system. A process may vanish between any two calls: then they give nothing.
class ProcessDirectory {
 public:
    explicit ProcessDirectory(const std::string& root);

    // Empty optional: there is no such file system at this place.
    std::optional<std::vector<pid_t>> Ids() const;

    std::optional<ProcessState> StateOf(pid_t id) const;
    std::string ExecutableOf(pid_t id) const;
    // Its own name in front; long command lines are cut.
    std::vector<std::string> ArgumentsOf(pid_t id) const;
    bool BelongsTo(pid_t id, uid_t user) const;

 private:
    // What fits into one buffer of 16 KB.
    std::string_view ReadFile(pid_t id, const char* name) const;

    std::string root;
    FileDescriptor directory;
    mutable std::string buffer;
};

}  // namespace kivu::hosts
