#include "hosts/linux/start_words.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include "hosts/linux/file_descriptor.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

std::error_code Missing() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

bool IsRegularFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool HoldsNul(const platform::StartRequest& request) {
    for (const auto& word : request.words) {
        if (word.find('\0') != std::string::npos) return true;
    }
    return request.directory.find('\0') != std::string::npos;
}

std::error_code ResolveStartFile(const platform::StartRequest& request, DetachedProgram& resolved) {
    // Begins with "/", so that the shell never takes it for an option.
    resolved.words[0] = AbsolutePath(request.words[0]);
    if (!IsRegularFile(resolved.words[0])) return Missing();
    resolved.program = "/bin/sh";
    resolved.words.insert(resolved.words.begin(), "sh");
    return {};
}

std::error_code ResolveWindowsProgram(const platform::StartRequest& request,
                                      DetachedProgram& resolved) {
    const std::string& program = request.words[0];
    if (program.find('/') != std::string::npos) {
        resolved.words[0] = AbsolutePath(program);
        // Wine takes seconds to find out by itself.
        if (!IsRegularFile(resolved.words[0])) return Missing();
    }
    resolved.program = FindProgram("wine");
    if (resolved.program.empty()) return Missing();
    resolved.words.insert(resolved.words.begin(), "wine");
    return {};
}

}  // namespace

// A program changes its directory before it runs, so no path may depend on the present one.
std::string AbsolutePath(const std::string& path) {
    std::error_code failure;
    const auto absolute = std::filesystem::absolute(path, failure);
    return failure ? path : absolute.string();
}

std::vector<std::string> SearchedDirectories() {
    const char* variable = std::getenv("PATH");
    std::string_view left = variable != nullptr ? variable : "/usr/local/bin:/usr/bin:/bin";
    std::vector<std::string> directories;
    while (!left.empty()) {
        const auto colon = std::min(left.find(':'), left.size());
        if (left.starts_with('/')) directories.emplace_back(left.substr(0, colon));
        left.remove_prefix(std::min(colon + 1, left.size()));
    }
    return directories;
}

std::string FindProgram(const std::string& name) {
    if (name.find('/') != std::string::npos) return AbsolutePath(name);
    if (name.empty()) return {};
    for (const std::string& directory : SearchedDirectories()) {
        const std::string candidate = directory + "/" + name;
        if (IsRegularFile(candidate) && ::access(candidate.c_str(), X_OK) == 0) return candidate;
    }
    return {};
}

bool IsWindowsProgram(const std::string& path) {
    if (path.size() < 4) return false;
    std::string ending = path.substr(path.size() - 4);
    for (char& letter : ending)
        letter = text::ToLowerAscii(letter);
    return ending == ".exe" || ending == ".bat" || ending == ".cmd";
}

std::error_code ResolveStart(const platform::StartRequest& request, DetachedProgram& resolved) {
    if (request.words.empty() || HoldsNul(request))
        return std::make_error_code(std::errc::invalid_argument);
    if (request.words[0].empty()) return Missing();
    resolved.words = request.words;
    resolved.directory = request.directory;
    // A start file may be named ".bat" here as well: the files of a data directory have one name
    // on every host.
    if (request.startFile) return ResolveStartFile(request, resolved);
    if (IsWindowsProgram(request.words[0])) return ResolveWindowsProgram(request, resolved);
    resolved.program = FindProgram(request.words[0]);
    return resolved.program.empty() ? Missing() : std::error_code();
}

bool LooksLikeScript(const std::string& path) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    char head[512];
    const ssize_t length = file ? ::read(file.Get(), head, sizeof head) : 0;
    if (length <= 0) return false;
    return std::string_view(head, static_cast<std::size_t>(length)).find('\0') ==
           std::string_view::npos;
}

}  // namespace kivu::hosts
