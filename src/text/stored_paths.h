#pragma once

#include <string>
#include <string_view>

#include "text/paths.h"

// Paths as they are kept in profiles and caches: relative to a base, the program's directory, so
// that a collection moves with the program. A base that begins with "/" follows the POSIX rule, any
// other the Windows rule. Give the base without a closing separator: under the Windows rule one
// counts as a level of its own.
namespace kivu::text {

// Windows rule: cut by characters and not by path elements, without regard to case; the last
// character of `fullPath` is never compared. So two directories that only begin alike do not come
// back, and the base itself gives its last letter. Where nothing is in common `fullPath` comes
// back, without a closing separator.
//
// POSIX rule: cut at whole path elements, with regard to case. What is below the base begins with
// "/", the base itself is "/", everything else begins with "../", and MakeAbsolutePath gives each
// absolute path back, but for one closing "/". A path without a leading "/" stays as it is.
[[nodiscard]] std::string MakeRelativePath(std::string_view base, std::string_view fullPath);

// The path that `path` means below `base`; one that holds a drive comes back as it is. The empty
// text gives the base, under the Windows rule with a "\" behind it.
//
// POSIX rule: leading "../" go up, never above the root; a path that begins with "\" or "..\" was
// written on Windows and has its "\" turned first.
[[nodiscard]] std::string MakeAbsolutePath(std::string_view base, std::string_view path);

// MakeAbsolutePath for what a profile or a cache holds, on whichever host it was written. Under the
// Windows rule each "/" is turned first, since no name there has one, and a network share
// ("\\server\share\...") comes back as it is: it is how MakeRelativePath leaves one.
[[nodiscard]] std::string StoredPath(std::string_view base, std::string_view text);

// What a cache or a list of favourites keeps of an absolute path: MakeRelativePath, or the path as
// it stands where the Windows rule has cut it so that StoredPath would not lead back to the file.
[[nodiscard]] std::string PathToStore(std::string_view base, std::string_view fullPath);

// StoredPath for a profile field that the user may have written by hand: a path from the root that
// exists as it stands, and does not below the base, is taken as it stands. `exists` is asked for
// files and directories, and only about a text that begins with "/" under the POSIX rule.
[[nodiscard]] std::string ProfilePath(std::string_view base, std::string_view text,
                                      const PathTest& exists);

}  // namespace kivu::text
