#pragma once

#include "platform/controllers.h"

namespace kivu::hosts {

// For the window's thread alone.
class DirectInputControllers : public platform::Controllers {
 public:
    std::optional<std::vector<platform::Controller>> Open() override;
    bool Read(std::size_t device, platform::ControllerState& state) override;
    void Close() override;
    bool Changed() override;
};

}  // namespace kivu::hosts
