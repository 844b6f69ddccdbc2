#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace kivu::bench {

// A program that is killed with the object.
class ChildProcess {
 public:
    // `words` are the program and its arguments; "NAME=VALUE" in `environment` goes in front of the
    // present one. What it writes is thrown away. Throws std::runtime_error if it cannot be
    // started.
    ChildProcess(const std::vector<std::string>& words,
                 const std::vector<std::string>& environment);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool Runs();

 private:
    pid_t id = 0;
};

}  // namespace kivu::bench
