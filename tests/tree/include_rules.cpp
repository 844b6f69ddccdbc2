#include "tree/include_rules.h"

#include <algorithm>
#include <array>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <set>

namespace kivu::tree {

namespace {

constexpr std::array<std::string_view, 3> hosts{"src/hosts/linux", "src/hosts/windows",
                                                "src/hosts/qt"};

bool IsStandardHeader(std::string_view name) {
    static const std::set<std::string_view> headers{"algorithm",
                                                    "any",
                                                    "array",
                                                    "atomic",
                                                    "barrier",
                                                    "bit",
                                                    "bitset",
                                                    "cassert",
                                                    "cctype",
                                                    "cerrno",
                                                    "cfenv",
                                                    "cfloat",
                                                    "charconv",
                                                    "chrono",
                                                    "cinttypes",
                                                    "climits",
                                                    "clocale",
                                                    "cmath",
                                                    "codecvt",
                                                    "compare",
                                                    "complex",
                                                    "concepts",
                                                    "condition_variable",
                                                    "coroutine",
                                                    "csetjmp",
                                                    "csignal",
                                                    "cstdarg",
                                                    "cstddef",
                                                    "cstdint",
                                                    "cstdio",
                                                    "cstdlib",
                                                    "cstring",
                                                    "ctime",
                                                    "cuchar",
                                                    "cwchar",
                                                    "cwctype",
                                                    "deque",
                                                    "exception",
                                                    "execution",
                                                    "filesystem",
                                                    "format",
                                                    "forward_list",
                                                    "fstream",
                                                    "functional",
                                                    "future",
                                                    "initializer_list",
                                                    "iomanip",
                                                    "ios",
                                                    "iosfwd",
                                                    "iostream",
                                                    "istream",
                                                    "iterator",
                                                    "latch",
                                                    "limits",
                                                    "list",
                                                    "locale",
                                                    "map",
                                                    "memory",
                                                    "memory_resource",
                                                    "mutex",
                                                    "new",
                                                    "numbers",
                                                    "numeric",
                                                    "optional",
                                                    "ostream",
                                                    "queue",
                                                    "random",
                                                    "ranges",
                                                    "ratio",
                                                    "regex",
                                                    "scoped_allocator",
                                                    "semaphore",
                                                    "set",
                                                    "shared_mutex",
                                                    "source_location",
                                                    "span",
                                                    "sstream",
                                                    "stack",
                                                    "stdexcept",
                                                    "stop_token",
                                                    "streambuf",
                                                    "string",
                                                    "string_view",
                                                    "strstream",
                                                    "syncstream",
                                                    "system_error",
                                                    "thread",
                                                    "tuple",
                                                    "type_traits",
                                                    "typeindex",
                                                    "typeinfo",
                                                    "unordered_map",
                                                    "unordered_set",
                                                    "utility",
                                                    "valarray",
                                                    "variant",
                                                    "vector",
                                                    "version"};
    return headers.contains(name);
}

struct Include {
    const SourceFile* file = nullptr;
    std::size_t line = 0;
    std::string_view name;  // empty for a name that only the preprocessor knows
    bool angled = false;
    std::string target;  // the included file's path in the tree, empty outside of it

