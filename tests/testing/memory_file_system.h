#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/file_system.h"
#include "testing/memory_tree.h"
#include "text/text.h"

namespace kivu::testing {

// A disk in memory, for tests: it can be full, refuse a read or a write, and change under the
// program's hands. With "/" as separator it behaves as the Linux host does (names exact, text UTF-8
// with Windows-1252 for stray bytes); with "\\" as Windows does (drives, names without regard to
// case and in Windows-1252 where they are not UTF-8, text Windows-1252).
class MemoryFileSystem : public platform::FileSystem, private MemoryTree {
 public:
    explicit MemoryFileSystem(char separator = '/') : MemoryTree(separator) {
        MakeNode({}).kind = Kind::Directory;
        current = separator == '/' ? "/" : "C:\\";
        AddDirectory(current);
        drives = {current};
    }

    // ---- what a test puts there and looks up; none of it counts as the program's own access ----

    // Creates or replaces a file, with the directories above it.
    void AddFile(const std::string& path, std::string_view bytes) {
        Node& node = AddNode(path);
        node.kind = Kind::File;
        node.bytes = bytes;
    }
    void AddDirectory(const std::string& path) { AddNode(path).kind = Kind::Directory; }
    void AddLink(const std::string& path, const std::string& target) {
        Node& node = AddNode(path);
        node.kind = Kind::Link;
        node.target = target;
    }
    // With everything below it.
    void Remove(const std::string& path) {
        const std::string key = KeyOf(Parts(path));
        std::erase_if(nodes, [&](const auto& entry) {
            return entry.first == key || entry.first.starts_with(key + "/");
        });
    }
    // The file's bytes whatever its rights; "(no file)" when there is none.
    std::string BytesOf(const std::string& path) const {
        const Node* node = Find(path);
        return node != nullptr && node->kind == Kind::File ? node->bytes : "(no file)";
    }

    // What Drives and HomeDirectory give.
    std::vector<std::string> drives;
    std::string home;

    // ---- faults ----

    // Reading (or listing) fails, as without the right to.
    void SetUnreadable(const std::string& path, bool on = true) { Require(path).unreadable = on; }
    // A file cannot be appended to or replaced; in a directory nothing can be made or taken away.
    void SetReadOnly(const std::string& path, bool on = true) { Require(path).readOnly = on; }
    // Bytes that still fit. A replacement needs the room of the whole new file, since the old one
    // stays until the new one is complete.
    void SetFreeSpace(std::uint64_t bytes) { freeSpace = bytes; }
    // The next `count` changes of any kind fail with this.
    void FailChanges(std::errc error, int count = std::numeric_limits<int>::max()) {
        changeError = error;
        changesToFail = count;
    }
    // Answer of ShortPathName (and, the other way, LongPathName).
    void SetShortName(const std::string& longPath, const std::string& shortPath) {
        shortNames[longPath] = shortPath;
    }

    // Run before the program reads or changes the path: the place to change the disk under it.
    std::function<void(const std::string& path)> beforeRead;
    std::function<void(const std::string& path)> beforeChange;

    // The paths as the program gave them, in order; changes only when they succeeded.
    mutable std::vector<std::string> reads;
    std::vector<std::string> changes;

    // ---- platform::FileSystem ----

    std::optional<std::vector<Entry>> ListDirectory(const std::string& path) const override {
        if (beforeRead) beforeRead(path);
        const auto resolved = Resolve(path);
        const Node* node = resolved ? At(*resolved) : nullptr;
        if (node == nullptr || node->kind != Kind::Directory || node->unreadable) return {};
        const std::string prefix = KeyOf(*resolved) + "/";
        std::vector<Entry> entries;
        for (auto it = nodes.lower_bound(prefix);
             it != nodes.end() && it->first.starts_with(prefix); ++it) {
            if (it->first.find('/', prefix.size()) != std::string::npos) continue;
            const std::string& name = it->second.name;
            if (separator == '/' && name.starts_with('.')) continue;
            if (name.find_first_of("\r\n") != std::string::npos) continue;
            const Node* target = Find(JoinPath(path, name));
            if (target == nullptr) continue;
            entries.push_back({name, target->kind == Kind::Directory});
        }
        return entries;
    }

    bool FileExists(const std::string& path) const override {
        if (path.size() >= 2 && path.front() == '"' && path.back() == '"') return false;
        if (path.empty() || IsSeparator(path.back())) return false;
        const Node* node = Find(path);
        return node != nullptr && node->kind == Kind::File;
    }

    bool IsDirectory(const std::string& path) const override {
        const Node* node = Find(path);
        return node != nullptr && node->kind == Kind::Directory;
    }

    std::optional<Identity> IdentityOf(const std::string& path) const override {
        const Node* node = Find(path);
        if (node == nullptr) return {};
        return Identity{1, node->inode};
    }

    bool IsLink(const std::string& path) const override {
        const auto resolved = Resolve(path, false);
        const Node* node = resolved ? At(*resolved) : nullptr;
        return node != nullptr && node->kind == Kind::Link;
    }

    std::string ResolvedPath(const std::string& path) const override {
        const auto resolved = Resolve(path);
        return resolved && At(*resolved) != nullptr ? TextOf(*resolved) : path;
    }

    std::optional<std::string> ReadFile(const std::string& path) const override {
        if (beforeRead) beforeRead(path);
        reads.push_back(path);
        const Node* node = Find(path);
        if (node == nullptr || node->kind != Kind::File || node->unreadable) return {};
        return node->bytes;
    }

    std::error_code WriteFile(const std::string& path, std::string_view bytes) override {
        return Change(path, [&](Node& node) {
            if (bytes.size() > freeSpace) return Error(std::errc::no_space_on_device);
            freeSpace = Freed(freeSpace - Charged(bytes.size()), node.bytes.size());
            node.bytes = bytes;
            return std::error_code{};
        });
    }

