#pragma once

#include <stdlib.h>

namespace kivu::testing {

inline void SetVariable(const char* name, const char* value) {
    ::_putenv_s(name, value);
}
// An empty value takes the variable away.
inline void UnsetVariable(const char* name) {
    ::_putenv_s(name, "");
}

}  // namespace kivu::testing
