#pragma once

#include <string_view>

#include "hosts/windows/handle.h"
#include "hosts/windows/win32.h"

namespace kivu::hosts {

// The standard output or error of a program with a window. It has none of its own; without one that
// was given to it the text goes to the console that it was started from, if any.
class StandardStream {
 public:
    // STD_OUTPUT_HANDLE or STD_ERROR_HANDLE.
    explicit StandardStream(DWORD which) : which(which) {}

    // UTF-8. False: nobody is there who could read it.
    bool Write(std::string_view text);

 private:
    DWORD which;
    Handle console;
};

}  // namespace kivu::hosts
