#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "text/first_match.h"
#include "text/text.h"

namespace kivu::platform {

// The host's files. Paths are text as the launcher holds it (see support/text.h); a name keeps its
// bytes on the way through. Nothing here throws: a failure is a value, and a failed write leaves
// the old file as it was.
class FileSystem {
 public:
    virtual ~FileSystem() = default;

    // One value per directory, whatever path leads to it, so that a walk enters it once. 0:
    // unknown.
    struct Identity {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        auto operator<=>(const Identity&) const = default;  // NOLINT(modernize-use-nullptr)
    };

    struct Entry {
        std::string name;  // without its directory
        bool isDirectory = false;
    };

    // Regular files (and links to them) and directories of one directory, in no particular order.
    // Hidden names, names with CR or LF, devices, pipes, sockets and dangling links are left out.
    // Empty optional: the directory cannot be entered or read.
    virtual std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const = 0;

    // The same for a walk through a tree, with little memory and time for each entry.
    struct Listing {
        struct Item {
            std::uint32_t begin = 0, length = 0;  // of the name in `names`
            bool isDirectory = false;
            bool isLink = false;  // told of directories
        };
        std::string_view Name(const Item& item) const {
            return std::string_view(names).substr(item.begin, item.length);
        }
        void Add(std::string_view name, bool isDirectory, bool isLink) {
            items.push_back({static_cast<std::uint32_t>(names.size()),
                             static_cast<std::uint32_t>(name.size()), isDirectory, isLink});
            names += name;
        }

        std::string names;  // one behind the other
        std::vector<Item> items;
        std::optional<Identity> identity;  // of the directory
    };
    virtual std::optional<Listing> ReadDirectory(const std::string& path) const {
        const auto entries = ListDirectory(path);
        if (!entries) return std::nullopt;
        Listing listing;
        listing.identity = IdentityOf(path);
        const bool closed = path.ends_with('/') || path.ends_with(Separator());
        const std::string base = closed ? path : path + Separator();
        for (const Entry& entry : *entries)
            listing.Add(entry.name, entry.isDirectory,
                        entry.isDirectory && IsLink(base + entry.name));
        return listing;
    }
    // Whether other threads may call ReadDirectory at any time.
    virtual bool ServesThreads() const { return false; }

    // The file of a directory whose name begins with `prefix` and ends in `ending`, both without
    // regard to case, that is shown first, see text::ComesFirst; without the directory. Every
    // character is a plain one. Empty: there is none.
    virtual std::optional<std::string> FirstMatch(const std::string& directory,
                                                  std::string_view prefix, std::string_view ending,
                                                  std::string_view preferredStem) const {
        std::optional<std::string> first;
        const auto entries = ListDirectory(directory);
        if (!entries) return first;
        for (const Entry& entry : *entries) {
            if (entry.isDirectory || !text::MatchesAround(entry.name, prefix, ending)) continue;
            if (!first || text::ComesFirst(entry.name, *first, prefix, preferredStem))
                first = entry.name;
        }
        return first;
    }

    // The directory of this name in another one, as it is spelled there: exactly so, or else
    // without regard to case. Empty: there is none.
    virtual std::optional<std::string> FindDirectory(const std::string& parent,
                                                     std::string_view name) const {
        const bool closed = parent.ends_with('/') || parent.ends_with(Separator());
        const std::string exact = (closed ? parent : parent + Separator()) + std::string(name);
        if (IsDirectory(exact)) return std::string(name);
        std::optional<std::string> found;
        const auto entries = ListDirectory(parent);
        if (!entries) return found;
        for (const Entry& entry : *entries) {
            if (!entry.isDirectory || text::ToLower(entry.name) != text::ToLower(name)) continue;
            if (!found || entry.name < *found) found = entry.name;
        }
        return found;
    }

