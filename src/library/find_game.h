#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/busy_state.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

// The first row that is the text or whose file name is the text; without one, the first that
// contains it anywhere: the name of one game may be a part of another's. With regard to case; -1
// for none.
int RowOfGame(std::span<const std::string> paths, std::string_view text);

// The same in UAE_FULL, under a caption that tells so. Events run while it looks, so the lists may
// be others when it returns.
int FindGameInFullList(core::Form1& form, core::BusyState& busy, core::EventPacer& pacer,
                       const std::string& path);

}  // namespace kivu::library
