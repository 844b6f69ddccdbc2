#include <utility>

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

bool IsLink(const WIN32_FIND_DATAW& found) {
    return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
           IsReparseTagNameSurrogate(found.dwReserved0);
}

// Of what a link leads to; INVALID_FILE_ATTRIBUTES where that is nothing.
DWORD AttributesOf(const std::wstring& directory, const WIN32_FIND_DATAW& found) {
    return IsLink(found) ? hosts::AttributesOf(directory + found.cFileName)
                         : found.dwFileAttributes;
}

void Add(const std::wstring& directory, const WIN32_FIND_DATAW& found,
         platform::FileSystem::Listing& listing) {
    const DWORD attributes = AttributesOf(directory, found);
    if (attributes == INVALID_FILE_ATTRIBUTES) return;
    const bool isDirectory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    listing.Add(Narrow(found.cFileName), isDirectory, isDirectory && IsLink(found));
}

// The best of the files that a pattern of the disk finds.
void Offer(const std::wstring& directory, const std::wstring& pattern, std::string_view prefix,
           std::string_view ending, std::string_view preferredStem,
           std::optional<std::string>& first) {
    WIN32_FIND_DATAW found{};
    Search search(directory + pattern, found);
    if (!search) return;
    do {
        if (!IsShown(found)) continue;
        const DWORD attributes = AttributesOf(directory, found);
        if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            continue;
        std::string name = Narrow(found.cFileName);
        if (!text::MatchesAround(name, prefix, ending)) continue;
        if (!first || text::ComesFirst(name, *first, prefix, preferredStem))
            first = std::move(name);
    } while (search.Next(found));
}

}  // namespace

std::optional<std::string> WindowsFileSystem::FirstMatch(const std::string& directory,
                                                         std::string_view prefix,
                                                         std::string_view ending,
                                                         std::string_view preferredStem) const {
    // What no name holds means something to the disk's search.
    if (prefix.find_first_of("*?<>\"|/\\:") != std::string_view::npos) return std::nullopt;
    const auto system = SystemPath(directory);
    if (!system) return std::nullopt;
    AskForNoDisk();
    const std::wstring base = system->ends_with(L'\\') ? *system : *system + L"\\";
    std::optional<std::string> first;
    Offer(base, Wide(prefix) + L".*", prefix, ending, preferredStem, first);
    const bool best =
        first && text::HasPictureEnding(*first) && text::EqualsNoCase(text::StemOf(*first), prefix);
    if (!best)
        Offer(base, Wide(prefix) + L"*" + Wide(ending), prefix, ending, preferredStem, first);
    return first;
}

std::optional<std::string> WindowsFileSystem::FindDirectory(const std::string& parent,
                                                            std::string_view name) const {
    const std::string path = (EndsInSeparator(parent) ? parent : parent + '\\') + std::string(name);
    return IsDirectory(path) ? std::optional(std::string(name)) : std::nullopt;
}

std::optional<platform::FileSystem::Listing> WindowsFileSystem::ReadDirectory(
    const std::string& path) const {
    const auto system = SystemPath(path);
    if (!system) return std::nullopt;
    AskForNoDisk();
    const std::wstring directory = system->ends_with(L'\\') ? *system : *system + L"\\";
    Listing listing;
    listing.identity = IdentityOf(path);
    WIN32_FIND_DATAW found{};
    Search search(directory + L"*", found);
    if (!search) {
        // The root of an empty drive holds not even ".".
        if (::GetLastError() == ERROR_FILE_NOT_FOUND && IsDirectory(path)) return listing;
        return std::nullopt;
    }
    do {
        if (IsShown(found)) Add(directory, found, listing);
    } while (search.Next(found));
    if (::GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
    return listing;
}

std::optional<bool> WindowsFileSystem::HasEntries(const std::string& path) const {
    const auto system = SystemPath(path);
    if (!system) return std::nullopt;
    AskForNoDisk();
    const std::wstring directory = system->ends_with(L'\\') ? *system : *system + L"\\";
    WIN32_FIND_DATAW found{};
    Search search(directory + L"*", found);
    if (!search) {
        // The root of an empty drive holds not even ".".
        if (::GetLastError() == ERROR_FILE_NOT_FOUND && IsDirectory(path)) return false;
        return std::nullopt;
    }
    do {
        if (IsShown(found) && AttributesOf(directory, found) != INVALID_FILE_ATTRIBUTES)
            return true;
    } while (search.Next(found));
    if (::GetLastError() != ERROR_NO_MORE_FILES) return std::nullopt;
    return false;
}

std::optional<std::vector<platform::FileSystem::Entry>> WindowsFileSystem::ListDirectory(
    const std::string& path) const {
    const auto listing = ReadDirectory(path);
    if (!listing) return std::nullopt;
    std::vector<Entry> entries;
    entries.reserve(listing->items.size());
    for (const Listing::Item& item : listing->items)
        entries.push_back({std::string(listing->Name(item)), item.isDirectory});
    return entries;
}

}  // namespace kivu::hosts
