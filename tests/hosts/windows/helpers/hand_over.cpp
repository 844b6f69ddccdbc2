// A later or earlier instance of the program named by its first argument. Ends with 1 if an earlier
// one runs; otherwise it is the first one, sets the event named by its second argument, and stays
// until it is killed, for two minutes at most.
#include <string>

#include "hosts/windows/instance_windows.h"
#include "hosts/windows/wide_text.h"

int main() {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (count < 3) return 2;
    kivu::hosts::WindowsInstance instance(kivu::hosts::Narrow(words[1]));
    if (instance.HandOver("Kivu", "")) return 1;
    const HANDLE ready = ::OpenEventW(EVENT_MODIFY_STATE, FALSE, words[2]);
    if (ready == nullptr) return 3;
    ::SetEvent(ready);
    ::Sleep(120 * 1000);
    return 0;
}
