#include "hosts/linux/controllers_sdl.h"

#include <algorithm>
#include <utility>

namespace kivu::hosts {

namespace {

constexpr std::size_t others = 2;  // the mouse and the keyboard in front
constexpr Uint32 service = SDL_INIT_GAMECONTROLLER;

std::string Text(const char* text) {
    return text != nullptr ? text : "";
}

constexpr std::pair<SDL_GameControllerButton, Arrow> padArrows[] = {
    {SDL_CONTROLLER_BUTTON_DPAD_LEFT, Arrow::left},
    {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, Arrow::right},
    {SDL_CONTROLLER_BUTTON_DPAD_UP, Arrow::up},
    {SDL_CONTROLLER_BUTTON_DPAD_DOWN, Arrow::down}};
// In the order of a hat's bits.
constexpr std::array<Uint8, 4> hatBits{SDL_HAT_UP, SDL_HAT_RIGHT, SDL_HAT_DOWN, SDL_HAT_LEFT};
constexpr std::array<Arrow, 4> hatArrows{Arrow::up, Arrow::right, Arrow::down, Arrow::left};

// From SDL's signed range.
int Unsigned(Sint16 value) {
    return value + 32768;
}

}  // namespace

std::optional<std::vector<platform::Controller>> SdlControllers::Open() {
    Close();
    std::vector<platform::Controller> list{{"Mouse", 0}, {"Keyboard", 0}};
    if (!LoadService()) return list;
    sdl = &calls;
    if (!StartService()) {
        log.Write("no game controllers: " + Text(sdl->getError()));
        sdl = nullptr;
        return std::nullopt;
    }
    const int count = std::max(0, sdl->numJoysticks());
    for (int i = 0; i < count; ++i) {
        std::string name = Text(sdl->nameForIndex(i));
        if (name.empty()) name = "Game controller";
        devices.push_back(OpenDevice(i, name));
        SDL_Joystick* joystick = devices.back().joystick;
        if (joystick == nullptr) name.clear();
        list.push_back({name, joystick != nullptr ? std::max(0, sdl->numButtons(joystick)) : 0});
    }
    // What was there before is no news.
    Update();
    for (Device& device : devices)
        device.taps = Taps(clock.Steady());
    changed = false;
    return list;
}

bool SdlControllers::LoadService() {
    if (loading == Loading::untried) {
        std::string failure;
        loading = calls.Load(library, failure) ? Loading::done : Loading::failed;
        if (loading == Loading::failed) log.Write("no game controllers: " + failure);
    }
    return loading == Loading::done;
}

bool SdlControllers::StartService() {
    sdl->setMainReady();
    sdl->setHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    // The service has no window of its own that could be in front.
    sdl->setHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
    // Its own drivers would take a pad away from an emulator that reads it in another way.
    sdl->setHint(SDL_HINT_JOYSTICK_HIDAPI, "0");
    if (sdl->initSubSystem(service) != 0) return false;
    sdl->eventState(SDL_ENABLE);
    sdl->padEventState(SDL_IGNORE);
    return true;
}

SdlControllers::Device SdlControllers::OpenDevice(int index, const std::string& name) {
    Device device;
    device.joystick = sdl->open(index);
    if (device.joystick == nullptr) {
        log.Write("game controller not opened, " + Text(sdl->getError()) + ": " + name);
        return device;
    }
    device.id = sdl->instanceId(device.joystick);
    if (sdl->isPad(index) == SDL_TRUE) device.pad = sdl->openPad(index);
    device.hats.resize(static_cast<std::size_t>(std::max(0, sdl->numHats(device.joystick))));
    if (device.pad != nullptr) FindArrows(device);
    for (Hat& hat : device.hats) {
        if (!device.hasArrows) hat.arrows = hatArrows;
    }
    return device;
}

void SdlControllers::FindArrows(Device& device) const {
    for (const auto& [button, arrow] : padArrows) {
        const SDL_GameControllerButtonBind bind = sdl->getPadBind(device.pad, button);
        device.hasArrows |= bind.bindType != SDL_CONTROLLER_BINDTYPE_NONE;
        if (bind.bindType == SDL_CONTROLLER_BINDTYPE_BUTTON) {
            const auto place = static_cast<std::size_t>(bind.value.button);
            if (place < device.arrows.size()) device.arrows[place] = arrow;
        } else if (bind.bindType == SDL_CONTROLLER_BINDTYPE_HAT) {
            const auto place = static_cast<std::size_t>(bind.value.hat.hat);
            if (place >= device.hats.size()) continue;
            for (std::size_t i = 0; i < hatBits.size(); ++i) {
                if (bind.value.hat.hat_mask == hatBits[i]) device.hats[place].arrows[i] = arrow;
            }
        }
    }
}

void SdlControllers::Close() {
    if (sdl == nullptr) return;
    for (const Device& device : devices) {
        if (device.pad != nullptr) sdl->closePad(device.pad);
        if (device.joystick != nullptr) sdl->close(device.joystick);
    }
    devices.clear();
    sdl->quitSubSystem(service);
    sdl = nullptr;
    changed = false;
}

bool SdlControllers::Changed() {
    if (sdl == nullptr) return false;
    Update();
    return std::exchange(changed, false);
}

// Events that nobody takes would fill the queue, and then news of devices would get lost.
void SdlControllers::Update() {
    sdl->update();
    std::array<SDL_Event, 64> events;
    constexpr auto room = static_cast<int>(std::tuple_size_v<decltype(events)>);
    int count = room;
    while (count == room) {
        count = sdl->peepEvents(events.data(), room, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT);
        for (int i = 0; i < count; ++i)
            Take(events[static_cast<std::size_t>(i)]);
    }
}

void SdlControllers::Take(const SDL_Event& event) {
    if (event.type == SDL_JOYDEVICEADDED || event.type == SDL_JOYDEVICEREMOVED) {
        changed = true;
    } else if (event.type == SDL_JOYBUTTONDOWN) {
        Device* device = Find(event.jbutton.which);
        const std::size_t button = event.jbutton.button;
        if (device == nullptr || button >= device->arrows.size()) return;
        const Arrow arrow = device->arrows[button];
        arrow == Arrow::none ? device->taps.Press(button) : device->taps.Press(arrow);
    } else if (event.type == SDL_JOYHATMOTION) {
        Device* device = Find(event.jhat.which);
        if (device == nullptr || event.jhat.hat >= device->hats.size()) return;
        Hat& hat = device->hats[event.jhat.hat];
        const Uint8 before = std::exchange(hat.place, event.jhat.value);
        for (std::size_t i = 0; i < hatBits.size(); ++i) {
            const bool fresh = (hat.place & hatBits[i]) != 0 && (before & hatBits[i]) == 0;
            if (fresh && hat.arrows[i] != Arrow::none) device->taps.Press(hat.arrows[i]);
        }
    }
}

SdlControllers::Device* SdlControllers::Find(SDL_JoystickID id) {
    const auto found = std::find_if(devices.begin(), devices.end(), [&](const Device& device) {
        return device.joystick != nullptr && device.id == id;
    });
    return found == devices.end() ? nullptr : &*found;
}

bool SdlControllers::Read(std::size_t device, platform::ControllerState& state) {
    state = {};
    if (device < others) return true;
    if (sdl == nullptr || device - others >= devices.size()) return false;
    Device& read = devices[device - others];
    if (read.joystick == nullptr) return true;
    Update();
    if (sdl->getAttached(read.joystick) != SDL_TRUE) return false;
    Arrows held;
    ReadSticks(read, state);
    ReadButtons(read, state, held);
    read.taps.Take(clock.Steady(), state, held);
    // One that is held while the device is opened waits for its rest, as a stick does.
    Steer(state, held);
    state = Shape(state, read.shape);
    return true;
}

void SdlControllers::ReadSticks(const Device& device, platform::ControllerState& state) const {
    if (device.pad != nullptr) {
        state.x = Unsigned(sdl->getPadAxis(device.pad, SDL_CONTROLLER_AXIS_LEFTX));
        state.y = Unsigned(sdl->getPadAxis(device.pad, SDL_CONTROLLER_AXIS_LEFTY));
        state.rz = Unsigned(sdl->getPadAxis(device.pad, SDL_CONTROLLER_AXIS_RIGHTX));
        return;
    }
    const int count = sdl->numAxes(device.joystick);
    if (count > 0) state.x = Unsigned(sdl->getAxis(device.joystick, 0));
    if (count > 1) state.y = Unsigned(sdl->getAxis(device.joystick, 1));
}

void SdlControllers::ReadButtons(const Device& device, platform::ControllerState& state,
                                 Arrows& held) const {
    const int count = sdl->numButtons(device.joystick);
    for (std::size_t i = 0; i < state.buttons.size() && static_cast<int>(i) < count; ++i) {
        if (device.arrows[i] == Arrow::none)
            state.buttons[i] = sdl->getButton(device.joystick, static_cast<int>(i)) != 0;
    }
    if (device.hasArrows) {
        for (const auto& [button, arrow] : padArrows) {
            if (sdl->getPadButton(device.pad, button) != 0) held.Set(arrow);
        }
        return;
    }
    for (std::size_t hat = 0; hat < device.hats.size(); ++hat) {
        const Uint8 value = sdl->getHat(device.joystick, static_cast<int>(hat));
        for (std::size_t i = 0; i < hatBits.size(); ++i) {
            if ((value & hatBits[i]) != 0) held.Set(hatArrows[i]);
        }
    }
}

}  // namespace kivu::hosts
