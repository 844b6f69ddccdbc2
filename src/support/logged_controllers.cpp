#include "support/logged_controllers.h"

namespace kivu::support {

namespace {

std::string Described(const platform::Controller& controller) {
    if (controller.name.empty()) return "one that cannot be opened";
    return controller.name + " (" + std::to_string(controller.buttons) + " buttons)";
}

std::string Described(const std::vector<platform::Controller>& list) {
    std::string text;
    for (const platform::Controller& controller : list) {
        if (controller.name == "Mouse" || controller.name == "Keyboard") continue;
        if (!text.empty()) text += ", ";
        text += Described(controller);
    }
    return text.empty() ? "none" : text;
}

}  // namespace

std::optional<std::vector<platform::Controller>> LoggedControllers::Open() {
    auto list = controllers.Open();
    names.clear();
    std::string found = "no service for them";
    if (list) {
        found = Described(*list);
        for (const platform::Controller& controller : *list)
            names.push_back(controller.name);
    }
    lost.assign(names.size(), false);
    if (found != told) log.Write("game controllers: " + found);
    told = found;
    return list;
}

bool LoggedControllers::Read(std::size_t device, platform::ControllerState& state) {
    const bool there = controllers.Read(device, state);
    if (device < lost.size() && !there && !lost[device]) {
        lost[device] = true;
        log.Write("game controller lost: " + names[device]);
    }
    return there;
}

}  // namespace kivu::support
