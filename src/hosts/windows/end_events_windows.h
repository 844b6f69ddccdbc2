#pragma once

#include <functional>

namespace kivu::hosts {

// Hears of the console's wishes that the program end: Ctrl+C, the closing of its window. `end` is
// called on a thread of the system's; for those that the system does not wait for a word, that
// thread rests until the process has gone or the system ends it. The end of the session comes to
// windows as a message.
void ListenForConsoleEnd(std::function<void()> end);

}  // namespace kivu::hosts
