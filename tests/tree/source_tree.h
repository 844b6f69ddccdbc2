#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kivu::tree {

struct SourceFile {
    std::string path;  // from the tree's root, with "/"
    std::string text;
};

// Sorted by path.
using SourceTree = std::vector<SourceFile>;

// What a check has found, a line each: "path:line: what is wrong". Empty: nothing.
using Findings = std::vector<std::string>;

// Every text file below the directory, without what git keeps and what builds leave. Files that
// hold a NUL byte are no text.
SourceTree ReadTree(const std::string& directory);

// The file's lines without their ends.
std::vector<std::string_view> LinesOf(const SourceFile& file);

// The file lies below the folder, at any depth.
bool IsBelow(std::string_view path, std::string_view folder);

// "src/platform" of "src/platform/clock.h".
std::string_view FolderOf(std::string_view path);

bool IsHeader(std::string_view path);
// C++ of any kind: .h, .cpp.
bool IsCode(std::string_view path);

// One finding a line, for a test's message.
std::string Joined(const Findings& findings);

}  // namespace kivu::tree
