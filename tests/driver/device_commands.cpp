// Game controllers by script.

#include <array>
#include <utility>

#include "driver/commands.h"

namespace kivu::driver {

namespace {

using platform::ControllerState;
using Device = testing::ScriptedControllers::Device;

struct Axis {
    const char* name;
    int ControllerState::*place;
};
constexpr std::array<Axis, 6> axes{{{"x", &ControllerState::x},
                                    {"y", &ControllerState::y},
                                    {"z", &ControllerState::z},
                                    {"rx", &ControllerState::rx},
                                    {"ry", &ControllerState::ry},
                                    {"rz", &ControllerState::rz}}};

// As many as a device's state record has room for.
constexpr int mostButtons = static_cast<int>(std::tuple_size_v<decltype(ControllerState::buttons)>);

std::vector<Device>& Devices(Session& session) {
    return session.Host().controllers.devices;
}

// Mouse and keyboard are there until somebody says what is.
std::vector<Device>& GivenDevices(Session& session) {
    if (!std::exchange(session.devicesGiven, true)) Devices(session).clear();
    return Devices(session);
}

Json ShowDevices(Session& session) {
    Json devices = Json::array();
    for (const Device& device : Devices(session)) {
        Json shown = Json::object();
        shown["name"] = device.controller.name;
        shown["buttonCount"] = device.controller.buttons;
        for (const Axis& axis : axes)
            shown[axis.name] = device.state.*axis.place;
        shown["buttons"] = Json::array();
        for (std::size_t button = 0; button < device.state.buttons.size(); ++button) {
            if (device.state.buttons[button]) shown["buttons"].push_back(button);
        }
        devices.push_back(std::move(shown));
    }
    return Told("devices", std::move(devices));
}

void AddDevice(Session& session, const Json& command) {
    Device device;
    device.controller.name = TextFrom(command[2], "the name");
    device.controller.buttons = WholeFrom(command[3], "the number of buttons");
    if (device.controller.buttons < 0 || device.controller.buttons > mostButtons)
        throw CommandError("a device has 0 to 32 buttons");
    GivenDevices(session).push_back(std::move(device));
}

void SetAxis(ControllerState& state, const std::string& name, const Json& value) {
    for (const Axis& axis : axes) {
        if (name != axis.name) continue;
        const int place = WholeFrom(value, name);
        if (place < 0 || place > 65535) throw CommandError("an axis stands at 0 to 65535");
        state.*axis.place = place;
        return;
    }
    throw CommandError("a device has no " + name);
}

void SetButtons(ControllerState& state, const Json& value) {
    if (!value.is_array()) throw CommandError("buttons must be an array of numbers");
    for (const Json& entry : value) {
        const int button = WholeFrom(entry, "a button");
        if (button < 0 || button >= mostButtons)
            throw CommandError("there is no button " + std::to_string(button));
        state.buttons[static_cast<std::size_t>(button)] = true;
    }
}

void SetDevice(Session& session, const Json& command) {
    const int number = WholeFrom(command[2], "the device");
    std::vector<Device>& devices = Devices(session);
    // What is there until somebody says otherwise has no state to set.
    const std::size_t count = session.devicesGiven ? devices.size() : 0;
    if (number < 0 || static_cast<std::size_t>(number) >= count)
        throw CommandError("no device " + std::to_string(number));
    if (!command[3].is_object()) throw CommandError("the state must be an object");
    ControllerState state;
    for (const auto& [key, value] : command[3].items()) {
        if (key == "buttons") {
            SetButtons(state, value);
        } else {
            SetAxis(state, key, value);
        }
    }
    ControllerState& before = devices[static_cast<std::size_t>(number)].state;
    for (std::size_t i = 0; i < state.buttons.size(); ++i)
        state.pressed[i] = before.pressed[i] || (state.buttons[i] && !before.buttons[i]);
    before = state;
}

Json DeviceCommand(Session& session, const Json& command) {
    const std::string& action = TextFrom(command[1], "the action");
    if (action == "add" && command.size() == 4) {
        AddDevice(session, command);
    } else if (action == "set" && command.size() == 4) {
        SetDevice(session, command);
    } else if (action == "clear" && command.size() == 2) {
        GivenDevices(session).clear();
    } else {
        throw CommandError("device takes \"add\", name, buttons, \"set\", n, {...} or \"clear\"");
    }
    return ShowDevices(session);
}

}  // namespace

const std::vector<Command>& DeviceCommands() {
    static const std::vector<Command> commands{
        {"device", 1, 3, false, DeviceCommand},
    };
    return commands;
}

}  // namespace kivu::driver
