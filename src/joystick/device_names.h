#pragma once

#include <string_view>

namespace kivu::joystick {

// Where a device is looked at. Each stage knows other words; what the first lets through, the
// later ones never see by another name.
enum class Stage { open, calibrate, poll };

// By its name a device is no game controller. Case counts.
bool IsNoController(std::string_view name, Stage stage);

}  // namespace kivu::joystick
