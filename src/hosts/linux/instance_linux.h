#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "hosts/linux/file_descriptor.h"
#include "platform/instance.h"

namespace kivu::hosts {

// One instance for each user, program name and directory of the program, so that a portable one
// comes up beside an installed one. The first one listens on a Unix socket for as long
// as it runs; a later one connects to it, writes the bytes of the path that it was given, if any,
// and closes: that is the whole message. The socket lies in the user's runtime directory, guarded
// by a lock that the kernel drops with its owner, so what a crash leaves behind hinders nobody.
// Without such a directory it is an abstract socket.
class LinuxInstance : public platform::Instance {
 public:
    // `directory`: the one that holds Config, with every link resolved.
    explicit LinuxInstance(const std::string& programName, const std::string& directory = {});
    ~LinuxInstance() override;
    LinuxInstance(const LinuxInstance&) = delete;
    LinuxInstance& operator=(const LinuxInstance&) = delete;

    // False: this is the first one, and it listens from now on. The title plays no part: the
    // program tells instances apart. Where no socket can be made at all, every instance is a
    // first one.
    bool HandOver(const std::string& title, const std::string& file) override;
    void OnSummoned(std::function<void(const std::string&)> summon) override;

    // Readable when a later instance calls or has more to say; -1 while this one does not listen.
    int ListenFd() const { return waiting.Get(); }
    // Answers the calls that are complete, if any, with one summons, which gets the first file that
    // was named. Never blocks.
    void Serve();

 private:
    // A later instance that has not closed yet.
    struct Caller {
        FileDescriptor connection;
        std::string said;
    };

    bool ListenAtPath(const std::string& path, const std::string& file);
    bool ListenAbstract(const std::string& name, const std::string& file);
    bool Listen(FileDescriptor made);
    void AcceptCallers();
    bool HasFinished(Caller& caller) const;

    std::string name;        // of the socket, without its place
    std::string socketPath;  // to be removed at the end; empty: an abstract socket or none
    FileDescriptor lock;
    FileDescriptor listener;
    FileDescriptor waiting;  // epoll over the listener and the callers
    std::vector<Caller> callers;
    std::function<void(const std::string&)> summon;
    std::optional<std::string> missed;  // a call that came before there was somebody to tell
};

}  // namespace kivu::hosts
