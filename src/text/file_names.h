#pragma once

#include <string_view>

namespace kivu::text {

// A name of a device that Windows finds in every directory, with or without an ending: "NUL",
// "com1.txt".
bool IsDeviceName(std::string_view name);

// A name from outside that may be given to a new file of one directory, on either host: not empty,
// neither "." nor "..", with none of \ / : * ? " < > | and no control character, no device's name,
// and no "." or blank at its end.
bool IsSafeFileName(std::string_view name);

}  // namespace kivu::text
