#pragma once

#include <cstdint>
#include <string>
#include <sys/types.h>
#include <vector>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

// A process that puts the display mode back when the launcher has gone, however it went: X keeps a
// mode that a program has set, also when that program crashes or is killed. It is started with the
// first mode that is to be put back, and knows of the launcher's end by the socket between them.
class DisplayGuard {
 public:
    // What to run for it: a program that calls KeepDisplay().
    explicit DisplayGuard(std::vector<std::string> program) : program(std::move(program)) {}
    ~DisplayGuard();
    DisplayGuard(const DisplayGuard&) = delete;
    DisplayGuard& operator=(const DisplayGuard&) = delete;

    // From now on this mode is to be put back. False: no guard can be started.
    bool Keep(std::uint32_t mode);
    // Nothing is.
    void Rest();

 private:
    bool Start();
    bool Tell(std::uint32_t mode);
    void Forget();

    std::vector<std::string> program;
    FileDescriptor socket;
    pid_t process = 0;
};

// The guard itself: listens at its standard input to the end, puts back what it was last told, and
// gives the exit code of its program. No signal but SIGKILL ends it earlier.
int KeepDisplay();

}  // namespace kivu::hosts
