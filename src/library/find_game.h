#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"

namespace kivu::library {

// First row of UAE_FULL that contains the path, with regard to case; -1 for none. Events run while
// it looks, so the lists may be others when it returns.
int FindGameInFullList(core::Form1& form, core::BusyState& busy, core::EventPacer& pacer,
                       const std::string& path);

}  // namespace kivu::library
