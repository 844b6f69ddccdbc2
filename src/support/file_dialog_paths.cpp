#include "support/file_dialog_paths.h"

#include <algorithm>
#include <vector>

#include "text/paths.h"
#include "text/text.h"

namespace kivu::support {

namespace {

constexpr std::string_view longPathPrefix = "\\\\?\\";

bool IsSeparator(char c) {
    return c == '/' || c == '\\';
}

bool HasDrive(std::string_view path) {
    return path.size() >= 2 && path[1] == ':';
}

bool IsHome(std::string_view path) {
    return path == "~" || path.starts_with("~/") || path.starts_with("~\\");
}

// Windows takes either separator; a path with both is written with its own.
std::string WithOneSeparator(std::string path) {
    if (path.find('\\') != std::string::npos) std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

// The first line that holds anything: what is copied from a terminal ends in a line break.
std::string_view FirstLine(std::string_view typed) {
    typed.remove_prefix(std::min(typed.find_first_not_of("\r\n"), typed.size()));
    return typed.substr(0, typed.find_first_of("\r\n"));
}

// "\\nas\roms" of all that lies on it.
std::string_view ShareOf(std::string_view directory) {
    const std::size_t machine = directory.find_first_of("/\\", 2);
    if (machine == std::string_view::npos) return directory;
    return directory.substr(0, directory.find_first_of("/\\", machine + 1));
}

std::string WindowsPath(std::string path, const std::string& directory) {
    path = WithOneSeparator(std::move(path));
    if (IsNetworkPath(path, false)) return path;
    if (HasDrive(path)) {
        // "C:" and "C:name" mean the drive's root here: it has no directory of its own.
        if (path.size() == 2 || !IsSeparator(path[2])) path.insert(2, 1, '\\');
        return path;
    }
    if (IsSeparator(path.front())) {
        if (IsNetworkPath(directory, false)) return std::string(ShareOf(directory)) + path;
        return HasDrive(directory) ? path.insert(0, directory, 0, 2) : path;
    }
    return WithOneSeparator(JoinedPath(directory, path));
}

// The part in front of the first element, which no ".." leads above.
std::size_t RootLength(const std::string& path, bool posix) {
    std::size_t length = !posix && HasDrive(path) ? 2 : 0;
    while (length < path.size() && (path[length] == '/' || (!posix && path[length] == '\\')))
        ++length;
    return length;
}

}  // namespace

bool HasWildcard(std::string_view text) {
    if (text.starts_with(longPathPrefix)) text.remove_prefix(longPathPrefix.size());
    return text.find_first_of("*?") != std::string_view::npos;
}

bool IsNetworkPath(std::string_view text, bool posix) {
    return text.starts_with("\\\\") || (!posix && text.starts_with("//"));
}

std::string WithSeparator(std::string_view directory) {
    std::string path(directory);
    const bool windows = !path.starts_with('/') && path.find('\\') != std::string::npos;
    const char separator = windows ? '\\' : '/';
    if (!path.empty() && !path.ends_with(separator)) path += separator;
    return path;
}

std::string JoinedPath(std::string_view directory, std::string_view name) {
    std::string path = WithSeparator(directory);
    path += name;
    return path;
}

std::string_view DirectoryPart(std::string_view path) {
    return path.substr(0, path.size() - text::FileNameView(path).size());
}

std::string WithoutDots(const std::string& path, bool posix) {
    const std::size_t root = RootLength(path, posix);
    std::vector<std::string> kept;
    bool odd = false;
    char separator = '/';
    for (std::size_t begin = root; begin < path.size();) {
        std::size_t end = begin;
        while (end < path.size() && path[end] != '/' && (posix || path[end] != '\\'))
            ++end;
        if (end < path.size()) separator = path[end];
        const std::string element = path.substr(begin, end - begin);
        begin = end + 1;
        const bool up = element == "..";
        odd = odd || up || element == "." || element.empty();
        if (up && !kept.empty()) kept.pop_back();
        if (!up && element != "." && !element.empty()) kept.push_back(element);
    }
    // As it is: it may end in a separator.
    if (!odd) return path;
    std::string result = path.substr(0, root);
    for (std::size_t i = 0; i < kept.size(); ++i)
        result += (i == 0 ? std::string() : std::string(1, separator)) + kept[i];
    return result;
}

std::string PathTyped(std::string_view typed, const TypedFrom& from) {
    std::string path(text::Trim(text::WithoutQuotes(FirstLine(typed))));
    if (path.empty()) return path;
    if (IsHome(path) && !from.home.empty()) {
        const std::string_view rest = std::string_view(path).substr(1);
        path = rest.size() <= 1 ? from.home : JoinedPath(from.home, rest.substr(1));
    }
    if (!from.posix) {
        path = WindowsPath(std::move(path), from.directory);
    } else if (!path.starts_with('/') && !IsNetworkPath(path, true)) {
        path = JoinedPath(from.directory, path);
    }
    return WithoutDots(path, from.posix);
}

std::string PatternOf(const std::string& mask, bool posix) {
    const bool program = posix && text::ToLower(mask).ends_with(".exe");
    return mask.empty() || program ? "*.*" : mask;
}

std::string CaptionWithMask(const std::string& caption, const std::string& mask) {
    return mask.empty() ? caption : caption + "    (\"" + mask + "\")";
}

}  // namespace kivu::support
