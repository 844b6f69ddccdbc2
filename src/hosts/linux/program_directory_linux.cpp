#include "hosts/linux/program_directory_linux.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include "hosts/linux/user_directories.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

bool IsDirectory(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool IsWritable(const std::string& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::string DirectoryOf(const std::string& file) {
    const auto slash = file.rfind('/');
    if (slash == std::string::npos) return {};
    return slash == 0 ? "/" : file.substr(0, slash);
}

}  // namespace

std::string ProgramFile() {
    char target[PATH_MAX];
    const ssize_t length = ::readlink("/proc/self/exe", target, sizeof target);
    if (length <= 0) return {};
    std::string path(target, static_cast<std::size_t>(length));
    // The mark of a file that an update has replaced under the running program.
    constexpr std::string_view removed = " (deleted)";
    if (path.ends_with(removed) && ::access(path.c_str(), F_OK) != 0)
        path.resize(path.size() - removed.size());
    return path;
}

std::string ProgramName(const std::string& programFile) {
    std::string name = programFile.substr(programFile.rfind('/') + 1);
    if (name.size() <= 4) return name;
    std::string ending = name.substr(name.size() - 4);
    for (char& letter : ending)
        letter = text::ToLowerAscii(letter);
    return ending == ".exe" ? name.substr(0, name.size() - 4) : name;
}

bool IsInstalled(const std::string& programFile) {
    const std::string own = DirectoryOf(programFile);
    return !own.empty() && IsDirectory(own + "/../share/kivu");
}

std::string ProgramDirectory(const std::string& programFile) {
    const std::string own = DirectoryOf(programFile);
    if (!own.empty() && !IsInstalled(programFile) &&
        (IsDirectory(own + (own == "/" ? "Config" : "/Config")) || IsWritable(own)))
        return own;
    const std::string data = UserDataDirectory();
    // Without a home there is only the program's own place left, for reading.
    if (data.empty()) return own;
    const std::string directory = data + "/Kivu";
    // A failure shows as every file in it that cannot be made.
    static_cast<void>(MakeUserDirectory(directory));
    return directory;
}

}  // namespace kivu::hosts
