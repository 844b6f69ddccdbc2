#include "hosts/windows/dinput_device.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "hosts/windows/wide_text.h"

namespace kivu::hosts {

namespace {

// In the order of the state's members, all of which are of one size.
constexpr DWORD axisOffsets[] = {offsetof(DIJOYSTATE, lX),  offsetof(DIJOYSTATE, lY),
                                 offsetof(DIJOYSTATE, lZ),  offsetof(DIJOYSTATE, lRx),
                                 offsetof(DIJOYSTATE, lRy), offsetof(DIJOYSTATE, lRz)};
constexpr DWORD hatOffset = offsetof(DIJOYSTATE, rgdwPOV);
constexpr DWORD buttonOffset = offsetof(DIJOYSTATE, rgbButtons);
constexpr DWORD buttonCount = sizeof(DIJOYSTATE::rgbButtons);
constexpr BYTE pressed = 0x80;

DIPROPDWORD BufferOf(DWORD events) {
    DIPROPDWORD property{};
    property.diph.dwSize = sizeof property;
    property.diph.dwHeaderSize = sizeof property.diph;
    property.diph.dwHow = DIPH_DEVICE;
    property.dwData = events;
    return property;
}

}  // namespace

std::string ControllerName(const DIDEVICEINSTANCEW& device) {
    const BYTE type = GET_DIDEVICE_TYPE(device.dwDevType);
    if (type == DI8DEVTYPE_MOUSE) return "Mouse";
    if (type == DI8DEVTYPE_KEYBOARD) return "Keyboard";
    const std::string name = Narrow(device.tszInstanceName);
    const bool controls = type != DI8DEVTYPE_DEVICE && type != DI8DEVTYPE_SCREENPOINTER;
    if (!controls && !name.starts_with("HID-")) return "HID-" + name;
    return name.empty() ? "Game controller" : name;
}

Arrows ArrowsOfHat(DWORD place) {
    Arrows arrows;
    // Drivers say "centred" by -1, in all of it or in its lower half.
    if (LOWORD(place) == 0xFFFF) return arrows;
    const DWORD eighth = (place % 36000 + 2250) / 4500 % 8;
    if (eighth == 7 || eighth <= 1) arrows.Set(Arrow::up);
    if (eighth >= 1 && eighth <= 3) arrows.Set(Arrow::right);
    if (eighth >= 3 && eighth <= 5) arrows.Set(Arrow::down);
    if (eighth >= 5) arrows.Set(Arrow::left);
    return arrows;
}

DirectInputDevice::DirectInputDevice(ComPointer<IDirectInputDevice8W> made,
                                     std::chrono::milliseconds now)
    : device(std::move(made)), taps(now) {
    failure = Prepare();
    if (FAILED(failure)) device.Release();
}

HRESULT DirectInputDevice::Prepare() {
    const HRESULT format = device->SetDataFormat(&c_dfDIJoystick);
    if (FAILED(format)) return format;
    // Without a window there is nothing to be in front; the launcher looks for that itself.
    device->SetCooperativeLevel(nullptr, DISCL_NONEXCLUSIVE | DISCL_BACKGROUND);
    const DIPROPDWORD buffer = BufferOf(128);
    device->SetProperty(DIPROP_BUFFERSIZE, &buffer.diph);
    DIDEVCAPS capabilities{};
    capabilities.dwSize = sizeof capabilities;
    const HRESULT known = device->GetCapabilities(&capabilities);
    if (FAILED(known)) return known;
    buttons = static_cast<int>(std::min<DWORD>(capabilities.dwButtons, 255));
    // What is not there reads as zero, which is one end of an axis, and above for a hat.
    for (std::size_t i = 0; i < axisCount; ++i)
        hasAxis[i] = HasObject(axisOffsets[i]);
    for (std::size_t i = 0; i < hatCount; ++i)
        hasHat[i] = HasObject(hatOffset + static_cast<DWORD>(i * sizeof(DWORD)));
    return S_OK;
}

bool DirectInputDevice::HasObject(DWORD offset) const {
    DIDEVICEOBJECTINSTANCEW object{};
    object.dwSize = sizeof object;
    return SUCCEEDED(device->GetObjectInfo(&object, offset, DIPH_BYOFFSET));
}

bool DirectInputDevice::Read(std::chrono::milliseconds now, platform::ControllerState& state) {
    state = {};
    if (!device) return true;
    DIJOYSTATE raw{};
    device->Acquire();
    device->Poll();
    if (FAILED(device->GetDeviceState(sizeof raw, &raw))) return false;
    TakeBuffer();
    int* const axes[] = {&state.x, &state.y, &state.z, &state.rx, &state.ry, &state.rz};
    const LONG values[] = {raw.lX, raw.lY, raw.lZ, raw.lRx, raw.lRy, raw.lRz};
    for (std::size_t i = 0; i < axisCount; ++i) {
        if (hasAxis[i]) *axes[i] = static_cast<int>(std::clamp<LONG>(values[i], 0, 65535));
    }
    for (std::size_t i = 0; i < buttonCount; ++i)
        state.buttons[i] = (raw.rgbButtons[i] & pressed) != 0;
    Arrows held = HatsOf(raw);
    taps.Take(now, state, held);
    // One that is held while the device is opened waits for its rest, as a stick does.
    Steer(state, held);
    state = Shape(state, shape);
    return true;
}

Arrows DirectInputDevice::HatsOf(const DIJOYSTATE& raw) const {
    Arrows held;
    for (std::size_t i = 0; i < hatCount; ++i) {
        if (hasHat[i]) held.Add(ArrowsOfHat(raw.rgdwPOV[i]));
    }
    return held;
}

// What has happened since the last read. Where the device keeps no buffer nothing has.
void DirectInputDevice::TakeBuffer() {
    std::array<DIDEVICEOBJECTDATA, 128> events{};
    DWORD count = static_cast<DWORD>(events.size());
    if (FAILED(device->GetDeviceData(sizeof events[0], events.data(), &count, 0))) return;
    for (DWORD i = 0; i < std::min<DWORD>(count, events.size()); ++i) {
        const DWORD offset = events[i].dwOfs;
        if (offset >= buttonOffset && offset < buttonOffset + buttonCount) {
            if ((events[i].dwData & pressed) != 0) taps.Press(offset - buttonOffset);
        } else if (offset >= hatOffset && offset < buttonOffset) {
            const std::size_t hat = (offset - hatOffset) / sizeof(DWORD);
            if (!hasHat[hat]) continue;
            const Arrows before = std::exchange(hats[hat], ArrowsOfHat(events[i].dwData));
            for (const Arrow arrow : {Arrow::left, Arrow::right, Arrow::up, Arrow::down}) {
                if (hats[hat].Has(arrow) && !before.Has(arrow)) taps.Press(arrow);
            }
        }
    }
}

}  // namespace kivu::hosts
