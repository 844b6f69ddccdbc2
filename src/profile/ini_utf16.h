#pragma once

#include <string>
#include <string_view>

// Profiles that an editor saved as "Unicode": UTF-16 in little-endian order behind a byte-order
// mark. They are edited as UTF-8 and turned back.
namespace kivu::profile {

bool IsMarkedUtf16(std::string_view bytes);

// The mark becomes the UTF-8 mark. A surrogate without its partner becomes three bytes as if it
// were a character, so that every text comes back exactly; an odd last byte is left out.
std::string Utf16ToUtf8(std::string_view bytes);

// The inverse. A byte that is not UTF-8 is taken as Windows-1252.
std::string Utf8ToUtf16(std::string_view text);

}  // namespace kivu::profile
