#pragma once

#include <string>
#include <string_view>

namespace kivu::png {

// 8-bit text as UTF-8: text that is UTF-8 already stays as it is, any other is taken as
// Windows-1252, whose five unused bytes become the control characters of their number.
std::string WidenText(std::string_view bytes);

// Appends more to text, but never beyond limit bytes; a character that would not fit whole is left
// out, with all behind it.
void AppendCapped(std::string& text, std::string_view more, std::size_t limit);

}  // namespace kivu::png
