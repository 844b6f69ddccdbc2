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
    // What it writes as errors goes into a file of that name.
    ChildProcess(const std::vector<std::string>& words, const std::vector<std::string>& environment,
                 const std::string& errors = "/dev/null");
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool Runs();
    pid_t Id() const { return id; }

 private:
    pid_t id = 0;
};

}  // namespace kivu::bench
