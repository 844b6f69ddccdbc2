#pragma once

#include <optional>
#include <stdlib.h>
#include <string>

namespace kivu::testing {

// Sets a variable of the environment, or takes it away, until the end of its scope.
class EnvironmentVariable {
 public:
    EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name(name) {
        if (const char* old = ::getenv(name)) before = old;
        Assign(value);
    }
    ~EnvironmentVariable() { Assign(before); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
    void Assign(const std::optional<std::string>& value) {
        if (value) {
            ::setenv(name, value->c_str(), 1);
        } else {
            ::unsetenv(name);
        }
    }

    const char* name;
    std::optional<std::string> before;
};

}  // namespace kivu::testing
