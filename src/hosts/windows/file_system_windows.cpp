#include "hosts/windows/file_system_windows.h"

#include "hosts/windows/code_page.h"
#include "hosts/windows/file_writer_windows.h"
#include "hosts/windows/system_file.h"
#include "hosts/windows/system_text.h"
#include "hosts/windows/wide_path.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

namespace {

std::error_code Unusable() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

// Of a file: a closing separator says that a directory is meant.
std::optional<std::wstring> FilePath(const std::string& path) {
    return EndsInSeparator(path) ? std::nullopt : SystemPath(path);
}

std::optional<BY_HANDLE_FILE_INFORMATION> InformationOf(const std::string& path) {
    const auto system = SystemPath(path);
    return system ? Information(*system) : std::nullopt;
}

// Both numbers of a file that the system gives in halves.
std::uint64_t Joined(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32 | low;
}

bool IsDirectoryAt(const std::wstring& systemPath) {
    const DWORD attributes = AttributesOf(systemPath);
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The calls for short and long names work on the path as it is given, so that a relative one stays
// relative; only what they would not find goes in as a SystemPath.
bool IsPlain(std::wstring_view systemPath) {
    const std::wstring plain = WithoutPrefix(systemPath);
    if (plain.size() >= MAX_PATH || EndsInDeviceName(systemPath)) return false;
    for (std::size_t end = plain.find(L'\\', 3); end != std::wstring::npos;
         end = plain.find(L'\\', end + 1)) {
        if (plain[end - 1] == L'.' || plain[end - 1] == L' ') return false;
    }
    return plain.back() != L'.' && plain.back() != L' ';
}

using NameCall = DWORD(WINAPI*)(LPCWSTR, LPWSTR, DWORD);

std::string NameForm(const std::string& path, NameCall call) {
    const auto system = SystemPath(path);
    if (!system || ::GetFileAttributesW(system->c_str()) == INVALID_FILE_ATTRIBUTES) return {};
    const std::wstring asked = IsPlain(*system) ? Wide(path) : *system;
    return Narrow(WithoutPrefix(SystemText(
        [&](wchar_t* buffer, DWORD size) { return call(asked.c_str(), buffer, size); })));
}

}  // namespace

WindowsFileSystem::WindowsFileSystem() {
    AskForNoDisk();
}

void WindowsFileSystem::AskForNoDisk() {
    ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, nullptr);
}

bool WindowsFileSystem::FileExists(const std::string& path) const {
    const auto system = FilePath(path);
    const DWORD attributes = system ? AttributesOf(*system) : INVALID_FILE_ATTRIBUTES;
    return attributes != INVALID_FILE_ATTRIBUTES &&
           (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0;
}

bool WindowsFileSystem::IsDirectory(const std::string& path) const {
    const auto system = SystemPath(path);
    return system && IsDirectoryAt(*system);
}

std::optional<platform::FileSystem::Identity> WindowsFileSystem::IdentityOf(
    const std::string& path) const {
    const auto information = InformationOf(path);
    if (!information) return std::nullopt;
    return Identity{information->dwVolumeSerialNumber,
                    Joined(information->nFileIndexHigh, information->nFileIndexLow)};
}

bool WindowsFileSystem::IsLink(const std::string& path) const {
    const auto system = SystemPath(path);
    return system && IsLinkAt(*system);
}

std::string WindowsFileSystem::ResolvedPath(const std::string& path) const {
    const auto system = SystemPath(path);
    const std::wstring resolved = system ? FinalPath(*system) : std::wstring();
    return resolved.empty() ? path : Narrow(WithoutPrefix(resolved));
}

std::error_code WindowsFileSystem::WriteFile(const std::string& path, std::string_view bytes) {
    const auto system = SystemPath(path);
    if (!system) return Unusable();
    if (EndsInSeparator(path)) return std::make_error_code(std::errc::is_a_directory);
    return WriteWhole(*system, bytes);
}

std::error_code WindowsFileSystem::AppendFile(const std::string& path, std::string_view bytes) {
    const auto system = FilePath(path);
    return system ? WriteBehind(*system, bytes) : Unusable();
}

std::error_code WindowsFileSystem::DeleteFile(const std::string& path) {
    const auto system = FilePath(path);
    if (!system) return Unusable();
    return ::DeleteFileW(system->c_str()) ? std::error_code() : LastError();
}

std::error_code WindowsFileSystem::MoveFile(const std::string& from, const std::string& to) {
    const auto source = SystemPath(from);
    const auto target = SystemPath(to);
    if (!source || !target || EndsInDeviceName(*target)) return Unusable();
    return ::MoveFileExW(source->c_str(), target->c_str(),
                         MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH)
               ? std::error_code()
               : LastError();
}

std::optional<std::int64_t> WindowsFileSystem::CreationTime(const std::string& path) const {
    const auto information = InformationOf(path);
    if (!information) return std::nullopt;
    // A FILETIME counts 100 ns from 1601 on.
    constexpr std::int64_t ticksPerSecond = 10'000'000;
    constexpr std::int64_t secondsTo1970 = 11'644'473'600;
    const FILETIME& time = information->ftCreationTime;
    return static_cast<std::int64_t>(Joined(time.dwHighDateTime, time.dwLowDateTime)) /
               ticksPerSecond -
           secondsTo1970;
}

std::error_code WindowsFileSystem::MakeDirectory(const std::string& path) {
    const auto system = SystemPath(path);
    if (!system || EndsInDeviceName(*system)) return Unusable();
    if (::CreateDirectoryW(system->c_str(), nullptr)) return {};
    const std::error_code failure = LastError();
    if (failure == std::errc::file_exists && IsDirectoryAt(*system)) return {};
    return failure;
}

std::string WindowsFileSystem::CurrentDirectory() const {
    return Narrow(WithoutPrefix(SystemText(
        [](wchar_t* buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); })));
}

std::vector<std::string> WindowsFileSystem::Drives() const {
    std::vector<std::string> drives;
    const DWORD present = ::GetLogicalDrives();
    for (int letter = 0; letter < 26; ++letter) {
        if ((present >> letter & 1) != 0)
            drives.push_back({static_cast<char>('A' + letter), ':', '\\'});
    }
    return drives;
}

std::string WindowsFileSystem::HomeDirectory() const {
    return Narrow(SystemText([](wchar_t* buffer, DWORD size) {
        return ::GetEnvironmentVariableW(L"USERPROFILE", buffer, size);
    }));
}

std::error_code WindowsFileSystem::ChangeDirectory(const std::string& path) {
    const auto system = SystemPath(path);
    if (!system) return Unusable();
    // Behind the prefix, relative paths of other programs would go wrong.
    if (!::SetCurrentDirectoryW(WithoutPrefix(*system).c_str())) return LastError();
    return {};
}

std::string WindowsFileSystem::ShortPathName(const std::string& path) const {
    return NameForm(path, &::GetShortPathNameW);
}

std::string WindowsFileSystem::LongPathName(const std::string& path) const {
    return NameForm(path, &::GetLongPathNameW);
}

std::string WindowsFileSystem::DecodeText(std::string_view bytes) const {
    return DecodeFromCodePage(bytes, ::GetACP());
}

std::string WindowsFileSystem::EncodeText(std::string_view text) const {
    return EncodeInCodePage(text, ::GetACP());
}

}  // namespace kivu::hosts
