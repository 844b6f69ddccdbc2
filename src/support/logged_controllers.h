#pragma once

#include <vector>

#include "platform/controllers.h"
#include "platform/log.h"

namespace kivu::support {

// The host's controllers, with a line in the log for those that are opened, unless they are the
// same as the time before, and for each that is lost. The mouse and the keyboard go without saying.
class LoggedControllers : public platform::Controllers {
 public:
    LoggedControllers(platform::Controllers& controllers, platform::Log& log)
        : controllers(controllers), log(log) {}

    std::optional<std::vector<platform::Controller>> Open() override;
    bool Read(std::size_t device, platform::ControllerState& state) override;
    void Close() override { controllers.Close(); }
    bool Changed() override { return controllers.Changed(); }

 private:
    platform::Controllers& controllers;
    platform::Log& log;
    std::string told = "none";
    std::vector<std::string> names;
    std::vector<bool> lost;
};

}  // namespace kivu::support
