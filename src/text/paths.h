#pragma once

#include <functional>
#include <string>
#include <string_view>

// Path operations on text alone; no disk is touched. A path's own separator decides: "\" where it
// holds one, else "/". In a path that begins with "/", behind an opening quote or not, only "/"
// separates, and "\" is part of a name.
namespace kivu::text {

// The text behind the last separator; a path without one whole. The view is into `path`, for loops
// over many rows.
[[nodiscard]] std::string_view FileNameView(std::string_view path);
[[nodiscard]] std::string GetFileNameOnly(std::string_view path);

// The last element, file or directory, without a separator behind it. "C:" and "C:\" give "C". A
// last element that ends in "." is passed over, and the one before it is the answer. Empty: there
// is none.
[[nodiscard]] std::string GetLastPathElement(std::string_view path);

// The path without its last element, its separator kept: "C:\a\b\" and "C:\a\b" give "C:\a\". A
// root is its own parent; a lone name has none and gives the empty text.
[[nodiscard]] std::string GetParentPath(std::string_view path);

using PathTest = std::function<bool(const std::string&)>;

// A path for which `isDirectory` holds comes back as it is; of any other, everything up to and with
// the last separator, trimmed. Empty: the path is empty or holds no separator.
[[nodiscard]] std::string GetFilePath(std::string_view path, const PathTest& isDirectory);

// The path with its separator at the end, inside of a closing quote; a path without any separator
// as it is.
[[nodiscard]] std::string AddPathSeparator(std::string_view path);

// Trimmed, and without one enclosing pair of double quotes. The view is into `text`.
[[nodiscard]] std::string_view WithoutQuotes(std::string_view text);
[[nodiscard]] std::string RemoveQuotes(std::string_view text);

// Trimmed; in double quotes where it holds a blank and no double quote. The empty text stays empty.
[[nodiscard]] std::string QuoteIfNeeded(std::string_view text);

// The form that a directory scan starts from: without blanks and quotes around it, a separator at
// its end; "/" where the path holds one, else "\".
[[nodiscard]] std::string PreParePath(std::string_view path);

}  // namespace kivu::text
