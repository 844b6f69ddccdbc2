#include "hosts/linux/part_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kivu::hosts {

PartFile::~PartFile() {
    Abandon();
}

void PartFile::Abandon() {
    const std::scoped_lock lock(naming);
    if (!name.empty()) ::unlink(name.c_str());
    name.clear();
}

bool PartFile::Open(const std::string& path) {
    constexpr int mostNames = 100;
    struct stat status {};
    if (path.find('\0') != std::string::npos || path.ends_with('/')) return false;
    if (::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) return false;
    target = path;
    for (int number = 0; number < mostNames; ++number) {
        const std::string tried =
            path + (number == 0 ? "" : "." + std::to_string(number)) + ".part";
        file = FileDescriptor(
            ::open(tried.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666));
        if (file) {
            name = tried;
            return true;
        }
        if (errno != EEXIST) return false;
    }
    return false;
}

bool PartFile::Write(const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = ::write(file.Get(), bytes, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool PartFile::Finish() {
    if (::fsync(file.Get()) != 0 || !file.Close()) return false;
    const std::scoped_lock lock(naming);
    if (name.empty() || std::rename(name.c_str(), target.c_str()) != 0) return false;
    name.clear();
    return true;
}

}  // namespace kivu::hosts
