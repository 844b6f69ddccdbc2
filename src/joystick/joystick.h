#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <vector>

#include "core/hook.h"
#include "joystick/device_names.h"
#include "joystick/pad_receiver.h"
#include "joystick/pad_state.h"
#include "platform/controllers.h"
#include "platform/dialogs.h"
#include "platform/event_pump.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

// The attached devices, where their sticks rest, and one look at them as calls on the main window.
// What a direction or a button means is not known here. There is no detection of edges: what is
// held gives a call at each poll.
class Joystick {
 public:
    // In the axes' own unit, of which there are 65,536: sticks are made quiet by the host.
    static constexpr int deadZone = 2;

    struct Services {
        platform::Controllers& controllers;
        platform::Dialogs& dialogs;
        platform::EventPump& events;
    };
    struct Ports {
        core::Port<PadReceiver> window{"Joystick.window"};
    };

    Joystick(core::Form1& form, Services services) : form(form), services(services) {}

    // Opens all devices anew and takes their present positions for those at rest.
    void InitJoystick(PadReceiver& target, int deadZone);
    void ShutdownJoystick();
    // With mouse and keyboard, and with what has been unplugged since. 0: nothing is open.
    int JoystickCount() const { return JoyCount; }
    // Stops where a call has closed or opened the devices, begun a game or ended the program.
    void PollJoysticks();

    // False: there is no device, or no service for them, which the user is told.
    bool OpenJoysticks();
    void CalibrateJoysticks();
    void ReleaseJoysticks();

    // A device came or went since this was last asked.
    bool HasChanged() { return services.controllers.Changed(); }
    // Then opens all anew, without a word and without letting events run: for those who look while
    // something else is in front. What is held by now acts once it has been released.
    bool TakeChange();
    // Buttons that are down now count as released until they have been. A poll that is under way
    // ends.
    void HoldButtonsBack();

    // What a device asks for at the moment.
    struct Look {
        int device;  // from 1
        std::vector<StickEvent> sticks;
        std::vector<int> buttons;
        std::vector<int> pressed;  // of these, the ones that went down since the last look
    };
    // Each controller that does not rest.
    std::vector<Look> LookAtPads();

    Ports ports;

 private:
    struct Device {
        std::string name;  // empty: it is no controller
        int buttonCount = 0;
        RestPosition rest;
        std::bitset<lastButton + 1> heldBack;  // by the buttons' numbers
    };

    // How many there are. Nothing: there is no service for them.
    std::optional<int> FindDevices();
    void AddDevice(const platform::Controller& found);
    // Nothing: it is gone.
    std::optional<platform::ControllerState> StateOf(int number) const;
    Look LookAt(int number);
    void Tell(const StickEvent& event, int number);

    core::Form1& form;
    Services services;
    PadReceiver* JoyTargetForm = nullptr;
    int JoyDeadZone = 0;
    int JoyCount = 0;
    std::vector<Device> devices;  // used from 1 to JoyCount
    unsigned round = 0;           // another one: a poll that began before is over
    bool opening = false;
};

}  // namespace kivu::joystick
