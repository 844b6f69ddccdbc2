#pragma once

#include <string>
#include <string_view>

namespace kivu::hosts {

// 8-bit text in a Windows code page, such as 1252, 932 or 65001 (UTF-8). The unknown code page
// reads and writes Windows-1252.

// Bytes that the code page does not know become what the system makes of them; where the code page
// is UTF-8, a text that is not UTF-8 counts as Windows-1252 as a whole.
std::string DecodeFromCodePage(std::string_view bytes, unsigned codePage);

// A character that the code page does not hold becomes "?", and never a letter that only looks like
// it: in a path it would name another file.
std::string EncodeInCodePage(std::string_view text, unsigned codePage);

}  // namespace kivu::hosts
