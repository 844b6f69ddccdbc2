#pragma once

#include "wiring/launcher.h"

namespace kivu::wiring {

// The process is ended by somebody below the launcher, as where the toolkit has lost its display:
// what an end stores is stored, and none of the launcher's passing files stays behind. No window is
// touched any more.
void LeaveProcess(Launcher& launcher);

}  // namespace kivu::wiring
