#include "hosts/linux/controllers_sdl.h"

namespace kivu::hosts {

std::optional<std::vector<platform::Controller>> SdlControllers::Open() {
    return std::vector<platform::Controller>{{"Mouse", 0}, {"Keyboard", 0}};
}

bool SdlControllers::Read(std::size_t device, platform::ControllerState& state) {
    state = {};
    return device < 2;
}

void SdlControllers::Close() {
}

bool SdlControllers::Changed() {
    return false;
}

}  // namespace kivu::hosts
