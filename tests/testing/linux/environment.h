#pragma once

#include <stdlib.h>

namespace kivu::testing {

inline void SetVariable(const char* name, const char* value) {
    ::setenv(name, value, 1);
}
inline void UnsetVariable(const char* name) {
    ::unsetenv(name);
}

}  // namespace kivu::testing
