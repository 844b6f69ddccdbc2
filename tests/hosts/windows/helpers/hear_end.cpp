// Listens for the console's wishes that it end, as the launcher does, and raises one: hear_end
// EVENT. It ends by itself when it has heard of it, with the status 100, and with 101 if the
// system's call has come back by then.
#include <cstdlib>

#include "hosts/windows/end_events_windows.h"
#include "hosts/windows/handle.h"
#include "hosts/windows/win32.h"

using kivu::hosts::Handle;

// What the system starts in a process of a console, on a thread of its own, for each event.
LPTHREAD_START_ROUTINE ConsoleRoutine() {
    const HMODULE base = ::GetModuleHandleW(L"kernelbase.dll");
    const FARPROC routine = base ? ::GetProcAddress(base, "CtrlRoutine") : nullptr;
    return reinterpret_cast<LPTHREAD_START_ROUTINE>(reinterpret_cast<void*>(routine));
}

int main(int count, char** words) {
    if (count != 2) return 1;
    if (!ConsoleRoutine()) return 102;
    const DWORD event = std::strtoul(words[1], nullptr, 10);
    static const Handle heard(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
    kivu::hosts::ListenForConsoleEnd([] { ::SetEvent(heard.Get()); });
    const Handle call(::CreateThread(nullptr, 0, ConsoleRoutine(),
                                     reinterpret_cast<void*>(UINT_PTR{event}), 0, nullptr));
    if (::WaitForSingleObject(heard.Get(), 30 * 1000) != WAIT_OBJECT_0) return 2;
    // One that rests can only be waited for in vain.
    const bool isKey = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    const DWORD patience = isKey ? 30 * 1000 : 200;
    return ::WaitForSingleObject(call.Get(), patience) == WAIT_TIMEOUT ? 100 : 101;
}
