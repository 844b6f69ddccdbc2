#pragma once

#include <string>

#include "driver/json.h"
#include "forms/form.h"

namespace kivu::driver {

// Properties of a control by name, without regard to case. Both throw CommandError: the control has
// no such property, it cannot be set, or the value has the wrong type.
Json GetProperty(forms::Control& control, const std::string& name);
// As the program would assign it: handlers run.
void SetProperty(forms::Control& control, const std::string& name, const Json& value);
bool HasProperty(forms::Control& control, const std::string& name);

// All properties that the control has, with its kind.
Json AllProperties(forms::Control& control);

// "#RRGGBB", and back.
std::string ColorText(forms::Color color);
forms::Color ColorFrom(const Json& value, const std::string& what);

}  // namespace kivu::driver
