#include "hosts/windows/standard_stream.h"

#include <string>

#include "hosts/windows/wide_text.h"

namespace kivu::hosts {

bool StandardStream::Write(std::string_view text) {
    const HANDLE given = ::GetStdHandle(which);
    // None, or one that leads nowhere.
    const bool isGiven = ::GetFileType(given) != FILE_TYPE_UNKNOWN;
    if (!isGiven && !console) {
        ::AttachConsole(ATTACH_PARENT_PROCESS);
        console = Handle(::CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                       0, nullptr));
        if (!console) return false;
    }
    const HANDLE out = isGiven ? given : console.Get();
    DWORD mode = 0;
    DWORD written = 0;
    if (::GetConsoleMode(out, &mode)) {
        const std::wstring wide = Wide(std::string(text));
        ::WriteConsoleW(out, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        ::WriteFile(out, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    }
    return true;
}

}  // namespace kivu::hosts
