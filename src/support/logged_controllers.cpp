#include "support/logged_controllers.h"

#include <utility>

namespace kivu::support {

std::optional<std::vector<platform::Controller>> LoggedControllers::Open() {
    auto found = controllers.Open();
    std::string line = "no service for controllers";
    names.clear();
    if (found) {
        line = "controllers:";
        for (const platform::Controller& one : *found) {
            line += (names.empty() ? " " : ", ");
            line += one.name.empty() ? "one that cannot be opened" : one.name;
            line += " (" + std::to_string(one.buttons) + " buttons)";
            names.push_back(one.name);
        }
        if (found->empty()) line += " none";
    }
    lost.assign(names.size(), false);
    if (std::exchange(told, line) != line) log.Write(line);
    return found;
}

bool LoggedControllers::Read(std::size_t device, platform::ControllerState& state) {
    const bool there = controllers.Read(device, state);
    if (device >= names.size() || names[device].empty()) return there;
    if (!there && !lost[device]) log.Write("controller lost: " + names[device]);
    lost[device] = !there;
    return there;
}

}  // namespace kivu::support
