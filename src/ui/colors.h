#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "forms/types.h"

namespace kivu::ui {

// "#RRGGBB" as a colour number. Every "#" is passed over; what is missing or no hexadecimal number
// counts as 0.
forms::Color HexToLong(std::string_view text);

// The text of a colour. `systemColor` translates a colour whose highest bit is set.
std::string LongToHex(forms::Color color,
                      const std::function<forms::Color(forms::Color)>& systemColor = {});

}  // namespace kivu::ui
