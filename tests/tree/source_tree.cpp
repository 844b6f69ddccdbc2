#include "tree/source_tree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace kivu::tree {

namespace fs = std::filesystem;

namespace {

// Directories at the top that hold nothing of the source.
bool IsForeign(const std::string& path) {
    return path == ".git" || path == ".cache" || path == "build" || path == "tour";
}

bool IsText(const std::string& text) {
    return text.find('\0') == std::string::npos;
}

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

SourceTree ReadTree(const std::string& directory) {
    SourceTree tree;
    std::error_code error;
    const fs::path root(directory);
    for (fs::recursive_directory_iterator entry(root, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = entry->path().lexically_relative(root).generic_string();
        if (IsForeign(path)) entry.disable_recursion_pending();
        std::error_code gone;
        if (!entry->is_regular_file(gone) || gone) continue;
        std::string text = ReadFile(entry->path());
        if (IsText(text)) tree.push_back({path, std::move(text)});
    }
    std::sort(tree.begin(), tree.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return tree;
}

std::vector<std::string_view> LinesOf(const SourceFile& file) {
    std::vector<std::string_view> lines;
    std::string_view rest = file.text;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        std::string_view line = rest.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        if (end == std::string_view::npos) break;
        rest.remove_prefix(end + 1);
    }
    return lines;
}

bool IsBelow(std::string_view path, std::string_view folder) {
    return path.size() > folder.size() && path.starts_with(folder) && path[folder.size()] == '/';
}

std::string_view FolderOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : path.substr(0, slash);
}

bool IsHeader(std::string_view path) {
    return path.ends_with(".h");
}

bool IsCode(std::string_view path) {
    return IsHeader(path) || path.ends_with(".cpp");
}

std::string Joined(const Findings& findings) {
    std::string text;
    for (const std::string& finding : findings)
        text += finding + "\n";
    return text;
}

}  // namespace kivu::tree
