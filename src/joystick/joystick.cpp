#include "joystick/joystick.h"

#include "core/form1.h"
#include "core/raised.h"

namespace kivu::joystick {

namespace {

constexpr const char* opened = "Init Joysticks...";

// Says that devices are looked for, and goes as it came.
class Notice {
 public:
    explicit Notice(forms::Label& label)
        : label(label), caption(label.Caption()), visible(label.Visible()) {
        label.SetVisible(true);
        label.SetCaption(opened);
    }
    ~Notice() {
        // Events have run: it may say something else by now.
        if (label.Caption() == opened) label.SetCaption(caption);
        label.SetVisible(visible);
    }
    Notice(const Notice&) = delete;
    Notice& operator=(const Notice&) = delete;

 private:
    forms::Label& label;
    const std::string caption;
    const bool visible;
};

}  // namespace

void Joystick::InitJoystick(PadReceiver& target, int deadZone) {
    if (opening) return;
    OpenJoysticks();
    JoyTargetForm = &target;
    JoyDeadZone = deadZone;
    CalibrateJoysticks();
}

void Joystick::ShutdownJoystick() {
    ReleaseJoysticks();
    JoyTargetForm = nullptr;
}

bool Joystick::OpenJoysticks() {
    if (opening) return false;
    const core::Raised once(opening);
    std::optional<int> count;
    {
        const Notice notice(form.Current_LoadingSmallBtn);
        services.events.DoEvents();
        if (form.Ended) return false;
        count = FindDevices();
    }
    if (!count) {
        services.dialogs.MessageBox(
            "Direct Input konnte nicht initialisiert werden!\r"
            "Joystick initialisierung fehlgeschlagen.",
            core::defaultTitle, platform::Buttons::Ok, platform::Icon::Warning);
        return false;
    }
    return *count > 0;
}

std::optional<int> Joystick::FindDevices() {
    const auto list = services.controllers.Open();
    ++round;
    if (!list) return {};
    const int count = static_cast<int>(list->size());
    if (count == 0) return count;
    devices.assign(1, {});
    for (const platform::Controller& controller : *list)
        AddDevice(controller);
    JoyCount = count;
    return count;
}

void Joystick::AddDevice(const platform::Controller& found) {
    Device device;
    if (!IsNoController(found.name, Stage::open)) {
        device.name = found.name;
        device.buttonCount = found.buttons;
    }
    devices.push_back(std::move(device));
}

void Joystick::CalibrateJoysticks() {
    for (int i = 1; i <= JoyCount; ++i) {
        Device& device = devices[static_cast<std::size_t>(i)];
        if (!IsNoController(device.name, Stage::calibrate))
            device.rest = RestOf(StateOf(i).value_or(platform::ControllerState{}), device.rest);
    }
}

void Joystick::ReleaseJoysticks() {
    services.controllers.Close();
    devices.clear();
    JoyCount = 0;
    ++round;
}

std::optional<platform::ControllerState> Joystick::StateOf(int number) const {
    platform::ControllerState state;
    if (!services.controllers.Read(static_cast<std::size_t>(number - 1), state)) return {};
    return state;
}

bool Joystick::TakeChange() {
    if (opening || !HasChanged()) return false;
    ReleaseJoysticks();
    FindDevices();
    CalibrateJoysticks();
    HoldButtonsBack();
    return true;
}

Joystick::Look Joystick::LookAt(int number) {
    Device& device = devices[static_cast<std::size_t>(number)];
    const auto read = StateOf(number);
    // One that is gone rests, wherever its middle was taken to be.
    if (!read) return {number, {}, {}, {}};
    const platform::ControllerState& state = *read;
    Look look{number, StickEvents(state, device.rest, JoyDeadZone), {}, {}};
    std::bitset<lastButton + 1> down;
    for (const int button : PressedButtons(state, device.buttonCount)) {
        const auto place = static_cast<std::size_t>(button);
        down.set(place);
        if (device.heldBack.test(place)) continue;
        look.buttons.push_back(button);
        if (state.pressed[place - 1]) look.pressed.push_back(button);
    }
    device.heldBack &= down;
    return look;
}

void Joystick::PollJoysticks() {
    const unsigned begun = round;
    const bool inGame = form.GameIsRunning;
    const auto over = [&] {
        return round != begun || form.Ended || (form.GameIsRunning && !inGame);
    };
    for (int i = 1; i <= JoyCount; ++i) {
        if (IsNoController(devices[static_cast<std::size_t>(i)].name, Stage::poll)) continue;
        // What is called may run for long, and find the devices open anew.
        const Look look = LookAt(i);
        for (const StickEvent& event : look.sticks) {
            Tell(event, i);
            if (over()) return;
        }
        for (const int button : look.buttons) {
            ports.window->Joystick_Button(i, button);
            if (over()) return;
        }
    }
}

void Joystick::Tell(const StickEvent& event, int number) {
    PadReceiver& window = *ports.window.operator->();
    switch (event.move) {
        case Move::right:
            // The first stick's goes to the window that the devices were opened for.
            if (event.panel != 1) {
                window.Joystick_Right(event.value, number, event.panel);
            } else if (JoyTargetForm) {
                JoyTargetForm->Joystick_Right(event.value, number, event.panel);
            }
            break;
        case Move::left:
            window.Joystick_Left(event.value, number, event.panel);
            break;
        case Move::up:
            window.Joystick_UP(event.value, number, event.panel);
            break;
        case Move::down:
            window.Joystick_Down(event.value, number, event.panel);
            break;
    }
}

void Joystick::HoldButtonsBack() {
    ++round;
    for (int i = 1; i <= JoyCount; ++i) {
        Device& device = devices[static_cast<std::size_t>(i)];
        if (IsNoController(device.name, Stage::poll)) continue;
        device.heldBack.reset();
        const auto state = StateOf(i);
        if (!state) continue;
        for (const int button : PressedButtons(*state, device.buttonCount))
            device.heldBack.set(static_cast<std::size_t>(button));
    }
}

std::vector<Joystick::Look> Joystick::LookAtPads() {
    std::vector<Look> looks;
    for (int i = 1; i <= JoyCount; ++i) {
        if (IsNoController(devices[static_cast<std::size_t>(i)].name, Stage::poll)) continue;
        Look look = LookAt(i);
        if (!look.sticks.empty() || !look.buttons.empty()) looks.push_back(std::move(look));
    }
    return looks;
}

}  // namespace kivu::joystick
