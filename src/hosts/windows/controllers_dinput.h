#pragma once

#include <chrono>
#include <optional>
#include <vector>

#include "hosts/windows/device_notices.h"
#include "hosts/windows/dinput_device.h"
#include "platform/clock.h"
#include "platform/controllers.h"
#include "platform/log.h"

namespace kivu::hosts {

// By DirectInput 8, for the window's thread alone. x, y and rz are DirectInput's, and hats are x
// and y.
class DirectInputControllers : public platform::Controllers {
 public:
    DirectInputControllers(platform::Clock& clock, platform::Log& log) : clock(clock), log(log) {}

    std::optional<std::vector<platform::Controller>> Open() override;
    bool Read(std::size_t device, platform::ControllerState& state) override;
    void Close() override;
    bool Changed() override;

 private:
    DirectInputDevice OpenDevice(const DIDEVICEINSTANCEW& found, const std::string& name);

    platform::Clock& clock;
    platform::Log& log;
    ComPointer<IDirectInput8W> service;
    std::vector<DirectInputDevice> devices;
    std::vector<GUID> known;  // of those that are no mouse and no keyboard
    std::optional<DeviceNotices> notices;
    int looksLeft = 0;
    std::chrono::milliseconds nextLook{0};
};

}  // namespace kivu::hosts
