#include "hosts/linux/program_starter_linux.h"

#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "hosts/linux/detached_process.h"
#include "hosts/linux/start_words.h"
#include "hosts/linux/text_editor.h"
#include "hosts/run_and_wait.h"

namespace kivu::hosts {

namespace {

Detached Start(const DetachedProgram& program, bool wait) {
    return wait ? RunDetached(program) : StartDetached(program);
}

}  // namespace

std::error_code LinuxProgramStarter::Run(const platform::StartRequest& request) {
    // Also when nothing starts: an earlier launch must not pass for this one.
    if (request.watched) session.End();

    DetachedProgram program;
    if (const auto failure = ResolveStart(request, program)) return failure;
    Detached started = Start(program, request.wait);
    if (started.failure == std::errc::executable_format_error && LooksLikeScript(program.program)) {
        program.words[0] = program.program;
        program.words.insert(program.words.begin(), "sh");
        program.program = "/bin/sh";
        started = Start(program, request.wait);
    }
    if (started.failure) return started.failure;
    if (request.watched && !request.wait) session.Begin(started.session);
    return {};
}

std::error_code LinuxProgramStarter::RunAndWait(const platform::StartRequest& request,
                                                const std::function<bool()>& goOn) {
    platform::StartRequest waited = request;
    waited.wait = true;
    waited.watched = false;
    return RunBeside(
        [waited] {
            LaunchSession none;
            return LinuxProgramStarter(none).Run(waited);
        },
        goOn);
}

std::error_code LinuxProgramStarter::EditText(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos)
        return std::make_error_code(std::errc::invalid_argument);
    auto failure = std::make_error_code(std::errc::no_such_file_or_directory);
    // An absolute path is no option of an editor, whatever it is called.
    for (const platform::StartRequest& editor : EditorsFor(AbsolutePath(path))) {
        failure = Run(editor);
        if (!failure) break;
    }
    return failure;
}

bool LinuxProgramStarter::MayRun(const std::string& program) const {
    if (IsWindowsProgram(program)) return !FindProgram("wine").empty();
    return ::access(program.c_str(), X_OK) == 0;
}

bool LinuxProgramStarter::SearchesIn(const std::string& directory) const {
    struct stat wanted {};
    if (::stat(directory.c_str(), &wanted) != 0 || !S_ISDIR(wanted.st_mode)) return false;
    for (const std::string& searched : SearchedDirectories()) {
        struct stat status {};
        if (::stat(searched.c_str(), &status) == 0 && status.st_dev == wanted.st_dev &&
            status.st_ino == wanted.st_ino)
            return true;
    }
    return false;
}

std::string LinuxProgramStarter::FindExecutable(const std::string& path) const {
    struct stat status {};
    const bool isFile = path.find('\0') == std::string::npos &&
                        ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    return isFile ? FindProgram("xdg-open") : std::string();
}

std::string LinuxProgramStarter::FindInPath(const std::string& name) const {
    return name.find('/') == std::string::npos ? FindProgram(name) : std::string();
}

std::error_code LinuxProgramStarter::Open(const std::string& addressOrPath) {
    if (addressOrPath.empty()) return std::make_error_code(std::errc::invalid_argument);
    platform::StartRequest request;
    // A file name that begins with "-" is no option.
    request.words = {"xdg-open",
                     addressOrPath.starts_with('-') ? "./" + addressOrPath : addressOrPath};
    return Run(request);
}

}  // namespace kivu::hosts
