#pragma once

#include <SDL2/SDL.h>
#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

namespace kivu::testing {

// A game controller that SDL makes up, for this process alone, from the constructor to Unplug.
class VirtualPad {
 public:
    struct Parts {
        int axes = 2, buttons = 0, hats = 0;
        // Its buttons and axes have the meanings of a known pad, in SDL's order of them.
        bool known = false;
    };

    VirtualPad(std::string name, Parts parts) : name(std::move(name)), parts(parts) {
        SDL_InitSubSystem(SDL_INIT_JOYSTICK);
        Plug();
    }
    ~VirtualPad() {
        Unplug();
        if (mapped) SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
        SDL_QuitSubSystem(SDL_INIT_JOYSTICK);
    }
    VirtualPad(const VirtualPad&) = delete;
    VirtualPad& operator=(const VirtualPad&) = delete;

    void Plug() {
        SDL_VirtualJoystickDesc description{};
        description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
        description.type = static_cast<Uint16>(parts.known ? SDL_JOYSTICK_TYPE_GAMECONTROLLER
                                                           : SDL_JOYSTICK_TYPE_UNKNOWN);
        description.naxes = static_cast<Uint16>(parts.axes);
        description.nbuttons = static_cast<Uint16>(parts.buttons);
        description.nhats = static_cast<Uint16>(parts.hats);
        description.button_mask = parts.known ? (1U << parts.buttons) - 1 : 0;
        description.axis_mask = parts.known ? (1U << parts.axes) - 1 : 0;
        description.name = name.c_str();
        const int index = SDL_JoystickAttachVirtualEx(&description);
        if (index >= 0) joystick = SDL_JoystickOpen(index);
    }
    void Unplug() {
        if (joystick == nullptr) return;
        const SDL_JoystickID id = SDL_JoystickInstanceID(joystick);
        for (int i = 0; i < SDL_NumJoysticks(); ++i) {
            if (SDL_JoystickGetDeviceInstanceID(i) != id) continue;
            SDL_JoystickDetachVirtual(i);
            break;
        }
        SDL_JoystickClose(std::exchange(joystick, nullptr));
    }
    bool IsPlugged() const { return joystick != nullptr; }

    // They are seen with the next read. From -32768 to 32767.
    void SetAxis(int axis, int value) {
        SDL_JoystickSetVirtualAxis(joystick, axis, static_cast<Sint16>(value));
    }
    void SetButton(int button, bool down) {
        SDL_JoystickSetVirtualButton(joystick, button, down ? 1 : 0);
    }
    void SetHat(int hat, Uint8 value) { SDL_JoystickSetVirtualHat(joystick, hat, value); }

    // As that of a pad that SDL knows, for who opens it after this. False: SDL does not take it.
    bool MapCrossToHat(int hat) {
        // Meanings last as long as somebody keeps the service for them.
        if (!std::exchange(mapped, true)) SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER);
        char id[33] = {};
        SDL_JoystickGetGUIDString(SDL_JoystickGetGUID(joystick), id, sizeof id);
        // The checksum of the name is no part of it; the name itself is.
        std::fill(id + 4, id + 8, '0');
        const std::string from = "h" + std::to_string(hat) + ".";
        const std::string mapping = std::string(id) + "," + name + ",a:b0,b:b1,leftx:a0,lefty:a1" +
                                    ",rightx:a2,dpup:" + from + "1,dpright:" + from +
                                    "2,dpdown:" + from + "4,dpleft:" + from + "8,";
        return SDL_GameControllerAddMapping(mapping.c_str()) == 1;
    }

    // Down and up again, as fast as no read sees it down.
    void Tap(int button) {
        SetButton(button, true);
        SDL_JoystickUpdate();
        SetButton(button, false);
        SDL_JoystickUpdate();
    }
    void TapHat(int hat, Uint8 value) {
        SetHat(hat, value);
        SDL_JoystickUpdate();
        SetHat(hat, SDL_HAT_CENTERED);
        SDL_JoystickUpdate();
    }

 private:
    std::string name;
    Parts parts;
    SDL_Joystick* joystick = nullptr;
    bool mapped = false;
};

}  // namespace kivu::testing
