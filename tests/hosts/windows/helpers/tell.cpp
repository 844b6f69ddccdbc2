// Writes what it finds around itself to the file named by KIVU_TELL, one fact a line in UTF-8, and
// ends, but not before the event named by KIVU_TELL_UNTIL, if any. The file appears whole, by a
// rename. A copy whose name begins with "trap" writes to the file named by KIVU_TRAP instead: that
// one should never have been started.
#include <filesystem>
#include <fstream>
#include <string>

#include "hosts/windows/wide_text.h"
#include "hosts/windows/win32.h"

namespace {

using kivu::hosts::Narrow;

std::wstring Variable(const wchar_t* name) {
    wchar_t value[4096] = {};
    ::GetEnvironmentVariableW(name, value, 4096);
    return value;
}

std::string Text() {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::string text = "program=" + Narrow(words[0]) + "\n";
    for (int i = 1; i < count; ++i)
        text += "word=" + Narrow(words[i]) + "\n";
    wchar_t directory[4096] = {};
    ::GetCurrentDirectoryW(4096, directory);
    text += "directory=" + Narrow(directory) + "\n";
    STARTUPINFOW start{};
    ::GetStartupInfoW(&start);
    const bool told = (start.dwFlags & STARTF_USESHOWWINDOW) != 0;
    text += "show=" + (told ? std::to_string(start.wShowWindow) : "untold") + "\n";
    text += "id=" + std::to_string(::GetCurrentProcessId()) + "\n";
    text += "variable=" + Narrow(Variable(L"KIVU_TEST_VARIABLE")) + "\n";
    // The number of a handle that the parent could be inherited from, and what it is here.
    const std::wstring offered = Variable(L"KIVU_OFFERED_HANDLE");
    if (!offered.empty()) {
        DWORD flags = 0;
        const auto handle = reinterpret_cast<HANDLE>(std::stoull(offered));
        text += ::GetHandleInformation(handle, &flags) != 0 ? "inherited=yes\n" : "inherited=no\n";
    }
    return text;
}

bool IsTrap() {
    wchar_t file[4096] = {};
    ::GetModuleFileNameW(nullptr, file, 4096);
    return std::filesystem::path(file).filename().wstring().starts_with(L"trap");
}

void WaitUntilAllowed() {
    const std::wstring name = Variable(L"KIVU_TELL_UNTIL");
    const HANDLE allowed = ::OpenEventW(SYNCHRONIZE, FALSE, name.c_str());
    if (allowed != nullptr) ::WaitForSingleObject(allowed, 120 * 1000);
}

}  // namespace

int main() {
    const std::filesystem::path path = Variable(IsTrap() ? L"KIVU_TRAP" : L"KIVU_TELL");
    if (path.empty()) return 2;
    const std::filesystem::path part = path.wstring() + L".part";
    {
        std::ofstream out(part, std::ios::binary);
        out << Text();
    }
    const bool written = ::MoveFileExW(part.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
    WaitUntilAllowed();
    return written ? 0 : 1;
}
