#pragma once

#include <array>
#include <chrono>
#include <string>

#include "hosts/controller_shape.h"
#include "hosts/windows/com_pointer.h"
#include "hosts/windows/dinput.h"
#include "platform/controllers.h"

namespace kivu::hosts {

// As the launcher sorts them: a mouse and a keyboard are called so in any language, and one that is
// neither those nor a game controller begins with "HID-", as such devices do where their names are
// not translated.
std::string ControllerName(const DIDEVICEINSTANCEW& device);

// Of a hat's place in hundredths of a degree, clockwise from above.
Arrows ArrowsOfHat(DWORD place);

// One game controller that DirectInput reads in its joystick format.
class DirectInputDevice {
 public:
    // It is there but cannot be opened: at rest, without buttons.
    DirectInputDevice() = default;
    DirectInputDevice(ComPointer<IDirectInputDevice8W> made, std::chrono::milliseconds now);

    // S_OK, or why it could not be opened.
    HRESULT Failure() const { return failure; }
    int Buttons() const { return buttons; }
    // False: it cannot be read, and the state is one at rest.
    bool Read(std::chrono::milliseconds now, platform::ControllerState& state);

 private:
    HRESULT Prepare();
    bool HasObject(DWORD offset) const;
    void TakeBuffer();
    Arrows HatsOf(const DIJOYSTATE& raw) const;

    static constexpr std::size_t axisCount = 6, hatCount = 4;

    ComPointer<IDirectInputDevice8W> device;
    HRESULT failure = E_FAIL;
    int buttons = 0;
    std::array<bool, axisCount> hasAxis{};
    std::array<bool, hatCount> hasHat{};
    std::array<Arrows, hatCount> hats;
    ShapeMemory shape;
    Taps taps;
};

}  // namespace kivu::hosts
