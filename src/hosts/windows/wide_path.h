#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kivu::hosts {

// The path as the calls take it: absolute and behind "\\?\", which lifts the limit of 260
// characters and lets every name stand for itself: no "CON" in it is a device, and a dot or a blank
// at its end belongs to it. "/" counts as "\", "." and ".." are worked out on the text, and a
// closing separator is dropped. Relative paths start at the current directory, "C:name" at that of
// its drive.
//
// Empty optional: the text is no path of a file or directory. It is empty, holds a character that
// no name has (control characters, quotes, wildcards, "<", ">", "|", a ":" behind the drive's), or
// leads to devices or pipes ("\\.\", "\\server\pipe").
std::optional<std::wstring> SystemPath(std::string_view path);

// What SystemPath put in front taken away again: "C:\..." or "\\server\share\...".
std::wstring WithoutPrefix(std::wstring_view systemPath);

// The path names a directory by its form alone.
bool EndsInSeparator(std::string_view path);

// The last name is one that many programs take for a device, with or without an ending: a file of
// that name would be out of their reach.
bool EndsInDeviceName(std::wstring_view systemPath);

}  // namespace kivu::hosts
