#pragma once

namespace kivu::hosts {

// Another program's window is known to be the one that the user works in. Where the system does not
// tell, and while none is active, it is not.
bool IsAnotherProgramActive();

}  // namespace kivu::hosts
