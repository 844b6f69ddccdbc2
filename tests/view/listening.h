#pragma once

namespace kivu::tests {

// The screen is taken to have assistive tools, or none. Without the toolkit's own headers it goes
// on as it is, and tells nobody of anything.
void SetListening(bool on);

}  // namespace kivu::tests
