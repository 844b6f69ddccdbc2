#pragma once

#include <string>

#include "platform/file_system.h"

namespace kivu::support {

// Whether files can be made in a directory, with or without a closing separator: tried by one of a
// name that nobody has there, which goes again.
bool CanWriteIn(platform::FileSystem& files, const std::string& directory);

}  // namespace kivu::support
