#pragma once

#include <string>
#include <string_view>

// What the file dialog makes of paths and names that are given to it or typed into it. Text alone,
// no disk is touched; `posix` tells the hosts apart.
namespace kivu::support {

// "*" or "?", but for the one in the prefix "\\?\".
[[nodiscard]] bool HasWildcard(std::string_view text);

// A share of another machine. On a POSIX host "//x" is a plain path.
[[nodiscard]] bool IsNetworkPath(std::string_view text, bool posix);

// The directory with its own separator at the end. Quotes are plain signs, which names may hold on
// a POSIX host.
[[nodiscard]] std::string WithSeparator(std::string_view directory);

// The directory's path, its separator and the name.
[[nodiscard]] std::string JoinedPath(std::string_view directory, std::string_view name);

// The directory that a path of a file leads into, with its separator.
[[nodiscard]] std::string_view DirectoryPart(std::string_view path);

// Without empty elements and ".", and without "..", which leads up as far as something is above.
[[nodiscard]] std::string WithoutDots(const std::string& path, bool posix);

// Where a typed text leads from.
struct TypedFrom {
    std::string directory;
    std::string home;  // for "~"; empty: there is none
    bool posix = true;
};
// The whole path that a user means by what was typed or pasted: blanks and quotes around it, "~/"
// and a lone name are resolved, and of several lines the first is meant. Empty: nothing was typed.
[[nodiscard]] std::string PathTyped(std::string_view typed, const TypedFrom& from);

// The files to list for a mask: programs have no ending of their own on a POSIX host.
[[nodiscard]] std::string PatternOf(const std::string& mask, bool posix);

// The window's title with the mask behind it.
[[nodiscard]] std::string CaptionWithMask(const std::string& caption, const std::string& mask);

}  // namespace kivu::support
