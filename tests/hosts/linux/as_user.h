#pragma once

#include <functional>
#include <sys/wait.h>
#include <unistd.h>

namespace kivu::testing {

// Runs `check` in a child process that has given up root (nobody's id), since root passes every
// permission. True: the check said so. Under another user it runs as that one.
inline bool HoldsForPlainUser(const std::function<bool()>& check) {
    constexpr uid_t nobody = 65534;
    const pid_t child = ::fork();
    if (child == 0) {
        if (::geteuid() == 0 && (::setgid(nobody) != 0 || ::setuid(nobody) != 0)) ::_exit(2);
        ::_exit(check() ? 0 : 1);
    }
    int status = 0;
    return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}

}  // namespace kivu::testing
