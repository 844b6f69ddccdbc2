#pragma once

#include <string>

namespace kivu::joystick {

// What the set-up asks for one of the twelve actions: which button to press, and for what. `title`
// is the program's name.
std::string SetupText(int action, bool german, const std::string& title);

}  // namespace kivu::joystick
