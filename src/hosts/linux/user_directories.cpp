#include "hosts/linux/user_directories.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kivu::hosts {

namespace {

std::string AbsoluteVariable(const char* name) {
    const char* value = std::getenv(name);
    if (value == nullptr || value[0] != '/') return {};
    std::string path = value;
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string Directory(const char* variable, const char* belowHome) {
    if (auto path = AbsoluteVariable(variable); !path.empty()) return path;
    const std::string home = UserHomeDirectory();
    return home.empty() ? home : home + belowHome;
}

bool IsDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

std::string UserHomeDirectory() {
    if (auto home = AbsoluteVariable("HOME"); !home.empty()) return home;
    std::array<char, 16 * 1024> buffer{};
    struct passwd entry {};
    struct passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0) return {};
    return found != nullptr && found->pw_dir != nullptr ? found->pw_dir : std::string();
}

std::string UserConfigDirectory() {
    return Directory("XDG_CONFIG_HOME", "/.config");
}

std::string UserDataDirectory() {
    return Directory("XDG_DATA_HOME", "/.local/share");
}

std::string UserStateDirectory() {
    return Directory("XDG_STATE_HOME", "/.local/state");
}

std::string UserRuntimeDirectory() {
    const std::string path = AbsoluteVariable("XDG_RUNTIME_DIR");
    struct stat status {};
    if (path.empty() || ::stat(path.c_str(), &status) != 0) return {};
    return S_ISDIR(status.st_mode) && status.st_uid == ::getuid() ? path : std::string();
}

std::string TemporaryDirectory() {
    const std::string path = AbsoluteVariable("TMPDIR");
    return IsDirectory(path) ? path : "/tmp";
}

std::error_code MakeUserDirectory(const std::string& path) {
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        const std::string part = path.substr(0, end);
        if (::mkdir(part.c_str(), 0700) != 0 && !IsDirectory(part))
            return {errno, std::generic_category()};
        if (end == std::string::npos) return {};
    }
}

}  // namespace kivu::hosts
