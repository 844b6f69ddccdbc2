#pragma once

#include <string>
#include <string_view>

namespace kivu::hosts {

// Between the launcher's text and the UTF-16 of the system's calls. Neither fails, and a NUL is a
// character like any other. A lone surrogate, which Windows allows in a file name, becomes the
// three bytes that UTF-8 would give it and comes back from them, so that every name survives the
// way there and back.

// Bytes that are not UTF-8 count as their Windows-1252 characters.
std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);

}  // namespace kivu::hosts
