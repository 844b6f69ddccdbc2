#include "hosts/windows/controllers_dinput.h"

#include <algorithm>
#include <system_error>

namespace kivu::hosts {

namespace {

// A device is seen some time behind the notice of it.
constexpr int looks = 4;
constexpr std::chrono::milliseconds lookPause{500};

std::string Reason(HRESULT failure) {
    return std::system_category().message(failure) + " (" + std::to_string(failure) + ")";
}

BOOL CALLBACK Collect(const DIDEVICEINSTANCEW* device, void* list) {
    static_cast<std::vector<DIDEVICEINSTANCEW>*>(list)->push_back(*device);
    return DIENUM_CONTINUE;
}

HRESULT Attached(IDirectInput8W& service, std::vector<DIDEVICEINSTANCEW>& list) {
    return service.EnumDevices(DI8DEVCLASS_ALL, &Collect, &list, DIEDFL_ATTACHEDONLY);
}

bool IsPointerOrKeyboard(const DIDEVICEINSTANCEW& device) {
    const BYTE type = GET_DIDEVICE_TYPE(device.dwDevType);
    return type == DI8DEVTYPE_MOUSE || type == DI8DEVTYPE_KEYBOARD;
}

std::vector<GUID> Identities(const std::vector<DIDEVICEINSTANCEW>& list) {
    std::vector<GUID> identities;
    for (const DIDEVICEINSTANCEW& device : list) {
        if (!IsPointerOrKeyboard(device)) identities.push_back(device.guidInstance);
    }
    return identities;
}

// In any order.
bool AreSame(const std::vector<GUID>& first, const std::vector<GUID>& second) {
    return std::is_permutation(
        first.begin(), first.end(), second.begin(), second.end(),
        [](const GUID& a, const GUID& b) { return ::IsEqualGUID(a, b) != 0; });
}

}  // namespace

std::optional<std::vector<platform::Controller>> DirectInputControllers::Open() {
    Close();
    HRESULT result =
        ::DirectInput8Create(::GetModuleHandleW(nullptr), DIRECTINPUT_VERSION, IID_IDirectInput8W,
                             reinterpret_cast<void**>(service.Place()), nullptr);
    std::vector<DIDEVICEINSTANCEW> found;
    if (SUCCEEDED(result)) result = Attached(*service, found);
    if (FAILED(result)) {
        log.Write("no game controllers: " + Reason(result));
        Close();
        return std::nullopt;
    }
    if (!notices) notices.emplace();
    std::vector<platform::Controller> list;
    for (const DIDEVICEINSTANCEW& device : found) {
        std::string name = ControllerName(device);
        const bool other = IsPointerOrKeyboard(device);
        devices.push_back(other ? DirectInputDevice() : OpenDevice(device, name));
        if (!other && FAILED(devices.back().Failure())) name.clear();
        list.push_back({name, devices.back().Buttons()});
    }
    known = Identities(found);
    return list;
}

DirectInputDevice DirectInputControllers::OpenDevice(const DIDEVICEINSTANCEW& found,
                                                     const std::string& name) {
    ComPointer<IDirectInputDevice8W> made;
    HRESULT result = service->CreateDevice(found.guidInstance, made.Place(), nullptr);
    if (SUCCEEDED(result)) {
        DirectInputDevice device(std::move(made), clock.Steady());
        result = device.Failure();
        if (SUCCEEDED(result)) return device;
    }
    log.Write("game controller not opened, " + Reason(result) + ": " + name);
    return {};
}

bool DirectInputControllers::Read(std::size_t device, platform::ControllerState& state) {
    state = {};
    return device < devices.size() && devices[device].Read(clock.Steady(), state);
}

void DirectInputControllers::Close() {
    devices.clear();
    known.clear();
    service.Release();
}

bool DirectInputControllers::Changed() {
    if (!service) return false;
    const std::chrono::milliseconds now = clock.Steady();
    if (notices && notices->Take()) {
        looksLeft = looks;
        nextLook = now;
    }
    if (looksLeft == 0 || now < nextLook) return false;
    --looksLeft;
    nextLook = now + lookPause;
    std::vector<DIDEVICEINSTANCEW> found;
    if (FAILED(Attached(*service, found)) || AreSame(Identities(found), known)) return false;
    looksLeft = 0;
    return true;
}

}  // namespace kivu::hosts
