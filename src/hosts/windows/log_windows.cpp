#include "hosts/windows/log_windows.h"

#include "hosts/windows/system_file.h"
#include "hosts/windows/wide_path.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "text/log_text.h"

// Needs windows.h.
#include <shlobj.h>

namespace kivu::hosts {

namespace {

constexpr int maxLooks = 3;  // at a file that others may turn over meanwhile
constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

text::LogTime LocalTime() {
    SYSTEMTIME local{};
    ::GetLocalTime(&local);
    return {local.wYear,   local.wMonth,  local.wDay,         local.wHour,
            local.wMinute, local.wSecond, local.wMilliseconds};
}

std::wstring OldName(const std::wstring& path) {
    const std::wstring_view ending = L".log";
    const bool plain = path.ends_with(ending);
    return path.substr(0, path.size() - (plain ? ending.size() : 0)) + L".old.log";
}

// Makes the directory and those above it. Those that are there are no error.
void MakeDirectories(const std::wstring& directory) {
    if (::CreateDirectoryW(directory.c_str(), nullptr) || ::GetLastError() != ERROR_PATH_NOT_FOUND)
        return;
    const auto separator = directory.rfind(L'\\');
    // Behind the prefix and the drive.
    if (separator == std::wstring::npos || separator <= 6) return;
    MakeDirectories(directory.substr(0, separator));
    ::CreateDirectoryW(directory.c_str(), nullptr);
}

bool IsSameFile(const Handle& file, const std::wstring& path) {
    BY_HANDLE_FILE_INFORMATION opened{};
    const auto named = Information(path);
    return named && ::GetFileInformationByHandle(file.Get(), &opened) &&
           opened.dwVolumeSerialNumber == named->dwVolumeSerialNumber &&
           opened.nFileIndexHigh == named->nFileIndexHigh &&
           opened.nFileIndexLow == named->nFileIndexLow;
}

}  // namespace

WindowsLog::WindowsLog(const std::string& path, std::size_t maxSize)
    : path(SystemPath(path).value_or(std::wstring())), placed(true), maxSize(maxSize) {
}

void WindowsLog::Write(std::string_view text) {
    const std::scoped_lock one(writing);
    const std::string line = text::LogLine(LocalTime(), ::GetCurrentProcessId(), text) + "\r\n";
    // No more, once nobody is there who could read it.
    if (echo) echo = standardError.Write(line);
    FindPlace();
    if (!path.empty()) Append(line);
}

void WindowsLog::FindPlace() {
    if (placed) return;
    placed = true;
    path = SystemPath(UserPath()).value_or(std::wstring());
}

std::string WindowsLog::UserPath() {
    wchar_t directory[MAX_PATH];
    const HRESULT found = ::SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_DONT_VERIFY,
                                             nullptr, SHGFP_TYPE_CURRENT, directory);
    return found == S_OK ? Narrow(directory) + "\\Kivu\\Kivu.log" : std::string();
}

Handle WindowsLog::Open() const {
    // With the right to append alone each line goes behind the end, wherever that is by then; a
    // lock asks for the right to read.
    constexpr DWORD rights = FILE_APPEND_DATA | GENERIC_READ;
    const auto open = [&] {
        return Handle(::CreateFileW(path.c_str(), rights, shareAll, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
    };
    Handle file = open();
    if (file || ::GetLastError() != ERROR_PATH_NOT_FOUND) return file;
    MakeDirectories(path.substr(0, path.rfind(L'\\')));
    return open();
}

void WindowsLog::Append(const std::string& line) {
    for (int look = 1; look <= maxLooks; ++look) {
        const Handle file = Open();
        LARGE_INTEGER end{};
        if (!file || !IsDiskFile(file) || !::GetFileSizeEx(file.Get(), &end)) return;
        const auto size = static_cast<std::size_t>(end.QuadPart);
        if (size == 0 || size + line.size() <= maxSize) return WriteTo(file, line);
        if (look < maxLooks) {
            MakeRoom(file);
        } else if (size < 2 * maxSize) {
            // Another instance is at it; one that has been stopped there would be for ever.
            WriteTo(file, line);
        }
    }
}

// Of several instances that find the file full one turns it over; the others look again. The lock
// lies far behind all lines, and goes with the handle.
void WindowsLog::MakeRoom(const Handle& file) const {
    OVERLAPPED place{};
    place.OffsetHigh = 1;
    if (!::LockFileEx(file.Get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                      &place)) {
        return;
    }
    if (!IsSameFile(file, path)) return;
    if (::MoveFileExW(path.c_str(), OldName(path).c_str(), MOVEFILE_REPLACE_EXISTING)) return;
    // The newest lines count most.
    const Handle cut(::CreateFileW(path.c_str(), GENERIC_WRITE, shareAll, nullptr,
                                   TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// In one call, so that lines of several instances do not mix.
void WindowsLog::WriteTo(const Handle& file, const std::string& line) {
    const std::string whole = torn ? "\r\n" + line : line;
    DWORD written = 0;
    ::WriteFile(file.Get(), whole.data(), static_cast<DWORD>(whole.size()), &written, nullptr);
    if (written > 0) torn = written < whole.size();
}

}  // namespace kivu::hosts
