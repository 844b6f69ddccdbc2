#include "hosts/windows/instance_windows.h"

#include <cstdint>
#include <cwchar>
#include <utility>
#include <vector>

#include "hosts/windows/wide_text.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

constexpr const wchar_t* windowClass = L"KivuInstance";

// The same number in every process of the session.
UINT SummonMessage() {
    static const UINT message = ::RegisterWindowMessageW(L"KivuComeUp");
    return message;
}

// The user's security identifier as text; empty: unknown.
std::wstring UserName() {
    HANDLE opened = nullptr;
    if (::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &opened) == 0) return {};
    const Handle token(opened);
    DWORD size = 0;
    ::GetTokenInformation(token.Get(), TokenUser, nullptr, 0, &size);
    std::vector<std::uint64_t> room(size / sizeof(std::uint64_t) + 1);
    if (::GetTokenInformation(token.Get(), TokenUser, room.data(), size, &size) == 0) return {};
    wchar_t* text = nullptr;
    const auto* user = reinterpret_cast<const TOKEN_USER*>(room.data());
    if (::ConvertSidToStringSidW(user->User.Sid, &text) == 0) return {};
    std::wstring name = text;
    ::LocalFree(text);
    return name;
}

// Kernel objects' names have a limit and no "\" behind their "Local\". FNV-1a keeps programs apart;
// a file is the same one in small and capital letters, and no name holds a "|".
std::wstring ObjectName(const std::string& programName, const std::string& directory) {
    const std::string whole = directory.empty() ? programName : programName + "|" + directory;
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char letter : text::ToLower(whole))
        hash = (hash ^ static_cast<unsigned char>(letter)) * 0x100000001b3;
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"%016llx", static_cast<unsigned long long>(hash));
    return L"Local\\Kivu-" + std::wstring(text) + L"-" + UserName();
}

// Marks a message that carries a file name, in UTF-8.
constexpr ULONG_PTR fileMark = 0x4b697675;  // "Kivu"

// False: it was too busy to listen, or refused.
bool SendFile(HWND earlier, const std::string& file) {
    constexpr UINT patience = 1000;  // milliseconds
    COPYDATASTRUCT data{};
    data.dwData = fileMark;
    data.cbData = static_cast<DWORD>(file.size());
    data.lpData = const_cast<char*>(file.data());
    DWORD_PTR taken = FALSE;
    return ::SendMessageTimeoutW(earlier, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data),
                                 SMTO_ABORTIFHUNG, patience, &taken) != 0 &&
           taken != FALSE;
}

// Any program of the session can send such a message.
std::optional<std::string> FileIn(const COPYDATASTRUCT& data) {
    if (data.dwData != fileMark || data.lpData == nullptr) return std::nullopt;
    if (data.cbData > platform::Instance::maxFile) return std::nullopt;
    std::string file(static_cast<const char*>(data.lpData), data.cbData);
    if (file.find('\0') != std::string::npos) return std::nullopt;
    return file;
}

}  // namespace

WindowsInstance::WindowsInstance(const std::string& programName, const std::string& directory)
    : name(ObjectName(programName, directory)) {
}

WindowsInstance::~WindowsInstance() {
    if (window != nullptr) ::DestroyWindow(window);
}

bool WindowsInstance::HandOver(const std::string&, const std::string& file) {
    // The earlier one may be on its way from the mutex to the window, or to its end.
    constexpr int trials = 40;
    constexpr DWORD pause = 25;  // milliseconds
    if (mutex) return false;
    for (int trial = 0; trial < trials; ++trial) {
        if (BecomeFirst()) return false;
        if (Call(file.size() <= maxFile ? file : "")) return true;
        ::Sleep(pause);
    }
    return true;
}

bool WindowsInstance::BecomeFirst() {
    Handle made(::CreateMutexW(nullptr, FALSE, name.c_str()));
    const DWORD answer = ::GetLastError();
    // Denied: it is there, and belongs to this user with more rights than this process has.
    if (answer == ERROR_ALREADY_EXISTS || answer == ERROR_ACCESS_DENIED) return false;
    mutex = std::move(made);

    WNDCLASSEXW description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = &WindowsInstance::Procedure;
    description.hInstance = ::GetModuleHandleW(nullptr);
    description.lpszClassName = windowClass;
    ::RegisterClassExW(&description);
    window = ::CreateWindowExW(0, windowClass, name.c_str(), 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                               description.hInstance, nullptr);
    if (window == nullptr) return true;
    ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // Also from a process with fewer rights.
    ::ChangeWindowMessageFilterEx(window, SummonMessage(), MSGFLT_ALLOW, nullptr);
    ::ChangeWindowMessageFilterEx(window, WM_COPYDATA, MSGFLT_ALLOW, nullptr);
    return true;
}

bool WindowsInstance::Call(const std::string& file) const {
    const HWND earlier = ::FindWindowExW(HWND_MESSAGE, nullptr, windowClass, name.c_str());
    if (earlier == nullptr) return false;
    // The user has just started this process, so it may hand on the right to come to the front.
    DWORD process = 0;
    ::GetWindowThreadProcessId(earlier, &process);
    ::AllowSetForegroundWindow(process);
    if (!file.empty() && SendFile(earlier, file)) return true;
    // Posted and not sent: a busy one must not hold up this one.
    return ::PostMessageW(earlier, SummonMessage(), 0, 0) != 0;
}

void WindowsInstance::OnSummoned(std::function<void(const std::string&)> handler) {
    summon = std::move(handler);
    if (summon && missed) summon(*std::exchange(missed, std::nullopt));
}

void WindowsInstance::Summoned(const std::string& file) {
    if (summon) {
        summon(file);
    } else if (!missed || missed->empty()) {
        missed = file;
    }
}

std::string WindowsInstance::TakeFile() {
    return std::exchange(told, {});
}

LRESULT CALLBACK WindowsInstance::Procedure(HWND window, UINT message, WPARAM first,
                                            LPARAM second) {
    auto* instance = reinterpret_cast<WindowsInstance*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (instance != nullptr && message == SummonMessage()) {
        instance->Summoned(instance->TakeFile());
        return 0;
    }
    if (instance != nullptr && message == WM_COPYDATA) {
        const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(second);
        const auto file = data != nullptr ? FileIn(*data) : std::nullopt;
        if (!file) return FALSE;
        // Whoever sends waits: what it has told is served once it has its answer.
        instance->told = *file;
        return ::PostMessageW(window, SummonMessage(), 0, 0) != 0;
    }
    return ::DefWindowProcW(window, message, first, second);
}

}  // namespace kivu::hosts
