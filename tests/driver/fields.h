#pragma once

#include <optional>
#include <string>

#include "driver/json.h"
#include "forms/form.h"

namespace kivu::driver {

// Fields of a window by name, without regard to case. Empty: it has no such field.
std::optional<Json> GetField(const forms::Form& form, const std::string& name);
// False: it has no such field. Throws CommandError when the value has the wrong type.
bool SetField(forms::Form& form, const std::string& name, const Json& value);

}  // namespace kivu::driver
