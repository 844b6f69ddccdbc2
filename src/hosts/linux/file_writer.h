#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace kivu::hosts {

// Replaces the file in one step; see LinuxFileSystem::WriteFile. Temporary files beside it that are
// older than a day are what killed writes have left behind, and go. On any failure no temporary
// file stays behind and the old file is as it was.
std::error_code ReplaceFile(const std::string& path, std::string_view bytes);

// Writes behind the file's end; see LinuxFileSystem::AppendFile.
std::error_code AppendToFile(const std::string& path, std::string_view bytes);

}  // namespace kivu::hosts
