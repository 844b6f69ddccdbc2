#pragma once

#include <string>
#include <system_error>

#include "hosts/linux/launch_session.h"
#include "platform/program_starter.h"

namespace kivu::hosts {

// Starts programs by their words, each in a process session of its own, as nobody's child. Window
// styles mean nothing here. An error tells why a program could not be started; what becomes of it
// later is not known.
class LinuxProgramStarter : public platform::ProgramStarter {
 public:
    // `session` takes the session of each watched start, for the process list.
    explicit LinuxProgramStarter(LaunchSession& session) : session(session) {}

    std::error_code Run(const platform::StartRequest& request) override;
    std::error_code RunAndWait(const platform::StartRequest& request,
                               const std::function<bool()>& goOn) override;
    // Its error is that of the last editor that was tried.
    std::error_code EditText(const std::string& path) override;
    bool UsesShell() const override { return true; }
    // A name with a directory is no bare one: empty.
    std::string FindInPath(const std::string& name) const override;
    // By the user's rights; a Windows program needs Wine.
    bool MayRun(const std::string& program) const override;
    bool SearchesIn(const std::string& directory) const override;
    // The desktop's opener, which knows the program.
    std::string FindExecutable(const std::string& path) const override;
    // By the desktop's own choice (xdg-open).
    std::error_code Open(const std::string& addressOrPath) override;

 private:
    LaunchSession& session;
};

}  // namespace kivu::hosts
