#pragma once

#include <cerrno>
#include <string>
#include <sys/wait.h>

#include "hosts/linux/program_starter_linux.h"
#include "testing/eventually.h"

namespace kivu::testing {

// The starter of the host that the tests run on.
struct HostStarter : hosts::LinuxProgramStarter {
    HostStarter() : LinuxProgramStarter(session) {}
    hosts::LaunchSession session;
};

// A start file that makes the other file and ends, and one that waits for that file first.
inline std::string MakingStartFile(const std::string& made) {
    return ": > '" + made + "'\n";
}
inline std::string WaitingStartFile(const std::string& awaited, const std::string& made) {
    return "while [ ! -e '" + awaited + "' ]; do sleep 0.01; done\n: > '" + made + "'\n";
}

// What was given up has ended, and is nobody's child any more.
inline void AwaitStarted() {
    siginfo_t told{};
    Eventually([&told] {
        return ::waitid(P_ALL, 0, &told, WEXITED | WNOHANG | WNOWAIT) != 0 && errno == ECHILD;
    });
}

// A program that every system has, by its bare name.
inline constexpr const char* everySystemsProgram = "sh";

}  // namespace kivu::testing
