#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include "hosts/linux/file_descriptor.h"
#include "hosts/linux/file_system_linux.h"

namespace kivu::hosts {

namespace {

// Entries are taken from the kernel so many bytes at a time.
constexpr std::size_t bufferSize = std::size_t{1} << 15;

enum class Kind { File, Directory, Other };

Kind KindOf(mode_t mode) {
    if (S_ISREG(mode)) return Kind::File;
    return S_ISDIR(mode) ? Kind::Directory : Kind::Other;
}

// What a name leads to, asked of the file system where the directory does not tell.
struct Found {
    Kind kind = Kind::Other;
    bool isLink = false;
};

Found Look(int directory, const char* name) {
    struct stat status {};
    if (::fstatat(directory, name, &status, 0) != 0) return {};
    const Kind kind = KindOf(status.st_mode);
    if (kind != Kind::Directory) return {kind, false};
    const bool told = ::fstatat(directory, name, &status, AT_SYMLINK_NOFOLLOW) == 0;
    return {kind, told && S_ISLNK(status.st_mode)};
}

Found FoundAs(int directory, const char* name, unsigned char type) {
    switch (type) {
        case DT_REG:
            return {Kind::File, false};
        case DT_DIR:
            return {Kind::Directory, false};
        case DT_LNK:
        case DT_UNKNOWN:
            return Look(directory, name);
        default:
            return {};
    }
}

bool IsShown(std::string_view name) {
    // Lists of files are kept one name a line.
    return name.front() != '.' && name.find('\n') == std::string_view::npos &&
           name.find('\r') == std::string_view::npos;
}

// Goes through the entries of one buffer from the kernel. False: the visitor wants no more.
template <typename Visitor>
bool Visit(int directory, const char* bytes, std::size_t size, const Visitor& visit) {
    for (std::size_t at = 0; at < size;) {
        std::uint16_t length = 0;
        std::memcpy(&length, bytes + at + offsetof(dirent64, d_reclen), sizeof(length));
        const auto type = static_cast<unsigned char>(bytes[at + offsetof(dirent64, d_type)]);
        const char* text = bytes + at + offsetof(dirent64, d_name);
        at += length;
        const std::string_view name = text;
        if (!IsShown(name)) continue;
        const Found found = FoundAs(directory, text, type);
        if (found.kind != Kind::Other && !visit(name, found)) return false;
    }
    return true;
}

// The same for all of a directory. Empty: it could not be read to its end.
template <typename Visitor>
std::optional<bool> VisitAll(int directory, const Visitor& visit) {
    alignas(dirent64) std::array<char, bufferSize> buffer;
    for (;;) {
        const ssize_t size = ::getdents64(directory, buffer.data(), buffer.size());
        // A directory that has been removed meanwhile is at its end.
        if (size == 0 || (size < 0 && errno == ENOENT)) return true;
        if (size < 0) return std::nullopt;
        if (!Visit(directory, buffer.data(), static_cast<std::size_t>(size), visit)) return false;
    }
}

FileDescriptor OpenDirectory(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return FileDescriptor();
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
}

}  // namespace

std::optional<platform::FileSystem::Listing> LinuxFileSystem::ReadDirectory(
    const std::string& path) const {
    const FileDescriptor directory = OpenDirectory(path);
    struct stat status {};
    if (!directory || ::fstat(directory.Get(), &status) != 0) return std::nullopt;
    Listing listing;
    listing.identity = Identity{status.st_dev, status.st_ino};
    const auto read =
        VisitAll(directory.Get(), [&listing](std::string_view name, const Found& found) {
            listing.Add(name, found.kind == Kind::Directory, found.isLink);
            return true;
        });
    if (!read) return std::nullopt;
    return listing;
}

std::optional<bool> LinuxFileSystem::HasEntries(const std::string& path) const {
    const FileDescriptor directory = OpenDirectory(path);
    if (!directory) return std::nullopt;
    const auto empty =
        VisitAll(directory.Get(), [](std::string_view, const Found&) { return false; });
    if (!empty) return std::nullopt;
    return !*empty;
}

std::optional<std::vector<platform::FileSystem::Entry>> LinuxFileSystem::ListDirectory(
    const std::string& path) const {
    const auto listing = ReadDirectory(path);
    if (!listing) return std::nullopt;
    std::vector<Entry> entries;
    entries.reserve(listing->items.size());
    for (const Listing::Item& item : listing->items)
        entries.push_back({std::string(listing->Name(item)), item.isDirectory});
    return entries;
}

// A link may have come to lead to something else, which its directory does not tell.
std::optional<std::string> LinuxFileSystem::FirstMatch(const std::string& directory,
                                                       std::string_view prefix,
                                                       std::string_view ending,
                                                       std::string_view preferredStem) const {
    const auto read = [this](const std::string& path) { return ReadDirectory(path); };
    const std::string base = directory.ends_with('/') ? directory : directory + '/';
    for (int round = 0; round < 2; ++round) {
        const auto index = indexes.Of(directory, read);
        if (!index) return std::nullopt;
        const auto found = index->FirstFile(prefix, ending, preferredStem);
        if (!found) return std::nullopt;
        if (FileExists(base + std::string(*found))) return std::string(*found);
        indexes.Forget(directory);
    }
    return std::nullopt;
}

std::optional<std::string> LinuxFileSystem::FindDirectory(const std::string& parent,
                                                          std::string_view name) const {
    const std::string base = parent.ends_with('/') ? parent : parent + '/';
    if (IsDirectory(base + std::string(name))) return std::string(name);
    const auto index =
        indexes.Of(parent, [this](const std::string& path) { return ReadDirectory(path); });
    const auto found = index ? index->Directory(name) : std::nullopt;
    return found && IsDirectory(base + std::string(*found)) ? std::optional(std::string(*found))
                                                            : std::nullopt;
}

}  // namespace kivu::hosts