    std::error_code AppendFile(const std::string& path, std::string_view bytes) override {
        return Change(path, [&](Node& node) {
            if (bytes.size() > freeSpace) return Error(std::errc::no_space_on_device);
            freeSpace -= Charged(bytes.size());
            node.bytes += bytes;
            return std::error_code{};
        });
    }

    std::error_code DeleteFile(const std::string& path) override {
        if (const std::error_code error = BeginChange(path)) return error;
        const auto resolved = Resolve(path, false);
        const Node* node = resolved ? At(*resolved) : nullptr;
        if (node == nullptr) return Error(std::errc::no_such_file_or_directory);
        if (node->kind == Kind::Directory) return Error(std::errc::is_a_directory);
        const Node* parent = ParentOf(*resolved);
        if (parent != nullptr && parent->readOnly) return Error(std::errc::permission_denied);
        freeSpace = Freed(freeSpace, node->bytes.size());
        nodes.erase(KeyOf(*resolved));
        changes.push_back(path);
        return {};
    }

    std::error_code MoveFile(const std::string& from, const std::string& to) override {
        const auto bytes = ReadFile(from);
        if (!bytes) return Error(std::errc::no_such_file_or_directory);
        if (FileExists(to)) return Error(std::errc::file_exists);
        if (const std::error_code error = WriteFile(to, *bytes)) return error;
        return DeleteFile(from);
    }

    std::error_code MakeDirectory(const std::string& path) override {
        if (const std::error_code error = BeginChange(path)) return error;
        const auto resolved = Resolve(path);
        if (!resolved) return Error(std::errc::no_such_file_or_directory);
        if (const Node* node = At(*resolved)) {
            if (node->kind == Kind::Directory) return {};
            return Error(std::errc::file_exists);
        }
        const Node* parent = ParentOf(*resolved);
        if (parent == nullptr) return Error(std::errc::no_such_file_or_directory);
        if (parent->kind != Kind::Directory) return Error(std::errc::not_a_directory);
        if (parent->readOnly) return Error(std::errc::permission_denied);
        MakeNode(*resolved).kind = Kind::Directory;
        changes.push_back(path);
        return {};
    }

    std::string CurrentDirectory() const override { return current; }
    std::vector<std::string> Drives() const override { return drives; }
    std::string HomeDirectory() const override { return home; }

    std::error_code ChangeDirectory(const std::string& path) override {
        const auto resolved = Resolve(path);
        const Node* node = resolved ? At(*resolved) : nullptr;
        if (node == nullptr) return Error(std::errc::no_such_file_or_directory);
        if (node->kind != Kind::Directory) return Error(std::errc::not_a_directory);
        current = TextOf(*resolved);
        return {};
    }

    std::string ShortPathName(const std::string& path) const override {
        const auto found = shortNames.find(path);
        if (found != shortNames.end()) return found->second;
        return WithoutQuotes(path);
    }

    std::string LongPathName(const std::string& path) const override {
        for (const auto& [longPath, shortPath] : shortNames) {
            if (shortPath == path) return longPath;
        }
        return WithoutQuotes(path);
    }

    char Separator() const override { return separator; }

    std::string DecodeText(std::string_view bytes) const override {
        if (separator == '/' && text::IsUtf8(bytes)) return std::string(bytes);
        return text::FromWindows1252(bytes);
    }
    std::string EncodeText(std::string_view text) const override {
        return separator == '/' ? std::string(text) : text::ToWindows1252(text);
    }

 private:
    static std::error_code Error(std::errc error) { return std::make_error_code(error); }

    std::error_code BeginChange(const std::string& path) {
        if (beforeChange) beforeChange(path);
        if (changesToFail <= 0) return {};
        --changesToFail;
        return Error(changeError);
    }

    // Runs `apply` on a copy of the file (a new one when there is none) and keeps it if all went
    // well.
    std::error_code Change(const std::string& path,
                           const std::function<std::error_code(Node&)>& apply) {
        if (const std::error_code error = BeginChange(path)) return error;
        const auto resolved = Resolve(path);
        if (!resolved || IsSeparator(path.back())) {
            return Error(std::errc::no_such_file_or_directory);
        }
        const Node* parent = ParentOf(*resolved);
        const Node* old = At(*resolved);
        if (old != nullptr && old->kind == Kind::Directory) return Error(std::errc::is_a_directory);
        if (parent == nullptr) return Error(std::errc::no_such_file_or_directory);
        if (parent->kind != Kind::Directory) return Error(std::errc::not_a_directory);
        if (parent->readOnly || (old != nullptr && old->readOnly)) {
            return Error(std::errc::permission_denied);
        }
        Node changed = old != nullptr ? *old : Node{};
        if (const std::error_code error = apply(changed)) return error;
        MakeNode(*resolved).bytes = std::move(changed.bytes);
        changes.push_back(path);
        return {};
    }

    // Room is only counted once a test has limited it.
    std::uint64_t Charged(std::uint64_t bytes) const { return freeSpace == unlimited ? 0 : bytes; }
    static std::uint64_t Freed(std::uint64_t space, std::uint64_t bytes) {
        return space == unlimited ? unlimited : space + bytes;
    }

    static std::string WithoutQuotes(const std::string& path) {
        const bool quoted = path.size() >= 2 && path.front() == '"' && path.back() == '"';
        return quoted ? path.substr(1, path.size() - 2) : path;
    }

    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    std::map<std::string, std::string> shortNames;
    std::uint64_t freeSpace = unlimited;
    std::errc changeError{};
    int changesToFail = 0;
};

}  // namespace kivu::testing
