#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kivu::core {

// The row that a profile means with a name, -1 for none. A profile keeps no blanks and no pair of
// quotes around a value and decodes bytes that are no text, but a directory may be named with any
// of them. First a row that is one of the `asStored` texts, in their order, then the only one that
// a profile would give back as the last of them: of two such rows either might be meant, and then
// neither is taken.
int FindStoredName(const platform::FileSystem& files, const std::vector<std::string>& rows,
                   const std::vector<std::string>& asStored);

}  // namespace kivu::core
