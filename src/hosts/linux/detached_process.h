#pragma once

#include <string>
#include <sys/types.h>
#include <system_error>
#include <vector>

namespace kivu::hosts {

// A program to start in a process session of its own: no terminal, /dev/null as its three standard
// streams, no other descriptor, no blocked or ignored signal. It gets the launcher's environment.
struct DetachedProgram {
    std::string program;             // path of the file to run
    std::vector<std::string> words;  // its arguments, its own name in front
    std::string directory;           // empty: the launcher's current one
};

struct Detached {
    std::error_code failure;  // why the program does not run
    pid_t session = 0;        // the session's id, above 0 where there is no failure
};

// Starts it as nobody's child and returns once it runs: it leaves no zombie to the launcher.
Detached StartDetached(const DetachedProgram& program);

// Starts it and returns once it has ended, however it ended.
Detached RunDetached(const DetachedProgram& program);

}  // namespace kivu::hosts