    // Whether a directory holds anything at all, hidden entries aside; stops at the first one.
    // Empty: it cannot be entered or read.
    virtual std::optional<bool> HasEntries(const std::string& path) const {
        const auto entries = ListDirectory(path);
        if (!entries) return std::nullopt;
        return !entries->empty();
    }

    // A regular file of exactly this name. Empty or quoted text and directories are no files; "*"
    // and "?" are plain characters.
    virtual bool FileExists(const std::string& path) const = 0;
    virtual bool IsDirectory(const std::string& path) const = 0;

    virtual std::optional<Identity> IdentityOf(const std::string& path) const = 0;
    virtual bool IsLink(const std::string& path) const = 0;
    // The path with every link on the way resolved; the path itself when it leads nowhere.
    virtual std::string ResolvedPath(const std::string& path) const { return path; }

    // The whole file. Empty optional: missing, a directory, or unreadable.
    virtual std::optional<std::string> ReadFile(const std::string& path) const = 0;

    // A file read from front to back in blocks, for one that is too large to be held in memory. It
    // may grow, shrink or go away meanwhile.
    class Reader {
     public:
        virtual ~Reader() = default;
        // Fills `buffer` with up to `size` bytes and gives their number; 0 at the end of the file,
        // and when it cannot be read on.
        virtual std::size_t Read(char* buffer, std::size_t size) = 0;
    };
    // Null: missing, a directory, or unreadable.
    virtual std::unique_ptr<Reader> OpenFile(const std::string& path) const {
        auto bytes = ReadFile(path);
        return bytes ? std::make_unique<WholeFileReader>(std::move(*bytes)) : nullptr;
    }

    // Replaces the file in one step: written and flushed beside it, then renamed over it.
    virtual std::error_code WriteFile(const std::string& path, std::string_view bytes) = 0;
    virtual std::error_code AppendFile(const std::string& path, std::string_view bytes) = 0;
    virtual std::error_code DeleteFile(const std::string& path) = 0;
    // Fails where the destination exists already.
    virtual std::error_code MoveFile(const std::string&, const std::string&) {
        return std::make_error_code(std::errc::not_supported);
    }
    // When the file was made, in seconds since 1970 (UTC); the host's last change of it where it
    // does not know. Empty: there is no such file.
    virtual std::optional<std::int64_t> CreationTime(const std::string&) const {
        return std::nullopt;
    }
    virtual std::error_code MakeDirectory(const std::string& path) = 0;

    virtual std::string CurrentDirectory() const = 0;
    virtual std::error_code ChangeDirectory(const std::string& path) = 0;

    // Where a user begins to look: the drives of the host ("C:\"), or the root, the home directory
    // and what is mounted for the user.
    virtual std::vector<std::string> Drives() const { return {}; }
    // Without a closing separator. Empty: there is none.
    virtual std::string HomeDirectory() const { return {}; }

    // The host's short (8.3) and long form of an existing path; empty when there is no answer. A
    // host without short names gives the path without enclosing quotes.
    virtual std::string ShortPathName(const std::string& path) const = 0;
    virtual std::string LongPathName(const std::string& path) const = 0;

    // "\\" or "/": what joins fixed names such as "Config" to a path on this host.
    virtual char Separator() const = 0;

    // Text of the launcher's own files and of those it hands to others: 8-bit, in the system code
    // page. On Linux that is UTF-8, and bytes that are not UTF-8 are taken as Windows-1252.
    virtual std::string DecodeText(std::string_view bytes) const = 0;
    virtual std::string EncodeText(std::string_view text) const = 0;

 private:
    // For hosts that can only read a file whole.
    class WholeFileReader : public Reader {
     public:
        explicit WholeFileReader(std::string bytes) : bytes(std::move(bytes)) {}
        std::size_t Read(char* buffer, std::size_t size) override {
            const std::size_t count = bytes.copy(buffer, size, read);
            read += count;
            return count;
        }

     private:
        std::string bytes;
        std::size_t read = 0;
    };
};

}  // namespace kivu::platform
