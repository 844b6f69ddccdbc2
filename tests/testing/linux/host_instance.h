#pragma once

#include <optional>
#include <string>
#include <unistd.h>

#include "hosts/linux/instance_linux.h"
#include "testing/environment_variable.h"
#include "testing/temporary_directory.h"

namespace kivu::testing {

// The instances of the host that the tests run on, in each of its ways to find one another: by a
// socket in a runtime directory of the test's own (0), or by an abstract one (1).
class HostInstances {
 public:
    using Instance = hosts::LinuxInstance;
    static constexpr int ways = 2;
    explicit HostInstances(int way)
        : runtime("XDG_RUNTIME_DIR", way == 0 ? std::optional(directory.Root()) : std::nullopt) {}

    // Takes what later instances have said.
    static void Serve(Instance& instance) { instance.Serve(); }
    static std::string ProgramName() { return "Kivu-test-" + std::to_string(::getpid()); }

 private:
    TemporaryDirectory directory;
    EnvironmentVariable runtime;
};

}  // namespace kivu::testing
