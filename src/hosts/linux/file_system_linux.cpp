#include "hosts/linux/file_system_linux.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <new>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include "hosts/linux/file_descriptor.h"
#include "hosts/linux/file_writer.h"
#include "hosts/linux/mounted_drives.h"
#include "hosts/linux/user_directories.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

bool Usable(const std::string& path) {
    return !path.empty() && path.find('\0') == std::string::npos;
}

std::error_code Unusable() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

bool IsQuoted(std::string_view text) {
    return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

std::optional<struct stat> Status(const std::string& path) {
    struct stat status {};
    if (!Usable(path) || ::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status;
}

// The pages of a large text at once: one by one, as they are written to, they cost twice the time.
// What cannot be had so comes one by one.
void TakePages(std::string& text) {
#ifdef MADV_POPULATE_WRITE
    const auto page = static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
    const auto begin = reinterpret_cast<std::uintptr_t>(text.data());
    const std::size_t skipped = (page - begin % page) % page;
    if (text.capacity() < skipped + page) return;
    const std::size_t length = (text.capacity() - skipped) / page * page;
    ::madvise(text.data() + skipped, length, MADV_POPULATE_WRITE);
#endif
}

// The first `size` bytes and whatever has been added behind them since the file was looked at. By
// way of a block that stays in the processor's cache: to fill the whole text with zeros before it
// is read into would touch all its memory once more.
std::optional<std::string> ReadAll(int descriptor, std::size_t size) {
    std::array<char, std::size_t{64} << 10> block;
    std::string bytes;
    bytes.reserve(size);
    if (size > block.size()) TakePages(bytes);
    for (;;) {
        const ssize_t got = ::read(descriptor, block.data(), block.size());
        if (got < 0) {
            if (errno == EINTR) continue;
            return std::nullopt;
        }
        if (got == 0) return bytes;
        if (bytes.size() + static_cast<std::size_t>(got) > LinuxFileSystem::maxFileSize)
            return std::nullopt;
        bytes.append(block.data(), static_cast<std::size_t>(got));
    }
}

}  // namespace

bool LinuxFileSystem::FileExists(const std::string& path) const {
    if (IsQuoted(path)) return false;
    const auto status = Status(path);
    return status && S_ISREG(status->st_mode);
}

bool LinuxFileSystem::IsDirectory(const std::string& path) const {
    const auto status = Status(path);
    return status && S_ISDIR(status->st_mode);
}

std::optional<platform::FileSystem::Identity> LinuxFileSystem::IdentityOf(
    const std::string& path) const {
    const auto status = Status(path);
    if (!status) return std::nullopt;
    return Identity{status->st_dev, status->st_ino};
}

bool LinuxFileSystem::IsLink(const std::string& path) const {
    struct stat status {};
    return Usable(path) && ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

std::string LinuxFileSystem::ResolvedPath(const std::string& path) const {
    if (!Usable(path)) return path;
    char* resolved = ::realpath(path.c_str(), nullptr);
    std::string answer = resolved ? resolved : path;
    std::free(resolved);
    return answer;
}

std::optional<std::string> LinuxFileSystem::ReadFile(const std::string& path) const {
    if (!Usable(path)) return std::nullopt;
    // Without O_NONBLOCK, opening a pipe would wait for somebody who writes to it.
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status {};
    if (!file || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > maxFileSize) return std::nullopt;
    try {
        return ReadAll(file.Get(), size);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::error_code LinuxFileSystem::WriteFile(const std::string& path, std::string_view bytes) {
    if (!Usable(path)) return Unusable();
    return ReplaceFile(path, bytes);
}

std::error_code LinuxFileSystem::AppendFile(const std::string& path, std::string_view bytes) {
    if (!Usable(path)) return Unusable();
    return AppendToFile(path, bytes);
}

std::error_code LinuxFileSystem::DeleteFile(const std::string& path) {
    if (!Usable(path)) return Unusable();
    if (::unlink(path.c_str()) != 0) return LastError();
    return {};
}

std::error_code LinuxFileSystem::MoveFile(const std::string& from, const std::string& to) {
    if (!Usable(from) || !Usable(to)) return Unusable();
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
    const bool otherDisk = errno == EXDEV;
    // Network and FUSE file systems may not know the flag: there a look in front has to do.
    if (!otherDisk && errno != EINVAL && errno != ENOSYS) return LastError();
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) return std::make_error_code(std::errc::file_exists);
    if (!otherDisk)
        return ::rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : LastError();
    // To another disk a file is copied; the source goes only when the copy is whole.
    std::error_code failure;
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::none, failure);
    if (failure) {
        static_cast<void>(DeleteFile(to));
        return failure;
    }
    return DeleteFile(from);
}

std::optional<std::int64_t> LinuxFileSystem::CreationTime(const std::string& path) const {
    struct statx status {};
    if (!Usable(path) ||
        ::statx(AT_FDCWD, path.c_str(), 0, STATX_BTIME | STATX_MTIME, &status) != 0) {
        return std::nullopt;
    }
    return (status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime.tv_sec : status.stx_mtime.tv_sec;
}

std::error_code LinuxFileSystem::MakeDirectory(const std::string& path) {
    if (!Usable(path)) return Unusable();
    if (::mkdir(path.c_str(), 0777) == 0) return {};
    const std::error_code failure = LastError();
    if (failure == std::errc::file_exists && IsDirectory(path)) return {};
    return failure;
}

std::string LinuxFileSystem::CurrentDirectory() const {
    char* found = ::getcwd(nullptr, 0);
    if (found == nullptr) return {};
    std::string path = found;
    std::free(found);
    // The kernel writes "(unreachable)" in front of a directory outside the process's root.
    return path.starts_with('/') ? path : std::string();
}

std::vector<std::string> LinuxFileSystem::Drives() const {
    const auto table = ReadFile("/proc/self/mounts");
    return DrivesOf(HomeDirectory(), table.value_or(""));
}

std::string LinuxFileSystem::HomeDirectory() const {
    return UserHomeDirectory();
}

std::error_code LinuxFileSystem::ChangeDirectory(const std::string& path) {
    if (!Usable(path)) return Unusable();
    if (::chdir(path.c_str()) != 0) return LastError();
    return {};
}

std::string LinuxFileSystem::ShortPathName(const std::string& path) const {
    const std::string bare = IsQuoted(path) ? path.substr(1, path.size() - 2) : path;
    return Status(bare) ? bare : std::string();
}

std::string LinuxFileSystem::LongPathName(const std::string& path) const {
    return ShortPathName(path);
}

std::string LinuxFileSystem::DecodeText(std::string_view bytes) const {
    return text::IsUtf8(bytes) ? std::string(bytes) : text::FromWindows1252(bytes);
}

std::string LinuxFileSystem::EncodeText(std::string_view text) const {
    return std::string(text);
}

}  // namespace kivu::hosts
