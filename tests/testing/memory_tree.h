#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/text.h"

namespace kivu::testing {

// The names, directories and links of a disk in memory, under either host's rules for paths.
class MemoryTree {
 protected:
    explicit MemoryTree(char separator) : separator(separator) {}

    enum class Kind { File, Directory, Link };
    struct Node {
        Kind kind = Kind::File;
        std::uint64_t inode = 0;
        std::string name;
        std::string bytes;
        std::string target;
        bool unreadable = false;
        bool readOnly = false;
    };
    using PathParts = std::vector<std::string>;

    bool IsSeparator(char c) const { return c == '/' || (separator == '\\' && c == '\\'); }
    bool HasDrive(std::string_view path) const {
        return separator == '\\' && path.size() >= 2 && path[1] == ':';
    }

    // The elements of an absolute path, "." and ".." still in it.
    PathParts Parts(const std::string& path) const {
        std::string full = path;
        if (path.empty() || (!HasDrive(path) && !IsSeparator(path[0]))) {
            full = JoinPath(current, path);
        } else if (separator == '\\' && !HasDrive(path)) {
            full = current.substr(0, 2) + path;
        }
        PathParts parts;
        std::string part;
        for (const char c : full + separator) {
            if (!IsSeparator(c)) {
                part += c;
            } else if (!part.empty()) {
                parts.push_back(std::move(part));
                part.clear();
            }
        }
        return parts;
    }

    // The path without links, "." and ".."; empty when links run in a circle or through a file.
    std::optional<PathParts> Resolve(const std::string& path, bool followLast = true) const {
        if (path.empty() || path.find('\0') != std::string::npos) return {};
        PathParts todo = Parts(path);
        PathParts done;
        for (int links = 0; !todo.empty();) {
            const std::string part = todo.front();
            todo.erase(todo.begin());
            if (part == ".") continue;
            if (part == "..") {
                if (!done.empty()) done.pop_back();
                continue;
            }
            const Node* above = At(done);
            if (above != nullptr && above->kind == Kind::File) return {};
            done.push_back(part);
            const Node* node = At(done);
            if (node == nullptr || node->kind != Kind::Link) continue;
            if (todo.empty() && !followLast) break;
            if (++links > 40) return {};
            done.pop_back();
            const bool absolute =
                HasDrive(node->target) || (!node->target.empty() && IsSeparator(node->target[0]));
            PathParts target = Parts(absolute ? node->target : "/" + node->target);
            if (separator == '\\' && !absolute) target.erase(target.begin());
            if (absolute) done.clear();
            todo.insert(todo.begin(), target.begin(), target.end());
        }
        return done;
    }

    std::string KeyOf(const PathParts& parts) const {
        std::string key;
        for (const std::string& part : parts)
            key += "/" + part;
        if (separator == '/') return key;
        return text::ToLower(text::IsUtf8(key) ? key : text::FromWindows1252(key));
    }

    std::string TextOf(const PathParts& parts) const {
        std::string text = separator == '/' ? "/" : "";
        for (const std::string& part : parts) {
            if (!text.empty() && text.back() != separator) text += separator;
            text += part;
        }
        if (separator == '\\' && parts.size() == 1) text += separator;
        return text;
    }

    std::string JoinPath(const std::string& directory, const std::string& name) const {
        const bool closed = !directory.empty() && IsSeparator(directory.back());
        return directory + (closed ? "" : std::string(1, separator)) + name;
    }

    const Node* At(const PathParts& parts) const {
        const auto found = nodes.find(KeyOf(parts));
        return found == nodes.end() ? nullptr : &found->second;
    }
    const Node* Find(const std::string& path) const {
        const auto resolved = Resolve(path);
        return resolved ? At(*resolved) : nullptr;
    }
    const Node* ParentOf(PathParts parts) const {
        if (parts.empty()) return nullptr;
        parts.pop_back();
        return At(parts);
    }
    Node& Require(const std::string& path) { return nodes.at(KeyOf(Resolve(path).value())); }

    Node& MakeNode(const PathParts& parts) {
        Node& node = nodes[KeyOf(parts)];
        if (node.inode == 0) node.inode = ++lastInode;
        node.name = parts.empty() ? "" : parts.back();
        return node;
    }
    Node& AddNode(const std::string& path) {
        const PathParts parts = Resolve(path, false).value();
        for (std::size_t count = 1; count < parts.size(); ++count) {
            MakeNode(PathParts(parts.begin(), parts.begin() + static_cast<long>(count))).kind =
                Kind::Directory;
        }
        return MakeNode(parts);
    }

    char separator;
    std::string current;
    std::map<std::string, Node> nodes;  // by absolute path, "" the root, elements led by "/"
    std::uint64_t lastInode = 0;
};

}  // namespace kivu::testing
