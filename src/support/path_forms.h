#pragma once

#include <string>

#include "platform/file_system.h"

namespace kivu::support {

// The short (8.3) form of a path; of a path that names nothing, the path without enclosing quotes.
std::string ShortFileName(const platform::FileSystem& files, const std::string& path);

// The long form of a path; the path as it is when the host has no answer.
std::string LongFileName(const platform::FileSystem& files, const std::string& path);

// Names on this host are bytes, of which any are a name; on Windows they are text, and there bytes
// that are not UTF-8 would find the file of another name.
bool NamesAreBytes(const platform::FileSystem& files);

// GetFilePath with the host's own idea of what is a directory.
std::string DirectoryOf(const platform::FileSystem& files, const std::string& path);

}  // namespace kivu::support
