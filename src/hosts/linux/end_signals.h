#pragma once

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

// The signals that ask a program to end (SIGTERM, SIGINT, SIGHUP) as something to read, so that it
// ends between two events and not inside a write. One that the parent has told to be ignored, as
// nohup and a shell's background jobs are, stays ignored. One at a time in a process.
class EndSignals {
 public:
    EndSignals();
    // The signals do again what they did before.
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    // Readable once one has come; below 0 where there is nothing to wait for.
    int WaitFd() const { return readEnd.Get(); }
    // Whether one has come since the last call.
    bool Take();

 private:
    FileDescriptor readEnd;
    FileDescriptor writeEnd;
};

}  // namespace kivu::hosts
