#pragma once

#include <string>
#include <utility>
#include <vector>

#include "hosts/controller_shape.h"
#include "hosts/linux/sdl_calls.h"
#include "platform/clock.h"
#include "platform/controllers.h"
#include "platform/log.h"

namespace kivu::hosts {

// By SDL, for the window's thread alone. x and y are the left stick, rz is the right one's
// horizontal axis, as SDL's table of known pads has them; of others x and y are the first two axes.
// Buttons have the numbers of the device, but arrow buttons are none, like hats: they are x and y.
//
// The library brings dozens of others along: it is loaded when controllers are first opened.
// Where it is missing there are none, which is told in the log alone.
class SdlControllers : public platform::Controllers {
 public:
    SdlControllers(platform::Clock& clock, platform::Log& log,
                   std::string library = "libSDL2-2.0.so.0")
        : clock(clock), log(log), library(std::move(library)) {}
    ~SdlControllers() override { SdlControllers::Close(); }
    SdlControllers(const SdlControllers&) = delete;
    SdlControllers& operator=(const SdlControllers&) = delete;

    std::optional<std::vector<platform::Controller>> Open() override;
    bool Read(std::size_t device, platform::ControllerState& state) override;
    void Close() override;
    bool Changed() override;

 private:
    struct Hat {
        Uint8 place = SDL_HAT_CENTERED;
        std::array<Arrow, 4> arrows{};  // what its directions mean, in the order of their bits
    };
    struct Device {
        SDL_Joystick* joystick = nullptr;   // null: it could not be opened
        SDL_GameController* pad = nullptr;  // null: SDL does not know its buttons by their meaning
        SDL_JoystickID id = -1;
        bool hasArrows = false;          // of the pad; its other hats mean nothing
        std::array<Arrow, 32> arrows{};  // what the buttons mean
        std::vector<Hat> hats;
        ShapeMemory shape;
        Taps taps;
    };

    bool LoadService();
    bool StartService();
    Device OpenDevice(int index, const std::string& name);
    void FindArrows(Device& device) const;
    void Update();
    void Take(const SDL_Event& event);
    Device* Find(SDL_JoystickID id);
    void ReadSticks(const Device& device, platform::ControllerState& state) const;
    void ReadButtons(const Device& device, platform::ControllerState& state, Arrows& held) const;

    platform::Clock& clock;
    platform::Log& log;
    std::string library;
    enum class Loading { untried, done, failed };
    Loading loading = Loading::untried;
    SdlCalls calls;
    const SdlCalls* sdl = nullptr;  // while it is open
    std::vector<Device> devices;
    bool changed = false;
};

}  // namespace kivu::hosts
