#include "hosts/windows/part_file.h"

#include <algorithm>

#include "hosts/windows/wide_path.h"

namespace kivu::hosts {

PartFile::~PartFile() {
    file.Close();
    if (!name.empty()) ::DeleteFileW(name.c_str());
}

bool PartFile::Open(const std::string& path) {
    constexpr int mostNames = 100;
    const auto systemPath = SystemPath(path);
    if (!systemPath || EndsInSeparator(path) || EndsInDeviceName(*systemPath)) return false;
    const DWORD attributes = ::GetFileAttributesW(systemPath->c_str());
    // The last step would refuse to replace what is read-only.
    constexpr DWORD notReplaced = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY;
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & notReplaced) != 0) return false;
    target = *systemPath;
    for (int number = 0; number < mostNames; ++number) {
        std::wstring tried = target;
        if (number > 0) tried += L'.' + std::to_wstring(number);
        tried += L".part";
        file = Handle(::CreateFileW(tried.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (file) {
            name = tried;
            GoesWhenClosed(true);
            return true;
        }
        // One that goes with its process denies every access, as a directory may that takes
        // nothing.
        const DWORD reason = ::GetLastError();
        if (reason != ERROR_FILE_EXISTS && reason != ERROR_ALREADY_EXISTS &&
            reason != ERROR_ACCESS_DENIED)
            return false;
    }
    return false;
}

// A few network drives cannot; there it goes with this alone.
void PartFile::GoesWhenClosed(bool goes) {
    // Its one member has the name of a macro.
    FILE_DISPOSITION_INFO disposition{static_cast<BOOLEAN>(goes ? TRUE : FALSE)};
    (void)::SetFileInformationByHandle(file.Get(), FileDispositionInfo, &disposition,
                                       sizeof disposition);
}

bool PartFile::Write(const char* bytes, std::size_t size) {
    constexpr std::size_t mostAtOnce = std::size_t{1} << 20;
    while (size > 0) {
        DWORD written = 0;
        const auto part = static_cast<DWORD>(std::min(size, mostAtOnce));
        if (::WriteFile(file.Get(), bytes, part, &written, nullptr) == 0 || written == 0)
            return false;
        bytes += written;
        size -= written;
    }
    return true;
}

bool PartFile::Finish() {
    constexpr int mostTrials = 10;
    constexpr DWORD pause = 20;  // milliseconds
    // A few network drives cannot flush.
    const bool flushed = ::FlushFileBuffers(file.Get()) != 0 ||
                         ::GetLastError() == ERROR_INVALID_FUNCTION ||
                         ::GetLastError() == ERROR_NOT_SUPPORTED;
    if (!flushed) return false;
    GoesWhenClosed(false);
    if (!file.Close()) return false;
    // A virus scanner looks at what has just been written, and is gone a moment later.
    for (int trial = 0; trial < mostTrials; ++trial) {
        if (::MoveFileExW(name.c_str(), target.c_str(),
                          MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0) {
            name.clear();
            return true;
        }
        ::Sleep(pause);
    }
    return false;
}

}  // namespace kivu::hosts
