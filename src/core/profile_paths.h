#pragma once

#include <string>

#include "core/program_files.h"
#include "platform/file_system.h"

namespace kivu::core {

// The absolute path that a profile means with a text. One written by hand may be absolute already.
std::string PathOfProfile(const ProgramFiles& program, const platform::FileSystem& files,
                          const std::string& stored);

// The same for a program. One named without a directory may be anywhere in the search path of a
// POSIX host, where the start looks for it, and comes back as it is.
std::string ProgramOfProfile(const ProgramFiles& program, const platform::FileSystem& files,
                             const std::string& stored);

}  // namespace kivu::core
