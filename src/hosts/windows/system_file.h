#pragma once

#include <optional>
#include <string>
#include <system_error>

#include "hosts/windows/handle.h"
#include "hosts/windows/win32.h"

// One file or directory by its SystemPath. Whatever is opened here may be read, written, renamed
// and deleted by others meanwhile.
namespace kivu::hosts {

std::error_code LastError();
std::error_code SystemError(DWORD code);

// What is known of the thing at the end of the path: links are followed. Empty: nothing is there.
std::optional<BY_HANDLE_FILE_INFORMATION> Information(const std::wstring& systemPath);

// INVALID_FILE_ATTRIBUTES for nothing and for a link that leads nowhere. Links are followed.
DWORD AttributesOf(const std::wstring& systemPath);

// A symbolic link or junction; what else has a reparse point is what it says it is.
bool IsLinkAt(const std::wstring& systemPath);

// The SystemPath with every link on the way resolved; empty when it leads nowhere.
std::wstring FinalPath(const std::wstring& systemPath);

// None for a directory and for what is no file on a disk.
Handle OpenForReading(const std::wstring& systemPath);

bool IsDiskFile(const Handle& file);

}  // namespace kivu::hosts
