// Routines of the game controllers.

#include "driver/routines.h"
#include "wiring/routines.h"

namespace kivu::driver {

using std::optional;
using std::string;

namespace {

void AddDevices(RoutineTable& table, Session& session) {
    auto& all = session.Routines();
    auto& controllers = all.controllers;
    // There is one window to open them for.
    table.push_back(Bind("InitJoystick", [&all](string window, int deadZone) {
        if (!SameName(window, all.form.Name())) throw CommandError("no target " + window);
        all.controllers.InitJoystick(all.padEvents, deadZone);
    }));
    table.push_back(Bind("ShutdownJoystick", [&controllers] { controllers.ShutdownJoystick(); }));
    table.push_back(Bind("JoystickCount", [&controllers] { return controllers.JoystickCount(); }));
    table.push_back(Bind("PollJoysticks", [&controllers] { controllers.PollJoysticks(); }));
    table.push_back(Bind("OpenJoysticks", [&controllers] { return controllers.OpenJoysticks(); }));
    table.push_back(
        Bind("CalibrateJoysticks", [&controllers] { controllers.CalibrateJoysticks(); }));
    table.push_back(Bind("ReleaseJoysticks", [&controllers] { controllers.ReleaseJoysticks(); }));
}

void AddEvents(RoutineTable& table, Session& session) {
    auto& pad = session.Routines().padEvents;
    const auto add = [&](const char* name, auto move) {
        table.push_back(Bind(name, [&pad, move](int value, int device, int panel) {
            (pad.*move)(value, device, panel);
        }));
    };
    add("Joystick_Right", &joystick::PadEvents::Joystick_Right);
    add("Joystick_Left", &joystick::PadEvents::Joystick_Left);
    add("Joystick_UP", &joystick::PadEvents::Joystick_UP);
    add("Joystick_Down", &joystick::PadEvents::Joystick_Down);
    table.push_back(Bind("Joystick_Button",
                         [&pad](int device, int button) { pad.Joystick_Button(device, button); }));
    table.push_back(Bind("SetJoystickButtonSetupModus",
                         [&pad](bool value) { pad.SetJoystickButtonSetupModus(value); }));
}

}  // namespace

void AddJoystickRoutines(RoutineTable& table, Session& session) {
    AddDevices(table, session);
    AddEvents(table, session);
    auto& all = session.Routines();
    table.push_back(
        Bind("JoystickEnable", [&all](bool on) { all.joystickControl.JoystickEnable(on); }));
    table.push_back(
        Bind("JoystickTimer_Timer", [&all] { all.joystickControl.JoystickTimer_Timer(); }));
    table.push_back(
        Bind("JoystickIcon_Click", [&all] { all.joystickControl.JoystickIcon_Click(); }));
    table.push_back(
        Bind("JoystickIcon_DblClick", [&all] { all.buttonSetup.JoystickIcon_DblClick(); }));
    table.push_back(
        Bind("JoystickDirection", [&all](int key) { all.navigation.JoystickDirection(key); }));
    table.push_back(Bind("JoystickButtonClick",
                         [&all](int button) { all.buttonActions.JoystickButtonClick(button); }));
    // Of the window that asks for the buttons, while it is open.
    table.push_back(
        Bind("SetNextButton", [&all](int button) { all.buttonSetup.SetNextButton(button); }));
}

}  // namespace kivu::driver
