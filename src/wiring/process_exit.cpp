#include "wiring/process_exit.h"

#include "wiring/routines.h"

namespace kivu::wiring {

void LeaveProcess(Launcher& launcher) {
    launcher.SessionEnds();
    launcher.All().passingFiles.DeleteAll();
}

}  // namespace kivu::wiring
