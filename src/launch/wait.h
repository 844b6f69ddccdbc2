#pragma once

#include "core/busy_state.h"
#include "platform/clock.h"

namespace kivu::launch {

// Waits for so many changes of the clock's second while events run: between Seconds - 1 and Seconds
// seconds. Nothing to wait for returns at once.
void WAIT(int Seconds, platform::Clock& clock, core::EventPacer& pacer);

}  // namespace kivu::launch
