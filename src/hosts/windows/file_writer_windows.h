#pragma once

#include <string>
#include <string_view>
#include <system_error>

// By SystemPath; see WindowsFileSystem::WriteFile and AppendFile.
namespace kivu::hosts {

// Replaces the file in one step. Temporary files beside it that are older than a day are what
// killed writes have left behind, and go. On any failure no temporary file stays behind and the old
// file is as it was.
std::error_code WriteWhole(const std::wstring& systemPath, std::string_view bytes);

// Writes behind the file's end.
std::error_code WriteBehind(const std::wstring& systemPath, std::string_view bytes);

}  // namespace kivu::hosts
