#include "hosts/linux/file_writer.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

#include "hosts/linux/file_descriptor.h"

namespace kivu::hosts {

namespace {

constexpr int maxLinks = 40;        // what the kernel follows as well
constexpr int maxNameTrials = 100;  // names of temporary files, each of them new
constexpr std::string_view temporaryBegin = ".kivu-";
constexpr std::string_view temporaryEnd = ".tmp";
constexpr time_t leftOverAge = 24 * 60 * 60;  // seconds

std::error_code LastError() {
    return {errno, std::generic_category()};
}

// With its closing "/"; empty for a bare name.
std::string DirectoryPart(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

// Follows links in the last place of `path`, a dangling one as well, so that a rename replaces the
// file and not the link.
std::error_code ResolveLink(std::string& path) {
    for (int followed = 0; followed < maxLinks; ++followed) {
        char target[PATH_MAX];
        const ssize_t length = ::readlink(path.c_str(), target, sizeof target);
        if (length < 0) return {};
        if (static_cast<std::size_t>(length) == sizeof target)
            return std::make_error_code(std::errc::filename_too_long);
        const std::string next(target, static_cast<std::size_t>(length));
        path = next.starts_with('/') ? next : DirectoryPart(path) + next;
    }
    return std::make_error_code(std::errc::too_many_symbolic_link_levels);
}

std::error_code WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(file, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return LastError();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

// A file of a hidden name, so that no list ever shows it, which goes away unless it is renamed.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::string& directory) : directory(directory) {}
    ~TemporaryFile() {
        if (!path.empty()) ::unlink(path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::error_code Create(mode_t mode) {
        for (int trial = 0; trial < maxNameTrials; ++trial) {
            const std::string candidate = directory + NextName();
            file = FileDescriptor(::open(
                candidate.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
            if (file) {
                path = candidate;
                return {};
            }
            if (errno != EEXIST) break;
        }
        return LastError();
    }

    // Mode and owner are wishes: file systems without them refuse.
    void TakeOver(const struct stat& old) {
        if (old.st_uid != ::geteuid() || old.st_gid != ::getegid()) {
            [[maybe_unused]] const int ignored = ::fchown(file.Get(), old.st_uid, old.st_gid);
        }
        ::fchmod(file.Get(), old.st_mode & 07777);
    }

    std::error_code Fill(std::string_view bytes) {
        if (const auto failure = WriteAll(file.Get(), bytes)) return failure;
        // A few file systems cannot flush; a full disk they have told about before.
        if (::fsync(file.Get()) != 0 && errno != EINVAL && errno != ENOSYS) return LastError();
        if (!file.Close()) return LastError();
        return {};
    }

    std::error_code RenameTo(const std::string& target) {
        if (::rename(path.c_str(), target.c_str()) != 0) return LastError();
        path.clear();
        return {};
    }

 private:
    static std::string NextName() {
        static std::atomic<unsigned> counter{0};
        struct timespec now {};
        ::clock_gettime(CLOCK_REALTIME, &now);
        char name[64];
        std::snprintf(name, sizeof name, ".kivu-%lx-%lx-%x.tmp",
                      static_cast<unsigned long>(::getpid()),
                      static_cast<unsigned long>(now.tv_nsec), counter++);
        return name;
    }

    std::string directory;
    std::string path;
    FileDescriptor file;
};

// What a write that was killed in its middle has left behind. A day is longer than any write takes,
// also one by another computer with its clock astray.
bool IsLeftOver(int directory, const char* name, time_t now) {
    const std::string_view text(name);
    if (!text.starts_with(temporaryBegin) || !text.ends_with(temporaryEnd)) return false;
    struct stat status {};
    return ::fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISREG(status.st_mode) && status.st_mtime < now - leftOverAge;
}

void RemoveLeftOvers(const std::string& directory) {
    DIR* const entries = ::opendir(directory.empty() ? "." : directory.c_str());
    if (entries == nullptr) return;
    const time_t now = ::time(nullptr);
    while (const dirent* entry = ::readdir(entries)) {
        if (IsLeftOver(::dirfd(entries), entry->d_name, now))
            ::unlinkat(::dirfd(entries), entry->d_name, 0);
    }
    ::closedir(entries);
}

// What lies at `path` and may be replaced: empty optional for nothing at all.
std::error_code LookAtOld(const std::string& path, std::optional<struct stat>& old) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        if (errno == ENOENT) return {};
        return LastError();
    }
    if (S_ISDIR(status.st_mode)) return std::make_error_code(std::errc::is_a_directory);
    if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::operation_not_supported);
    // A rename asks only the directory, but a user who protects a file means its content.
    if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return LastError();
    old = status;
    return {};
}

// Makes the new name last through a power cut. The content is safe without it.
void FlushDirectory(const std::string& directory) {
    const FileDescriptor opened(
        ::open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened) ::fsync(opened.Get());
}

}  // namespace

std::error_code ReplaceFile(const std::string& path, std::string_view bytes) {
    std::string target = path;
    if (const auto failure = ResolveLink(target)) return failure;
    std::optional<struct stat> old;
    if (const auto failure = LookAtOld(target, old)) return failure;
    if (target.ends_with('/')) return std::make_error_code(std::errc::is_a_directory);

    const std::string directory = DirectoryPart(target);
    RemoveLeftOvers(directory);
    TemporaryFile temporary(directory);
    if (const auto failure = temporary.Create(old ? 0600 : 0666)) return failure;
    if (old) temporary.TakeOver(*old);
    if (const auto failure = temporary.Fill(bytes)) return failure;
    if (const auto failure = temporary.RenameTo(target)) return failure;
    FlushDirectory(directory);
    return {};
}

std::error_code AppendToFile(const std::string& path, std::string_view bytes) {
    constexpr int flags = O_WRONLY | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    bool created = false;
    FileDescriptor file(::open(path.c_str(), flags));
    if (!file && errno == ENOENT) {
        file = FileDescriptor(::open(path.c_str(), flags | O_CREAT, 0666));
        created = static_cast<bool>(file);
    }
    if (!file) return LastError();
    struct stat status {};
    if (::fstat(file.Get(), &status) != 0) return LastError();
    if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::operation_not_supported);

    const auto failure = WriteAll(file.Get(), bytes);
    if (failure) {
        if (created) {
            ::unlink(path.c_str());
        } else {
            [[maybe_unused]] const int ignored = ::ftruncate(file.Get(), status.st_size);
        }
        return failure;
    }
    if (!file.Close()) return LastError();
    return {};
}

}  // namespace kivu::hosts
