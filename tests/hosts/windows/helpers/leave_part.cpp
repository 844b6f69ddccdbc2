// Ends as a process does that is killed in the middle of a download to its argument: 7 where it had
// a part of it.
#include "hosts/windows/part_file.h"
#include "hosts/windows/program_directory_windows.h"
#include "hosts/windows/win32.h"

int main() {
    const auto arguments = kivu::hosts::ProgramArguments();
    kivu::hosts::PartFile part;
    const bool begun =
        arguments.size() == 1 && part.Open(arguments[0]) && part.Write("a part of it", 12);
    ::TerminateProcess(::GetCurrentProcess(), begun ? 7 : 1);
}
