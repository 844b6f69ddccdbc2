#include "tree/text_rules.h"

#include <algorithm>

namespace kivu::tree {

namespace {

bool IsWrittenByHand(std::string_view path) {
    const bool ours = IsBelow(path, "src") || IsBelow(path, "tests") || IsBelow(path, "bench");
    const bool script = path.ends_with(".py") || path.ends_with(".sh") || path.ends_with(".cmake");
    return ours && (IsCode(path) || script || path.ends_with("/CMakeLists.txt"));
}

std::string_view FirstDirective(const SourceFile& file) {
    for (const std::string_view line : LinesOf(file)) {
        if (line.starts_with('#')) return line;
    }
    return {};
}

}  // namespace

Findings LongFiles(const SourceTree& tree, const std::vector<std::string>& generated) {
    Findings findings;
    for (const SourceFile& file : tree) {
        const bool table =
            std::find(generated.begin(), generated.end(), file.path) != generated.end();
        const std::size_t lines = LinesOf(file).size();
        if (table || !IsWrittenByHand(file.path) || lines <= mostLines) continue;
        findings.push_back(file.path + ": " + std::to_string(lines) + " lines");
    }
    for (const std::string& name : generated) {
        const bool there = std::any_of(tree.begin(), tree.end(),
                                       [&](const SourceFile& file) { return file.path == name; });
        if (!there) findings.push_back(name + ": no such file");
    }
    return findings;
}

Findings UnguardedHeaders(const SourceTree& tree) {
    Findings findings;
    for (const SourceFile& file : tree) {
        if (!IsHeader(file.path) || !IsWrittenByHand(file.path)) continue;
        if (FirstDirective(file) != "#pragma once") findings.push_back(file.path);
    }
    return findings;
}

namespace {

bool IsWordByte(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// What stands from the place on is one of the words, and the word ends there.
bool EndsAfterOneOf(std::string_view rest, const std::vector<std::string_view>& words) {
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) {
        return rest.starts_with(word) &&
               (rest.size() == word.size() || !IsWordByte(rest[word.size()]));
    });
}

bool Decides(std::string_view line) {
    line = line.substr(0, line.find("//"));
    for (std::size_t i = 0; i < line.size(); ++i) {
        const std::string_view rest = line.substr(i);
        if (rest[0] == '?' || rest.starts_with("&&") || rest.starts_with("||") ||
            rest.starts_with("return !"))
            return true;
        if (i > 0 && IsWordByte(line[i - 1])) continue;
        if (EndsAfterOneOf(rest, {"if", "else", "while", "switch"})) return true;
    }
    return false;
}

bool IsChapter(std::string_view rest) {
    const auto digit = [](char c) { return c >= '1' && c <= '8'; };
    if (rest.starts_with('s')) rest.remove_prefix(1);
    return rest.size() >= 4 && rest[0] == ' ' && digit(rest[1]) && rest[2] == '.' &&
           digit(rest[3]) && (rest.size() == 4 || !IsWordByte(rest[4]));
}

bool Mentions(std::string_view line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (i > 0 && IsWordByte(line[i - 1])) continue;
        const std::string_view rest = line.substr(i);
        const bool paper = (rest[0] == 'S' || rest[0] == 's') &&
                           EndsAfterOneOf(rest.substr(1), {"pec", "pecs", "pecification"});
        if (paper || (rest.starts_with("Part") && IsChapter(rest.substr(4)))) return true;
    }
    return false;
}

// Words of a file name end at "_" too.
bool NameMentions(std::string path) {
    std::replace(path.begin(), path.end(), '_', ' ');
    return Mentions(path);
}

}  // namespace

Findings DecidingJoins(const SourceTree& tree) {
    Findings findings;
    for (const SourceFile& file : tree) {
        if (!file.path.starts_with("src/wiring/join_")) continue;
        std::size_t number = 0;
        for (const std::string_view line : LinesOf(file)) {
            ++number;
            if (Decides(line)) findings.push_back(file.path + ":" + std::to_string(number));
        }
    }
    return findings;
}

Findings UnreadableReferences(const SourceTree& tree) {
    Findings findings;
    for (const SourceFile& file : tree) {
        if (NameMentions(file.path)) findings.push_back(file.path + ": its name");
        std::size_t number = 0;
        for (const std::string_view line : LinesOf(file)) {
            ++number;
            if (!Mentions(line)) continue;
            findings.push_back(file.path + ":" + std::to_string(number) + ": " +
                               std::string(line.substr(0, 120)));
        }
    }
    return findings;
}

}  // namespace kivu::tree
