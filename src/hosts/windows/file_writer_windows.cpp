#include "hosts/windows/file_writer_windows.h"

#include <algorithm>
#include <atomic>
#include <cwchar>
#include <optional>

#include "hosts/windows/system_file.h"
#include "hosts/windows/wide_path.h"

namespace kivu::hosts {

namespace {

constexpr int maxNameTrials = 100;  // names of temporary files, each of them new

std::error_code Unusable() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

// A virus scanner, an indexer or a backup opens what has just been written, and is gone a moment
// later. `attempt` says by its value whether it succeeded, and else by the last error why not;
// `isPassing` says of an error whether it can be one of these.
template <typename Attempt, typename IsPassing>
bool TryForAMoment(Attempt attempt, IsPassing isPassing) {
    constexpr int maxTrials = 10;
    constexpr DWORD pause = 20;  // milliseconds
    for (int trial = 1;; ++trial) {
        if (attempt()) return true;
        if (!isPassing(::GetLastError()) || trial == maxTrials) return false;
        ::Sleep(pause);
    }
}

bool IsInUse(DWORD error) {
    return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// A rename calls an open file one that must not be touched.
bool IsInUseOrDenied(DWORD error) {
    return IsInUse(error) || error == ERROR_ACCESS_DENIED;
}

struct Opened {
    Handle file;
    DWORD error = ERROR_SUCCESS;  // why there is no file
};

Opened OpenForWriting(const std::wstring& systemPath, DWORD sharing, DWORD disposition) {
    Opened opened;
    const bool done = TryForAMoment(
        [&] {
            opened.file = Handle(::CreateFileW(systemPath.c_str(), GENERIC_WRITE, sharing, nullptr,
                                               disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
            return static_cast<bool>(opened.file);
        },
        IsInUse);
    if (!done) opened.error = ::GetLastError();
    return opened;
}

std::error_code WriteAll(const Handle& file, std::string_view bytes) {
    constexpr std::size_t maxBlock = std::size_t{16} << 20;
    while (!bytes.empty()) {
        DWORD written = 0;
        const DWORD block = static_cast<DWORD>(std::min(bytes.size(), maxBlock));
        if (!::WriteFile(file.Get(), bytes.data(), block, &written, nullptr)) return LastError();
        if (written == 0) return SystemError(ERROR_DISK_FULL);
        bytes.remove_prefix(written);
    }
    return {};
}

// What a replaced file hands on to the new one.
struct Heritage {
    DWORD attributes = FILE_ATTRIBUTE_ARCHIVE;
    LARGE_INTEGER created{};  // 0: the new file's own time
};

// A hidden file, so that no list ever shows it, which goes away unless it is renamed.
class TemporaryFile {
 public:
    explicit TemporaryFile(const std::wstring& directory) : directory(directory) {}
    ~TemporaryFile() {
        file.Close();
        if (!path.empty()) ::DeleteFileW(path.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    std::error_code Create() {
        for (int trial = 0; trial < maxNameTrials; ++trial) {
            const std::wstring candidate = directory + NextName();
            file = Handle(::CreateFileW(candidate.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                        CREATE_NEW, FILE_ATTRIBUTE_HIDDEN, nullptr));
            if (file) {
                path = candidate;
                return {};
            }
            if (::GetLastError() != ERROR_FILE_EXISTS) break;
        }
        return LastError();
    }

    std::error_code Fill(std::string_view bytes, const Heritage& heritage) {
        if (const auto failure = WriteAll(file, bytes)) return failure;
        // A few network drives cannot flush; a full disk they have told about before.
        if (!::FlushFileBuffers(file.Get()) && ::GetLastError() != ERROR_INVALID_FUNCTION &&
            ::GetLastError() != ERROR_NOT_SUPPORTED) {
            return LastError();
        }
        FILE_BASIC_INFO basic{};  // times of 0 stay as they are
        basic.CreationTime = heritage.created;
        basic.FileAttributes = heritage.attributes;
        if (!::SetFileInformationByHandle(file.Get(), FileBasicInfo, &basic, sizeof basic))
            return LastError();
        return file.Close() ? std::error_code() : LastError();
    }

    std::error_code RenameTo(const std::wstring& target) {
        const bool done = TryForAMoment(
            [&] {
                return ::MoveFileExW(path.c_str(), target.c_str(),
                                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
            },
            IsInUseOrDenied);
        if (!done) return LastError();
        path.clear();
        return {};
    }

 private:
    static std::wstring NextName() {
        static std::atomic<unsigned> counter{0};
        wchar_t name[64];
        std::swprintf(name, std::size(name), L".kivu-%lx-%llx-%x.tmp", ::GetCurrentProcessId(),
                      ::GetTickCount64(), counter++);
        return name;
    }

    std::wstring directory;
    std::wstring path;
    Handle file;
};

// What a write that was killed in its middle has left behind. A day is longer than any write takes,
// also one by another computer with its clock astray.
bool IsLeftOver(const WIN32_FIND_DATAW& entry, const FILETIME& now) {
    constexpr ULONGLONG day = 24ULL * 60 * 60 * 10'000'000;  // in units of 100 ns
    const auto ticks = [](const FILETIME& time) {
        return static_cast<ULONGLONG>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    };
    constexpr DWORD noFile = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return (entry.dwFileAttributes & noFile) == 0 &&
           ticks(entry.ftLastWriteTime) + day < ticks(now);
}

// `directory` ends in a separator.
void RemoveLeftOvers(const std::wstring& directory) {
    FILETIME now{};
    ::GetSystemTimeAsFileTime(&now);
    WIN32_FIND_DATAW entry{};
    const HANDLE search = ::FindFirstFileW((directory + L".kivu-*.tmp").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) return;
    do {
        // A pattern finds short names too, which say nothing about the long one.
        const std::wstring_view name = entry.cFileName;
        if (name.starts_with(L".kivu-") && name.ends_with(L".tmp") && IsLeftOver(entry, now))
            ::DeleteFileW((directory + entry.cFileName).c_str());
    } while (::FindNextFileW(search, &entry));
    ::FindClose(search);
}

// A rename asks only the directory, but a user who protects a file means its content: whatever is
// replaced or written behind must be a file that can be opened for writing.
std::error_code CheckOpened(const Opened& opened, const std::wstring& systemPath) {
    const Handle& file = opened.file;
    if (!file) {
        const DWORD attributes = AttributesOf(systemPath);
        const bool isDirectory =
            attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        return isDirectory ? std::make_error_code(std::errc::is_a_directory)
                           : SystemError(opened.error);
    }
    if (!IsDiskFile(file)) return std::make_error_code(std::errc::operation_not_supported);
    FILE_BASIC_INFO basic{};
    if (!::GetFileInformationByHandleEx(file.Get(), FileBasicInfo, &basic, sizeof basic))
        return LastError();
    // Wine opens a read-only file for a user with enough rights.
    const bool isReadOnly = (basic.FileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    return isReadOnly ? SystemError(ERROR_ACCESS_DENIED) : std::error_code();
}

// Whether an open has failed for want of the file: one of this name may be made.
bool MayBeMade(const Opened& opened, const std::wstring& systemPath) {
    return opened.error == ERROR_FILE_NOT_FOUND && !EndsInDeviceName(systemPath) &&
           !IsLinkAt(systemPath);
}

std::error_code Inherit(const Handle& old, Heritage& heritage) {
    FILE_BASIC_INFO basic{};
    if (!::GetFileInformationByHandleEx(old.Get(), FileBasicInfo, &basic, sizeof basic))
        return LastError();
    // What else there is cannot be set, such as that the disk compresses the file.
    constexpr DWORD handedOn = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                               FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
    heritage.attributes = basic.FileAttributes & handedOn;
    if (heritage.attributes == 0) heritage.attributes = FILE_ATTRIBUTE_NORMAL;
    heritage.created = basic.CreationTime;
    return {};
}

// The file that is to be replaced, behind all links, and what it hands on.
std::error_code FindTarget(std::wstring& systemPath, Heritage& heritage) {
    const Opened old = OpenForWriting(
        systemPath, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
    if (MayBeMade(old, systemPath)) return {};
    if (const auto failure = CheckOpened(old, systemPath)) return failure;
    if (IsLinkAt(systemPath)) systemPath = FinalPath(systemPath);
    return systemPath.empty() ? Unusable() : Inherit(old.file, heritage);
}

}  // namespace

std::error_code WriteWhole(const std::wstring& systemPath, std::string_view bytes) {
    std::wstring target = systemPath;
    Heritage heritage;
    if (const auto failure = FindTarget(target, heritage)) return failure;
    const std::wstring directory = target.substr(0, target.rfind(L'\\') + 1);
    RemoveLeftOvers(directory);
    TemporaryFile temporary(directory);
    if (const auto failure = temporary.Create()) return failure;
    if (const auto failure = temporary.Fill(bytes, heritage)) return failure;
    return temporary.RenameTo(target);
}

std::error_code WriteBehind(const std::wstring& systemPath, std::string_view bytes) {
    Opened opened = OpenForWriting(systemPath, FILE_SHARE_READ, OPEN_EXISTING);
    const bool isNew = MayBeMade(opened, systemPath);
    if (isNew) opened = OpenForWriting(systemPath, FILE_SHARE_READ, CREATE_NEW);
    if (const auto failure = CheckOpened(opened, systemPath)) return failure;
    Handle& file = opened.file;
    LARGE_INTEGER end{};
    if (!::SetFilePointerEx(file.Get(), {}, &end, FILE_END)) return LastError();

    const auto failure = WriteAll(file, bytes);
    if (!failure) return file.Close() ? std::error_code() : LastError();
    if (::SetFilePointerEx(file.Get(), end, nullptr, FILE_BEGIN)) ::SetEndOfFile(file.Get());
    file.Close();
    if (isNew) ::DeleteFileW(systemPath.c_str());
    return failure;
}

}  // namespace kivu::hosts
