#pragma once

#include <string>
#include <vector>

#include "walker/random.h"
#include "walker/world.h"

namespace kivu::walker {

// Driver commands in their order, answers for boxes in front of what may show one.
using Commands = std::vector<Json>;

// One thing that a session can do. To join a new window or event, add a line to a table.
struct Action {
    const char* name;
    int weight;
    // Whole commands, which mean the same when the session is played again. Empty: it cannot be
    // done at the moment.
    Commands (*make)(World& world, const Look& look, Random& random);
};

const std::vector<Action>& ListActions();     // rows, tabs, the choice of emulators
const std::vector<Action>& ControlActions();  // buttons, boxes to type into, the panel
const std::vector<Action>& KeyActions();
const std::vector<Action>& PadActions();
const std::vector<Action>& WindowActions();  // windows beside the main one
const std::vector<Action>& WorldActions();   // processes, files, the window's size
const std::vector<Action>& HelperActions();  // mounts, start scripts, display modes

inline Json Command(std::initializer_list<Json> parts) {
    return Json::array_t(parts);
}

bool Reachable(World& world, const char* control);
// The click, if the control can be reached.
Commands Clicked(World& world, const char* control);

// Something that can be done now, by weight.
struct Step {
    std::string action;
    Commands commands;
};
Step NextStep(World& world, Random& random);

}  // namespace kivu::walker
