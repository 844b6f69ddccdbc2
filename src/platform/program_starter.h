#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kivu::platform {

enum class WindowStyle { Hidden, Normal, Minimized, Maximized, NormalNoFocus, MinimizedNoFocus };

// One program to start. `command` is the literal command text, as it is shown and as Windows takes
// it; `words` is the same split into its program and arguments, for hosts that start by words. The
// two say the same thing; a host uses one of them.
struct StartRequest {
    std::string command;
    std::vector<std::string> words;
    std::string directory;  // absolute; empty: the launcher's current one
    WindowStyle style = WindowStyle::Normal;
    bool wait = false;  // return only when the program has ended
    // words[0] is a start file of the launcher, for the host's command processor.
    bool startFile = false;
    bool watched = false;  // the launch that ProcessList marks with ProcessEntry::ofLaunch
};

// Starts programs and holds no handle to them: nothing is left behind when they end.
class ProgramStarter {
 public:
    virtual ~ProgramStarter() = default;
    virtual std::error_code Run(const StartRequest& request) = 0;

    // The same, and returns when the program has ended. `goOn` is called on the caller's thread
    // about ten times a second and may let events run; once it says false, nobody waits any more
    // and the program is left to itself (errc::operation_canceled).
    virtual std::error_code RunAndWait(const StartRequest& request,
                                       const std::function<bool()>& goOn) = 0;

    // How this host runs a program: false, and the launcher writes start files for cmd.exe; true,
    // and it writes them for /bin/sh (words in single quotes, lines ended by LF).
    virtual bool UsesShell() const = 0;

    // The bytes of a start file for cmd.exe, in the code page in which it reads them. Empty: that
    // code page does not hold every character of the text.
    virtual std::optional<std::string> StartFileBytes(std::string_view text) const {
        return std::string(text);
    }

    // A program by its bare name, where the system's search path finds it; empty where it does not.
    virtual std::string FindInPath(const std::string&) const { return {}; }

    // False: the file, which is there, may not be run by the user, and Run would fail.
    virtual bool MayRun(const std::string&) const { return true; }

    // A directory in which FindInPath looks, whatever its spelling.
    virtual bool SearchesIn(const std::string&) const { return false; }

    // The program with which the user's desktop opens this file; empty: there is no such file, or
    // none for it.
    virtual std::string FindExecutable(const std::string&) const { return {}; }

    // Opens a file in the user's editor for plain text, and never in a program that would run it.
    virtual std::error_code EditText(const std::string& path) = 0;

    // Hands an address or a document to the program that the user has chosen for it.
    virtual std::error_code Open(const std::string& addressOrPath) = 0;
};

}  // namespace kivu::platform
