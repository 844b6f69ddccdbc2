#pragma once

#include <string>

#include "hosts/windows/instance_windows.h"
#include "hosts/windows/win32.h"

namespace kivu::testing {

// The instances of the host that the tests run on; they find one another in one way.
class HostInstances {
 public:
    using Instance = hosts::WindowsInstance;
    static constexpr int ways = 1;
    explicit HostInstances(int) {}

    // Takes what later instances have said: messages that wait for this thread.
    static void Serve(Instance&) {
        MSG message{};
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessageW(&message);
    }
    static std::string ProgramName() {
        return "Kivu-test-" + std::to_string(::GetCurrentProcessId());
    }
};

}  // namespace kivu::testing
