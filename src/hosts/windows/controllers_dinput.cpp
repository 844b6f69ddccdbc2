#include "hosts/windows/controllers_dinput.h"

namespace kivu::hosts {

std::optional<std::vector<platform::Controller>> DirectInputControllers::Open() {
    return std::vector<platform::Controller>{{"Mouse", 0}, {"Keyboard", 0}};
}

bool DirectInputControllers::Read(std::size_t device, platform::ControllerState& state) {
    state = {};
    return device < 2;
}

void DirectInputControllers::Close() {
}

bool DirectInputControllers::Changed() {
    return false;
}

}  // namespace kivu::hosts
