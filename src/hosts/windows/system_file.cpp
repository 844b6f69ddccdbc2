#include "hosts/windows/system_file.h"

#include "hosts/windows/system_text.h"

namespace kivu::hosts {

namespace {

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// To ask, and not to read: works beside whoever has the file open. Directories as well.
Handle OpenToAsk(const std::wstring& systemPath, DWORD flags = 0) {
    return Handle(::CreateFileW(systemPath.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr));
}

}  // namespace

std::error_code LastError() {
    return SystemError(::GetLastError());
}

std::error_code SystemError(DWORD code) {
    return {static_cast<int>(code), std::system_category()};
}

std::optional<BY_HANDLE_FILE_INFORMATION> Information(const std::wstring& systemPath) {
    const Handle file = OpenToAsk(systemPath);
    BY_HANDLE_FILE_INFORMATION information{};
    if (!file || !::GetFileInformationByHandle(file.Get(), &information)) return std::nullopt;
    return information;
}

DWORD AttributesOf(const std::wstring& systemPath) {
    const DWORD attributes = ::GetFileAttributesW(systemPath.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return attributes;
    const auto target = Information(systemPath);
    return target ? target->dwFileAttributes : INVALID_FILE_ATTRIBUTES;
}

bool IsLinkAt(const std::wstring& systemPath) {
    const DWORD attributes = ::GetFileAttributesW(systemPath.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return false;
    const Handle link = OpenToAsk(systemPath, FILE_FLAG_OPEN_REPARSE_POINT);
    FILE_ATTRIBUTE_TAG_INFO tag{};
    return link &&
           ::GetFileInformationByHandleEx(link.Get(), FileAttributeTagInfo, &tag, sizeof tag) &&
           IsReparseTagNameSurrogate(tag.ReparseTag);
}

std::wstring FinalPath(const std::wstring& systemPath) {
    const Handle file = OpenToAsk(systemPath);
    if (!file) return {};
    return SystemText([&](wchar_t* buffer, DWORD size) {
        return ::GetFinalPathNameByHandleW(file.Get(), buffer, size,
                                           FILE_NAME_NORMALIZED | VOLUME_NAME_DOS);
    });
}

Handle OpenForReading(const std::wstring& systemPath) {
    Handle file(::CreateFileW(systemPath.c_str(), GENERIC_READ, shareAll, nullptr, OPEN_EXISTING,
                              FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    return file && IsDiskFile(file) ? std::move(file) : Handle();
}

bool IsDiskFile(const Handle& file) {
    BY_HANDLE_FILE_INFORMATION information{};
    return ::GetFileType(file.Get()) == FILE_TYPE_DISK &&
           ::GetFileInformationByHandle(file.Get(), &information) &&
           (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace kivu::hosts
