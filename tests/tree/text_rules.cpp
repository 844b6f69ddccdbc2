#include "tree/text_rules.h"

#include <algorithm>
#include <regex>

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

Findings UnreadableReferences(const SourceTree& tree) {
    static const std::regex words(
        R"(\b[Ss]pec(s|ification)?\b|\bPart(s)? [1-8]\.[1-8]\b|\bspec\.md\b)");
    static const std::regex names(R"((^|[/_.-])[s]pec([/_.-]|$))", std::regex::icase);
    Findings findings;
    for (const SourceFile& file : tree) {
        if (std::regex_search(file.path, names)) findings.push_back(file.path + ": its name");
        std::size_t number = 0;
        for (const std::string_view line : LinesOf(file)) {
            ++number;
            // The pattern is slow, and hardly a line has its letters.
            const bool candidate = line.find("pec") != std::string_view::npos ||
                                   line.find("Part") != std::string_view::npos;
            if (!candidate || !std::regex_search(line.begin(), line.end(), words)) continue;
            findings.push_back(file.path + ":" + std::to_string(number) + ": " +
                               std::string(line.substr(0, 120)));
        }
    }
    return findings;
}

}  // namespace kivu::tree
