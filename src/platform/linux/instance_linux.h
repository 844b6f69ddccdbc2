#pragma once

#include <functional>
#include <string>

#include "platform/desktop.h"
#include "platform/linux/file_descriptor.h"

namespace kivu::platform {

// One instance for each user and program name. The first one listens on a Unix socket for as long
// as it runs; a later one connects to it, and that is the whole message. The socket lies in the
// user's runtime directory, guarded by a lock that the kernel drops with its owner, so what a crash
// leaves behind hinders nobody. Without such a directory it is an abstract socket.
class LinuxInstance : public Instance {
 public:
    explicit LinuxInstance(const std::string& programName);
    ~LinuxInstance() override;
    LinuxInstance(const LinuxInstance&) = delete;
    LinuxInstance& operator=(const LinuxInstance&) = delete;

    // False: this is the first one, and it listens from now on. The title plays no part: the
    // program name tells instances apart. Where no socket can be made at all, every instance is a
    // first one.
    bool HandOver(const std::string& title) override;
    void OnSummoned(std::function<void()> summon) override;

    // Readable when a later instance calls; -1 while this one does not listen.
    int ListenFd() const { return listener.Get(); }
    // Answers the calls that wait, if any, with one summons. Never blocks.
    void Serve();

 private:
    bool ListenAtPath(const std::string& path);
    bool ListenAbstract(const std::string& name);

    std::string programName;
    std::string socketPath;  // to be removed at the end; empty: an abstract socket or none
    FileDescriptor lock;
    FileDescriptor listener;
    std::function<void()> summon;
    bool missedSummons = false;  // a call came before there was somebody to tell
};

}  // namespace kivu::platform
