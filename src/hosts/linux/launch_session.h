#pragma once

#include <sys/types.h>

namespace kivu::hosts {

// The process session of the launch that is being watched. The starter sets it, the process list
// reads it; both work for one launcher, on one thread.
class LaunchSession {
 public:
    void Begin(pid_t session) {
        id = session;
        emptyLooks = 0;
    }
    void End() { Begin(0); }

    // 0: no launch is watched.
    pid_t Id() const { return id; }

    // After each look at the processes: whether the session still has any. An id without processes
    // may be given to others, so it is dropped; not at the first empty look, because one that runs
    // while a wrapper hands over to its program can miss both.
    void Looked(bool hasMembers) {
        emptyLooks = hasMembers ? 0 : emptyLooks + 1;
        if (emptyLooks >= maxEmptyLooks) End();
    }

 private:
    static constexpr int maxEmptyLooks = 3;

    pid_t id = 0;
    int emptyLooks = 0;
};

}  // namespace kivu::hosts
