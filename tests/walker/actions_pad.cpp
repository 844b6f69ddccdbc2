// A game controller in the player's hands, with the buttons' table from the factory.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

const char* const pollTimer = "Form1.JoystickTimer";

bool Attached(World& world) {
    const auto& devices = world.Host().controllers.devices;
    return !devices.empty() && devices[0].controller.name == "Pad";
}

Json Held(Json state) {
    return Command({"device", "set", 0, std::move(state)});
}

// Released, which the launcher sees, and pressed; it stays down.
template <int button>
Commands Press(World& world, const Look&, Random&) {
    if (!Attached(world)) return {};
    return {Held(Json::object()), Command({"tick", pollTimer}),
            Held(Json{{"buttons", Json::array({button})}}), Command({"tick", pollTimer})};
}

// What a button asks is answered.
template <int button>
Commands PressAndAnswer(World& world, const Look& look, Random& random) {
    Commands commands = Press<button>(world, look, random);
    if (commands.empty()) return {};
    commands.insert(commands.begin(), Command({"answer", random.Chance(40) ? "Yes" : "No"}));
    return commands;
}

Commands LongStep(World& world, const Look&, Random& random) {
    if (!Attached(world)) return {};
    const int button = 4 + random.Below(6);
    return {Held(Json::object()), Command({"tick", pollTimer}),
            Held(Json{{"buttons", Json::array({button})}}), Command({"tick", pollTimer})};
}

// Let go again: held while the devices are opened, the stick would have another middle.
Commands Push(World& world, Random& random, const char* axis) {
    if (!Attached(world)) return {};
    const int place = random.Chance(50) ? 0 : 65535;
    return {Command({"answer", "No"}), Held(Json{{axis, place}}),
            Command({"tick", pollTimer, 1 + random.Below(3)}), Held(Json::object())};
}

Commands PullOutOrPlugIn(World& world, const Look&, Random&) {
    Commands commands{Command({"device", "clear"})};
    if (!Attached(world)) commands.push_back(Command({"device", "add", "Pad", 11}));
    commands.push_back(Command({"device", "add", "Mouse", 0}));
    return commands;
}

Commands Icon(World& world, const Look&, Random& random) {
    if (!Reachable(world, "JoystickIcon") || !Attached(world)) return {};
    return {Held(Json::object()),
            Command({random.Chance(80) ? "click" : "dblclick", "Form1.JoystickIcon"})};
}

// The button that ends a game is held for two seconds, where the profile knows one.
Commands EndByButton(World& world, const Look& look, Random& random) {
    if (!Attached(world) || !look.watching) return {};
    return {Held(Json::object()), Command({"tick", "Form1.ExitButtonTimer"}),
            Held(Json{{"buttons", Json::array({random.Below(3)})}}),
            Command({"tick", "Form1.ExitButtonTimer", 9})};
}

}  // namespace

const std::vector<Action>& PadActions() {
    static const std::vector<Action> actions{
        {"pad: select", 4, PressAndAnswer<0>},
        {"pad: start", 8, PressAndAnswer<1>},
        {"pad: switch emulator", 8, Press<2>},
        {"pad: full screen", 1, Press<3>},
        {"pad: a long step", 6, LongStep},
        {"pad: add to the favourites", 3, Press<10>},
        {"pad: up or down", 8,
         [](World& world, const Look&, Random& random) { return Push(world, random, "y"); }},
        {"pad: left or right", 8,
         [](World& world, const Look&, Random& random) { return Push(world, random, "x"); }},
        {"pad: the second stick", 2,
         [](World& world, const Look&, Random& random) { return Push(world, random, "rz"); }},
        {"pad: pull it out or plug it in", 1, PullOutOrPlugIn},
        {"pad: its icon", 2, Icon},
        {"pad: end the game", 2, EndByButton},
    };
    return actions;
}

}  // namespace kivu::walker
