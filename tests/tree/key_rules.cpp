#include "tree/key_rules.h"

#include <algorithm>
#include <map>
#include <set>

namespace kivu::tree {

namespace {

struct KeyEntry {
    std::string identifier;
    std::string owner;
};

bool IsWordByte(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string_view TextOf(const SourceTree& tree, std::string_view path) {
    const auto file = std::find_if(tree.begin(), tree.end(),
                                   [&](const SourceFile& each) { return each.path == path; });
    return file == tree.end() ? std::string_view() : std::string_view(file->text);
}

std::string_view WordAt(std::string_view text, std::size_t place) {
    std::size_t end = place;
    while (end < text.size() && IsWordByte(text[end]))
        ++end;
    return text.substr(place, end - place);
}

// Whether the word stands behind the mark somewhere in the text.
bool HasWordBehind(std::string_view text, std::string_view mark, std::string_view word) {
    for (std::size_t at = text.find(mark); at != std::string_view::npos;
         at = text.find(mark, at + mark.size())) {
        if (WordAt(text, at + mark.size()) == word) return true;
    }
    return false;
}

std::vector<std::string> Literals(std::string_view text) {
    std::vector<std::string> literals;
    for (std::size_t at = text.find('"'); at != std::string_view::npos; at = text.find('"', at)) {
        const std::size_t end = text.find('"', at + 1);
        if (end == std::string_view::npos) break;
        literals.emplace_back(text.substr(at + 1, end - at - 1));
        at = end + 1;
    }
    return literals;
}

// What stands between the place and the end of its statement.
std::string_view Statement(std::string_view text, std::size_t place) {
    return text.substr(place, text.find(';', place) - place);
}

constexpr std::string_view declaration = "inline constexpr ";

// Owners that several entries share have a name: "constexpr std::string_view NAME = "...";".
std::map<std::string, std::string> NamedOwners(std::string_view table) {
    std::map<std::string, std::string> owners;
    const std::string start = std::string(declaration) + "std::string_view ";
    for (std::size_t at = table.find(start); at != std::string_view::npos;
         at = table.find(start, at + 1)) {
        const std::string_view name = WordAt(table, at + start.size());
        const auto literals = Literals(Statement(table, at));
        if (!literals.empty()) owners[std::string(name)] = literals.front();
    }
    return owners;
}

std::string OwnerIn(std::string_view statement, const std::map<std::string, std::string>& named) {
    for (const auto& [name, owner] : named) {
        if (HasWordBehind(statement, " ", name)) return owner;
    }
    const auto literals = Literals(statement);
    return literals.empty() ? std::string() : literals.back();
}

std::vector<KeyEntry> Entries(std::string_view table) {
    static const std::set<std::string_view> kinds{"Text", "Number", "Wide", "Present",
                                                  "PresentText"};
    const auto named = NamedOwners(table);
    std::vector<KeyEntry> entries;
    for (std::size_t at = table.find(declaration); at != std::string_view::npos;
         at = table.find(declaration, at + 1)) {
        const std::size_t kindAt = at + declaration.size();
        const std::string_view kind = WordAt(table, kindAt);
        const std::string_view statement = Statement(table, at);
        std::size_t nameAt = kindAt + kind.size() + 1;
        if (statement.substr(declaration.size()).starts_with("std::array<")) {
            nameAt = table.find("> ", at) + 2;
        } else if (!kinds.contains(kind)) {
            continue;
        }
        entries.push_back({std::string(WordAt(table, nameAt)), OwnerIn(statement, named)});
    }
    return entries;
}

// The names in the profiles: the literals behind the profile of an entry.
std::set<std::string> Names(std::string_view table) {
    std::set<std::string> names;
    for (const std::string_view profile : {"program, \"", "emulator, \"", "skin, \""}) {
        for (std::size_t at = table.find(profile); at != std::string_view::npos;
             at = table.find(profile, at + 1)) {
            names.emplace(WordAt(table, at + profile.size()));
        }
    }
    return names;
}

bool ReadsByTheTable(const SourceFile& file) {
    return IsCode(file.path) && IsBelow(file.path, "src") && !IsBelow(file.path, "src/profile");
}

}  // namespace

Findings KeysPastTheTable(const SourceTree& tree) {
    const std::set<std::string> names = Names(TextOf(tree, keyTable));
    Findings findings;
    for (const SourceFile& file : tree) {
        if (!ReadsByTheTable(file)) continue;
        std::size_t number = 0;
        for (const std::string_view line : LinesOf(file)) {
            const std::string place = file.path + ":" + std::to_string(++number) + ": ";
            if (line.substr(std::min(line.find_first_not_of(' '), line.size())).starts_with("//"))
                continue;
            for (const std::string& literal : Literals(line)) {
                if (names.contains(literal)) findings.push_back(place + literal);
            }
            if (IsBelow(file.path, "src/favourites")) continue;
            for (const std::string_view call :
                 {"ReadIniValue(", "ReadIniNumber(", "ReadIniWide(", "ReadIniBytes(",
                  "WriteIniValue(", "\"Settings\""}) {
                if (line.find(call) != std::string_view::npos)
                    findings.push_back(place + std::string(call));
            }
        }
    }
    return findings;
}

Findings KeysOffTheList(const SourceTree& tree) {
    const std::string_view list = TextOf(tree, keyList);
    Findings findings;
    for (const KeyEntry& entry : Entries(TextOf(tree, keyTable))) {
        const bool listed = HasWordBehind(list, "&", entry.identifier) ||
                            HasWordBehind(list, " : ", entry.identifier);
        if (!listed) findings.push_back(std::string(keyTable) + ": " + entry.identifier);
    }
    return findings;
}

Findings KeysWithoutTheirOwner(const SourceTree& tree) {
    constexpr std::string_view toCome = "to come: ";
    constexpr std::string_view mark = "keys::";
    Findings findings;
    for (const KeyEntry& entry : Entries(TextOf(tree, keyTable))) {
        const std::string line = std::string(keyTable) + ": " + entry.identifier + ": ";
        if (!entry.owner.starts_with(toCome)) {
            const std::string path = "src/" + entry.owner + ".cpp";
            if (!HasWordBehind(TextOf(tree, path), mark, entry.identifier))
                findings.push_back(line + path + " does not use it");
            continue;
        }
        for (const SourceFile& file : tree) {
            if (!ReadsByTheTable(file) || !HasWordBehind(file.text, mark, entry.identifier))
                continue;
            findings.push_back(line + "its owner has come: " + file.path);
        }
    }
    return findings;
}

}  // namespace kivu::tree
