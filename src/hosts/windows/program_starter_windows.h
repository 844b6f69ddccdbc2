#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/program_starter.h"

namespace kivu::hosts {

// Starts programs by their command text, each in a console of its own where it needs one, with the
// window style told. Programs inherit the environment and no handle. A batch file runs in the
// command processor, with every character of its arguments as it is; a file that is no program, and
// a program that must be allowed to run by the user, goes the way of a double click. Errors are the
// system's own; what becomes of a program later is not known.
class WindowsProgramStarter : public platform::ProgramStarter {
 public:
    std::error_code Run(const platform::StartRequest& request) override;
    std::error_code RunAndWait(const platform::StartRequest& request,
                               const std::function<bool()>& goOn) override;
    // The system's own editor, from the system's directory.
    std::error_code EditText(const std::string& path) override;
    bool UsesShell() const override { return false; }
    std::optional<std::string> StartFileBytes(std::string_view text) const override;
    // In the system's directories, then in those of PATH; those that are not absolute may hold
    // anybody's files, and are passed over. A name with a directory is no bare one: empty.
    std::string FindInPath(const std::string& name) const override;
    // Programs and batch files; documents would open in somebody else's program.
    bool MayRun(const std::string& program) const override;
    bool SearchesIn(const std::string& directory) const override;
    std::string FindExecutable(const std::string& path) const override;
    std::error_code Open(const std::string& addressOrPath) override;
};

}  // namespace kivu::hosts
