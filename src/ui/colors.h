#pragma once

#include <string>
#include <string_view>

#include "forms/types.h"
#include "platform/system_colors.h"

namespace kivu::ui {

// "#RRGGBB" as a colour number. Every "#" is passed over; what is missing or no hexadecimal number
// counts as 0, and so does a part of one digit.
forms::Color HexToLong(std::string_view text);

// The colour that a number stands for: as a signed number a negative one is that of the system with
// the index in its other bits.
forms::Color RealColor(forms::Color color, const platform::SystemColors& system);

// The text of the colour that a number stands for.
std::string LongToHex(forms::Color color, const platform::SystemColors& system);
// The same for one that is no system colour.
std::string LongToHex(forms::Color color);

}  // namespace kivu::ui
