#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/controllers.h"
#include "platform/log.h"

namespace kivu::support {

// The host's game controllers, with a line in the log for those that are found, when they are
// others than before, and for one that is lost.
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
    std::string told;  // the last line of what was found
    std::vector<std::string> names;
    std::vector<bool> lost;
};

}  // namespace kivu::support
