#pragma once

#include <cstdlib>
#include <optional>
#include <string>

#include "environment.h"

namespace kivu::testing {

// Sets a variable of the environment, or takes it away, until the end of its scope.
class EnvironmentVariable {
 public:
    EnvironmentVariable(const char* name, const std::optional<std::string>& value) : name(name) {
        if (const char* old = std::getenv(name)) before = old;
        Assign(value);
    }
    ~EnvironmentVariable() { Assign(before); }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;

 private:
    void Assign(const std::optional<std::string>& value) {
        if (value) {
            SetVariable(name, value->c_str());
        } else {
            UnsetVariable(name);
        }
    }

    const char* name;
    std::optional<std::string> before;
};

}  // namespace kivu::testing
