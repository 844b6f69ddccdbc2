#pragma once

#include <cstdio>
#include <fcntl.h>
#include <io.h>

namespace kivu::testing {

// Standard input and output carry bytes: no CR in front of each LF, no end at Ctrl+Z.
inline void TakeBytesAsTheyAre() {
    ::_setmode(::_fileno(stdin), _O_BINARY);
    ::_setmode(::_fileno(stdout), _O_BINARY);
}

}  // namespace kivu::testing
