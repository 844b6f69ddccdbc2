#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/system_file.h"
#include "hosts/windows/wide_path.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

// Closes a search, which is no kernel object.
class Search {
 public:
    Search(const std::wstring& pattern, WIN32_FIND_DATAW& found)
        : handle(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found, FindExSearchNameMatch,
                                    nullptr, FIND_FIRST_EX_LARGE_FETCH)) {}
    ~Search() {
        if (handle != INVALID_HANDLE_VALUE) ::FindClose(handle);
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    explicit operator bool() const { return handle != INVALID_HANDLE_VALUE; }
    bool Next(WIN32_FIND_DATAW& found) { return ::FindNextFileW(handle, &found) != 0; }

 private:
    HANDLE handle;
};

bool IsShown(const WIN32_FIND_DATAW& found) {
    const std::wstring_view name = found.cFileName;
    // Lists of files are kept one name a line.
    return (found.dwFileAttributes & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_DEVICE)) == 0 &&
           name != L"." && name != L".." && name.find_first_of(L"\r\n") == std::wstring_view::npos;
}

DWORD AttributesOfFound(const std::wstring& directory, const WIN32_FIND_DATAW& found) {
    const bool isLink = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
                        IsReparseTagNameSurrogate(found.dwReserved0);
    return isLink ? AttributesOf(directory + found.cFileName) : found.dwFileAttributes;
}

}  // namespace

std::optional<std::vector<platform::FileSystem::Entry>> WindowsFileSystem::ListDirectory(
    const std::string& path) const {
    const auto system = SystemPath(path);
    if (!system) return std::nullopt;
    const std::wstring directory = system->ends_with(L'\\') ? *system : *system + L"\\";
    WIN32_FIND_DATAW found{};
    Search search(directory + L"*", found);
    if (!search) {
        // The root of an empty drive holds not even ".".
        if (::GetLastError() == ERROR_FILE_NOT_FOUND && IsDirectory(path)) return {{}};
        return std::nullopt;
    }

    std::vector<Entry> entries;
    entries.reserve(128);
    do {
        if (!IsShown(found)) continue;
        const DWORD attributes = AttributesOfFound(directory, found);
        if (attributes != INVALID_FILE_ATTRIBUTES)
            entries.push_back(
                {Narrow(found.cFileName), (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0});
    } while (search.Next(found));
    if (::GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
    return entries;
}

}  // namespace kivu::hosts