    std::string At(const std::string& message) const {
        return file->path + ":" + std::to_string(line) + ": " + message;
    }
};

std::string_view TrimmedLeft(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

// The text behind "#include", in any spacing.
std::optional<std::string_view> IncludeText(std::string_view line) {
    line = TrimmedLeft(line);
    if (!line.starts_with('#')) return {};
    line = TrimmedLeft(line.substr(1));
    constexpr std::string_view word = "include";
    if (!line.starts_with(word)) return {};
    return TrimmedLeft(line.substr(word.size()));
}

bool Has(const SourceTree& tree, const std::string& path) {
    return std::any_of(tree.begin(), tree.end(),
                       [&](const SourceFile& file) { return file.path == path; });
}

std::string Resolve(const SourceTree& tree, const SourceFile& file, std::string_view name) {
    for (const std::string_view folder :
         {FolderOf(file.path), std::string_view("src"), std::string_view("tests")}) {
        const std::filesystem::path path = std::filesystem::path(folder) / name;
        std::string normal = path.lexically_normal().generic_string();
        if (Has(tree, normal)) return normal;
    }
    return {};
}

std::vector<Include> IncludesOf(const SourceTree& tree, const SourceFile& file) {
    std::vector<Include> includes;
    std::size_t number = 0;
    for (const std::string_view line : LinesOf(file)) {
        ++number;
        const auto text = IncludeText(line);
        if (!text) continue;
        Include include{&file, number, {}, text->starts_with('<'), {}};
        const char closing = include.angled ? '>' : '"';
        const std::size_t end = text->find(closing, 1);
        const bool plain = include.angled || text->starts_with('"');
        if (plain && end != std::string_view::npos) include.name = text->substr(1, end - 1);
        include.target = Resolve(tree, file, include.name);
        includes.push_back(include);
    }
    return includes;
}

// Every include of the code that is wanted.
template <typename Wanted>
std::vector<Include> Includes(const SourceTree& tree, Wanted wanted) {
    std::vector<Include> all;
    for (const SourceFile& file : tree) {
        if (!IsCode(file.path) || !wanted(file.path)) continue;
        const auto some = IncludesOf(tree, file);
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

// The folder of src that counts as one: a room, or one host.
std::string FolderNode(std::string_view path) {
    for (const std::string_view host : hosts) {
        if (IsBelow(path, host)) return std::string(host.substr(4));
    }
    const std::string_view inside = path.substr(std::min<std::size_t>(4, path.size()));
    return std::string(inside.substr(0, inside.find('/')));
}

bool IsHost(std::string_view path) {
    return std::any_of(hosts.begin(), hosts.end(),
                       [&](std::string_view host) { return IsBelow(path, host); });
}

// Headers of an instruction set, each for the files that the target picks by that set.
bool IsInstructionSetOf(std::string_view path, std::string_view header) {
    const bool needsSse2 =
        path == "src/png/filters_sse2.cpp" || path == "src/library/letter_pair_sse2.cpp";
    return needsSse2 && header == "emmintrin.h";
}

bool MayLeaveTheLanguage(std::string_view path) {
    return IsBelow(path, "src/view") || IsBelow(path, "src/app") || IsHost(path);
}

}  // namespace

Findings ForeignIncludes(const SourceTree& tree) {
    Findings findings;
    const auto logic = [](std::string_view path) {
        return IsBelow(path, "src") && !MayLeaveTheLanguage(path);
    };
    for (const Include& include : Includes(tree, logic)) {
        const std::string name(include.name);
        if (name.empty()) {
            findings.push_back(include.At("includes what is not written out"));
        } else if (include.angled && !IsStandardHeader(name) &&
                   !IsInstructionSetOf(include.file->path, name)) {
            findings.push_back(include.At("<" + name + "> is not of the C++ standard library"));
        } else if (!include.angled && !IsBelow(include.target, "src")) {
            findings.push_back(include.At("\"" + name + "\" is not in src"));
        }
    }
    return findings;
}

Findings ForbiddenNeighbours(const SourceTree& tree) {
    static const std::map<std::string, std::set<std::string>> allowed{
        {"forms", {"forms"}},
        {"png", {"png"}},
        {"text", {"text"}},
        {"platform", {"platform", "text"}},
        {"view", {"view", "forms"}},
        {"hosts", {"hosts", "text", "platform"}},
        {"hosts/linux", {"hosts/linux", "hosts", "text", "platform"}},
        {"hosts/windows", {"hosts/windows", "hosts", "text", "platform"}},
        {"hosts/qt", {"hosts/qt", "text", "platform"}}};
    Findings findings;
    for (const Include& include :
         Includes(tree, [](std::string_view path) { return IsBelow(path, "src"); })) {
        const auto rule = allowed.find(FolderNode(include.file->path));
        if (rule == allowed.end() || include.target.empty()) continue;
        const bool inSource = IsBelow(include.target, "src");
        if (inSource && rule->second.contains(FolderNode(include.target))) continue;
        findings.push_back(include.At(rule->first + " must not include " + include.target));
    }
    return findings;
}

Findings PickedHosts(const SourceTree& tree) {
    Findings findings;
    const auto others = [](std::string_view path) {
        return IsBelow(path, "src") && !IsBelow(path, "src/app");
    };
    for (const Include& include : Includes(tree, others)) {
        if (!IsBelow(include.target, "src/hosts")) continue;
        if (IsHost(include.file->path) && FolderNode(include.target) == "hosts") continue;
        if (FolderNode(include.target) == FolderNode(include.file->path)) continue;
        findings.push_back(include.At("only app, tests and bench may include " + include.target));
    }
    return findings;
}

namespace {

// From folder to folder, with one include as the proof.
using Steps = std::map<std::string, std::map<std::string, std::string>>;

Steps StepsOf(const SourceTree& tree) {
    Steps steps;
    for (const Include& include :
         Includes(tree, [](std::string_view path) { return IsBelow(path, "src"); })) {
        if (!IsBelow(include.target, "src")) continue;
        const std::string from = FolderNode(include.file->path), to = FolderNode(include.target);
        if (from != to) steps[from].try_emplace(to, include.At("includes " + include.target));
    }
    return steps;
}

// The folders of the shortest way from the folder back to itself. Empty: there is none.
std::vector<std::string> WayBack(const Steps& steps, const std::string& start) {
    std::map<std::string, std::string> cameFrom;
    std::deque<std::string> open{start};
    while (!open.empty()) {
        const std::string folder = open.front();
        open.pop_front();
        const auto next = steps.find(folder);
        if (next == steps.end()) continue;
        for (const auto& [to, proof] : next->second) {
            if (!cameFrom.try_emplace(to, folder).second) continue;
            open.push_back(to);
        }
    }
    if (!cameFrom.contains(start)) return {};
    std::vector<std::string> way{start};
    do {
        way.push_back(cameFrom[way.back()]);
    } while (way.back() != start);
    std::reverse(way.begin(), way.end());
    return way;
}

}  // namespace

Findings Circles(const SourceTree& tree) {
    const Steps steps = StepsOf(tree);
    Findings findings;
    std::set<std::string> reported;
    for (const auto& [folder, targets] : steps) {
        if (reported.contains(folder)) continue;
        const std::vector<std::string> way = WayBack(steps, folder);
        if (way.empty()) continue;
        std::string circle = "circle: " + way.front();
        std::string proofs;
        for (std::size_t i = 1; i < way.size(); ++i) {
            circle += " -> " + way[i];
            proofs += "\n  " + steps.at(way[i - 1]).at(way[i]);
            reported.insert(way[i]);
        }
        findings.push_back(circle + proofs);
    }
    return findings;
}

std::vector<std::string> ListedRooms(const SourceTree& tree) {
    constexpr std::string_view start = "    src/";
    std::vector<std::string> rooms;
    for (const SourceFile& file : tree) {
        if (file.path != "docs/tree.md") continue;
        for (const std::string_view line : LinesOf(file)) {
            if (!line.starts_with(start)) continue;
            const std::string_view rest = line.substr(start.size());
            rooms.emplace_back(rest.substr(0, rest.find('/')));
        }
    }
    return rooms;
}

namespace {

std::string RoomOf(std::string_view path) {
    const std::string node = FolderNode(path);
    return node.substr(0, node.find('/'));
}

}  // namespace

Findings OutOfOrder(const SourceTree& tree) {
    std::map<std::string, std::size_t> places;
    for (const std::string& room : ListedRooms(tree))
        places.try_emplace(room, places.size());
    Findings findings;
    const auto inSource = [](std::string_view path) { return IsBelow(path, "src"); };
    std::set<std::string> present;
    for (const SourceFile& file : tree) {
        if (inSource(file.path) && IsCode(file.path)) present.insert(RoomOf(file.path));
    }
    for (const auto& [room, place] : places) {
        if (!present.contains(room)) findings.push_back("docs/tree.md lists src/" + room + "/");
    }
    for (const std::string& room : present) {
        if (!places.contains(room)) findings.push_back("docs/tree.md lacks src/" + room + "/");
    }
    for (const Include& include : Includes(tree, inSource)) {
        if (!inSource(include.target)) continue;
        const auto from = places.find(RoomOf(include.file->path));
        const auto to = places.find(RoomOf(include.target));
        if (from == places.end() || to == places.end() || to->second <= from->second) continue;
        findings.push_back(include.At(from->first + " stands above " + include.target));
    }
    return findings;
}

}  // namespace kivu::tree
