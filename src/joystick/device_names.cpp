#include "joystick/device_names.h"

#include <algorithm>
#include <array>

namespace kivu::joystick {

namespace {

// DirectInput's names for the system mouse and keyboard, in the languages that the launcher speaks.
constexpr std::array<std::string_view, 4> wholeNames{"Maus", "Tastatur", "Mouse", "Keyboard"};

}  // namespace

bool IsNoController(std::string_view name, Stage stage) {
    if (name.empty()) return stage != Stage::open;
    if (std::find(wholeNames.begin(), wholeNames.end(), name) != wholeNames.end()) return true;
    if (name.starts_with("HID-")) return true;
    // Sound cards with buttons, and adapters that say to what.
    if (name.starts_with("C-Media")) return stage != Stage::poll;
    return name.starts_with("USB To ") && stage == Stage::open;
}

}  // namespace kivu::joystick
