#pragma once

#include <csignal>
#include <functional>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kivu::testing {

enum class Outcome { done, killed, untraceable };

// Runs the action in a process of its own that is killed at its system call number `call`, counted
// from 1, before that call takes effect. Done: the action had fewer calls.
inline Outcome RunAndKillAt(int call, const std::function<void()>& action) {
    const pid_t child = ::fork();
    if (child < 0) return Outcome::untraceable;
    if (child == 0) {
        if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(2);
        ::raise(SIGSTOP);
        action();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    if (!WIFSTOPPED(status)) return Outcome::untraceable;
    // Stops come in pairs: on the way into a call and on the way out.
    for (int stop = 1;; ++stop) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
        if (WIFEXITED(status))
            return WEXITSTATUS(status) == 2 ? Outcome::untraceable : Outcome::done;
        if (!WIFSTOPPED(status)) return Outcome::killed;
        if (stop < 2 * call - 1) continue;
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
        return Outcome::killed;
    }
}

}  // namespace kivu::testing
