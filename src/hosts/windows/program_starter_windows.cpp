#include "hosts/windows/program_starter_windows.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <vector>

#include "hosts/run_and_wait.h"
#include "hosts/windows/batch_command.h"
#include "hosts/windows/code_page.h"
#include "hosts/windows/file_system_windows.h"
#include "hosts/windows/handle.h"
#include "hosts/windows/system_text.h"
#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"
#include "text/command_line.h"
#include "text/paths.h"

namespace kivu::hosts {

namespace {

// ERROR_ELEVATION_REQUIRED; MinGW-w64's headers lack it.
constexpr DWORD elevationRequired = 740;

std::error_code Failure(DWORD error) {
    return {static_cast<int>(error), std::system_category()};
}

WORD ShowOf(platform::WindowStyle style) {
    switch (style) {
        case platform::WindowStyle::Hidden:
            return SW_HIDE;
        case platform::WindowStyle::Minimized:
            return SW_SHOWMINIMIZED;
        case platform::WindowStyle::Maximized:
            return SW_SHOWMAXIMIZED;
        case platform::WindowStyle::NormalNoFocus:
            return SW_SHOWNOACTIVATE;
        case platform::WindowStyle::MinimizedNoFocus:
            return SW_SHOWMINNOACTIVE;
        default:
            return SW_SHOWNORMAL;
    }
}

bool IsFile(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool IsBareName(std::string_view name) {
    return name.find_first_of("\\/:") == std::string_view::npos;
}

// A command text, taken apart.
struct Command {
    std::string program;    // without quotes
    std::string arguments;  // as they stand, with the blank in front
};

Command Split(const platform::StartRequest& request) {
    if (request.words.size() == 1) return {text::RemoveQuotes(request.words[0]), {}};
    const std::string_view text = request.command;
    const bool quoted = text.starts_with('"');
    const std::size_t end = text.find_first_of(quoted ? "\"" : " \t", quoted ? 1 : 0);
    if (end == std::string_view::npos) return {std::string(text.substr(quoted ? 1 : 0)), {}};
    return {std::string(text.substr(quoted ? 1 : 0, end - (quoted ? 1 : 0))),
            std::string(text.substr(end + (quoted ? 1 : 0)))};
}

bool HoldsNul(const platform::StartRequest& request) {
    return request.command.find('\0') != std::string::npos ||
           request.directory.find('\0') != std::string::npos ||
           (!request.words.empty() && request.words[0].find('\0') != std::string::npos);
}

// Gives a variable of the environment a value until the end of its scope, for programs to inherit.
class PassedOn {
 public:
    PassedOn(const wchar_t* name, const std::wstring& value) : name(name) {
        ::SetEnvironmentVariableW(name, value.c_str());
    }
    ~PassedOn() { ::SetEnvironmentVariableW(name, nullptr); }
    PassedOn(const PassedOn&) = delete;
    PassedOn& operator=(const PassedOn&) = delete;

 private:
    const wchar_t* name;
};

// The shell's own services work with objects of the calling thread.
class ComScope {
 public:
    ComScope() : entered(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)) {}
    ~ComScope() {
        if (SUCCEEDED(entered)) ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

 private:
    HRESULT entered;
};

void WaitFor(const Handle& process) {
    ::WaitForSingleObject(process.Get(), INFINITE);
}

std::error_code CreateIn(const platform::StartRequest& request, const std::wstring& program,
                         std::wstring commandLine) {
    const std::wstring directory = Wide(request.directory);
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESHOWWINDOW;
    start.wShowWindow = ShowOf(request.style);
    PROCESS_INFORMATION started{};
    // A console of its own, also when the launcher was started from one; the style is for it too.
    if (::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE,
                         CREATE_NEW_CONSOLE | CREATE_DEFAULT_ERROR_MODE, nullptr,
                         directory.empty() ? nullptr : directory.c_str(), &start, &started) == 0)
        return Failure(::GetLastError());
    const Handle thread(started.hThread);
    const Handle process(started.hProcess);
    if (request.wait) WaitFor(process);
    return {};
}

// As a double click on the file, with arguments for its program.
std::error_code OpenByShell(const platform::StartRequest& request, const Command& command) {
    const ComScope com;
    const std::wstring file = Wide(command.program);
    const std::wstring arguments = Wide(command.arguments);
    const std::wstring directory = Wide(request.directory);
    SHELLEXECUTEINFOW open{};
    open.cbSize = sizeof open;
    // To its end before the call returns, since nothing waits for a helping thread, and without the
    // system's own boxes.
    open.fMask = SEE_MASK_NOASYNC | SEE_MASK_FLAG_NO_UI | SEE_MASK_UNICODE;
    if (request.wait) open.fMask |= SEE_MASK_NOCLOSEPROCESS;
    open.lpFile = file.c_str();
    if (!arguments.empty()) open.lpParameters = arguments.c_str();
    if (!directory.empty()) open.lpDirectory = directory.c_str();
    open.nShow = ShowOf(request.style);
    if (::ShellExecuteExW(&open) == 0) return Failure(::GetLastError());
    const Handle process(open.hProcess);
    if (process) WaitFor(process);
    return {};
}

std::error_code RunBatch(const platform::StartRequest& request, const Command& command) {
    // What the command processor reads of one line.
    constexpr std::size_t longestLine = 8000;
    const auto arguments = HarmlessArguments(command.arguments);
    if (!arguments || command.program.find_first_of("\"\r\n") != std::string::npos)
        return Failure(ERROR_INVALID_PARAMETER);
    const std::wstring text = Wide("\"" + command.program + "\"" + *arguments);
    if (text.size() > longestLine) return Failure(ERROR_FILENAME_EXCED_RANGE);
    const CommandProcessor processor = BatchProcessor();
    const PassedOn passedOn(batchVariable, text);
    return CreateIn(request, processor.program, processor.commandLine);
}

std::error_code RunProgram(const platform::StartRequest& request, const Command& command) {
    const std::string commandLine = "\"" + command.program + "\"" + command.arguments;
    const auto failure = CreateIn(request, Wide(command.program), Wide(commandLine));
    // A broken program would come back from the shell, with a box on the way.
    const bool isDocument =
        failure == Failure(ERROR_BAD_EXE_FORMAT) && !text::IsProgramFile(command.program);
    const bool forTheShell = isDocument || failure == Failure(elevationRequired);
    return forTheShell ? OpenByShell(request, command) : failure;
}

std::wstring SystemDirectory() {
    return SystemText([](wchar_t* text, DWORD size) { return ::GetSystemDirectoryW(text, size); });
}

bool IsAbsolute(std::wstring_view directory) {
    if (directory.starts_with(L"\\\\")) return true;
    return directory.size() > 2 && directory[1] == L':' &&
           (directory[2] == L'\\' || directory[2] == L'/');
}

// The system's own directories, and then those of PATH.
std::vector<std::wstring> SearchedDirectories() {
    const std::wstring path = SystemText(
        [](wchar_t* text, DWORD size) { return ::GetEnvironmentVariableW(L"PATH", text, size); });
    std::vector<std::wstring> directories{
        SystemDirectory(),
        SystemText([](wchar_t* text, DWORD size) { return ::GetWindowsDirectoryW(text, size); })};
    for (std::size_t at = 0; at < path.size();) {
        const std::size_t end = std::min(path.find(L';', at), path.size());
        directories.push_back(path.substr(at, end - at));
        std::erase(directories.back(), L'"');
        at = end + 1;
    }
    std::erase_if(directories, [](const std::wstring& one) { return !IsAbsolute(one); });
    return directories;
}

// Empty: it is not there.
std::wstring FindIn(const std::wstring& directory, const std::wstring& name) {
    for (const wchar_t* ending : {L".exe", L".com", L".bat", L".cmd"}) {
        const std::wstring path = SystemText([&](wchar_t* text, DWORD size) {
            return ::SearchPathW(directory.c_str(), name.c_str(), ending, size, text, nullptr);
        });
        if (!path.empty() && IsFile(path)) return path;
    }
    return {};
}

}  // namespace

std::error_code WindowsProgramStarter::Run(const platform::StartRequest& request) {
    if (HoldsNul(request)) return Failure(ERROR_INVALID_PARAMETER);
    Command command = Split(request);
    if (command.program.find_first_not_of(" \t") == std::string::npos)
        return Failure(ERROR_FILE_NOT_FOUND);
    // Not in the current directory: it is the emulator's, and may hold anybody's files.
    if (IsBareName(command.program)) command.program = FindInPath(command.program);
    if (!IsFile(Wide(command.program))) return Failure(ERROR_FILE_NOT_FOUND);
    if (request.startFile || IsBatchFile(command.program)) return RunBatch(request, command);
    return RunProgram(request, command);
}

std::error_code WindowsProgramStarter::RunAndWait(const platform::StartRequest& request,
                                                  const std::function<bool()>& goOn) {
    platform::StartRequest waited = request;
    waited.wait = true;
    return RunBeside([waited] { return WindowsProgramStarter().Run(waited); }, goOn);
}

std::error_code WindowsProgramStarter::EditText(const std::string& path) {
    if (path.empty() || path.find('"') != std::string::npos || path.find('\0') != std::string::npos)
        return Failure(ERROR_INVALID_PARAMETER);
    const std::wstring file = Wide(path);
    const std::wstring absolute = SystemText([&file](wchar_t* text, DWORD size) {
        return ::GetFullPathNameW(file.c_str(), size, text, nullptr);
    });
    if (absolute.empty()) return Failure(ERROR_INVALID_PARAMETER);
    const std::wstring editor = SystemDirectory() + L"\\notepad.exe";
    return CreateIn({}, editor, L"\"" + editor + L"\" \"" + absolute + L"\"");
}

std::optional<std::string> WindowsProgramStarter::StartFileBytes(std::string_view text) const {
    std::string bytes = EncodeInCodePage(text, BatchCodePage());
    if (DecodeFromCodePage(bytes, BatchCodePage()) != text) return std::nullopt;
    return bytes;
}

std::string WindowsProgramStarter::FindInPath(const std::string& name) const {
    if (name.empty() || name.find('\0') != std::string::npos || !IsBareName(name)) return {};
    const std::wstring wanted = Wide(name);
    for (const std::wstring& directory : SearchedDirectories()) {
        const std::wstring found = FindIn(directory, wanted);
        if (!found.empty()) return Narrow(found);
    }
    return {};
}

bool WindowsProgramStarter::MayRun(const std::string& program) const {
    return text::IsProgramFile(program) || IsBatchFile(program);
}

bool WindowsProgramStarter::SearchesIn(const std::string& directory) const {
    const WindowsFileSystem files;
    if (!files.IsDirectory(directory)) return false;
    const auto wanted = files.IdentityOf(directory);
    if (!wanted) return false;
    for (const std::wstring& searched : SearchedDirectories()) {
        if (files.IdentityOf(Narrow(searched)) == wanted) return true;
    }
    return false;
}

std::string WindowsProgramStarter::FindExecutable(const std::string& path) const {
    if (path.find('\0') != std::string::npos || !IsFile(Wide(path))) return {};
    std::wstring found(MAX_PATH, L'\0');
    const auto result =
        reinterpret_cast<INT_PTR>(::FindExecutableW(Wide(path).c_str(), nullptr, found.data()));
    // At or below this it is an error.
    constexpr INT_PTR lastError = 32;
    return result > lastError ? Narrow(found.substr(0, found.find(L'\0'))) : std::string();
}

std::error_code WindowsProgramStarter::Open(const std::string& addressOrPath) {
    if (addressOrPath.empty() || addressOrPath.find('\0') != std::string::npos)
        return Failure(ERROR_INVALID_PARAMETER);
    return OpenByShell({}, {addressOrPath, {}});
}

}  // namespace kivu::hosts
