#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace kivu::support {

// The short (8.3) form of a path; of a path that names nothing, the path without enclosing quotes.
[[nodiscard]] std::string ShortFileName(const platform::FileSystem& files, const std::string& path);

// The long form of a path; the path as it is when the host has no answer.
[[nodiscard]] std::string LongFileName(const platform::FileSystem& files, const std::string& path);

// Names on this host are bytes, of which any are a name; on Windows they are text, and there bytes
// that are not UTF-8 would find the file of another name.
[[nodiscard]] bool NamesAreBytes(const platform::FileSystem& files);

// A stored path whose bytes are not UTF-8, as this host names the file. Where names are bytes they
// stay: this host has most likely written them, and the drive that they lie on may be mounted
// later. They are decoded where only the decoded name is there, and where the path has the form
// that Windows writes. `absolute` gives the path at which to look.
[[nodiscard]] std::string NameOfStoredBytes(
    const platform::FileSystem& files, const std::string& stored,
    const std::function<std::string(const std::string&)>& absolute);

// GetFilePath with the host's own idea of what is a directory.
[[nodiscard]] std::string DirectoryOf(const platform::FileSystem& files, const std::string& path);

}  // namespace kivu::support
