#pragma once

#include <optional>
#include <string>

#include "core/form1.h"
#include "driver/json.h"

namespace kivu::driver {

// Fields of the main window by name, without regard to case. Empty: there is no such field.
std::optional<Json> GetField(const core::Form1& form, const std::string& name);
// False: there is no such field. Throws CommandError when the value has the wrong type.
bool SetField(core::Form1& form, const std::string& name, const Json& value);

}  // namespace kivu::driver
