#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "platform/controllers.h"

namespace kivu::testing {

// Controllers as the test holds them. What is attached later is read once it has been opened, and
// what was opened goes on being the same device.
class ScriptedControllers : public platform::Controllers {
 public:
    struct Device {
        platform::Controller controller;
        platform::ControllerState state;
        int id = NextId();
    };

    std::optional<std::vector<platform::Controller>> Open() override {
        ++opened;
        if (onOpen) onOpen();
        handles.clear();
        if (noService) return std::nullopt;
        std::vector<platform::Controller> list;
        for (const Device& device : devices) {
            list.push_back(device.controller);
            handles.push_back(device.id);
        }
        return list;
    }
    bool Read(std::size_t device, platform::ControllerState& state) override {
        ++reads;
        state = {};
        if (device >= handles.size()) return false;
        const auto found = std::find_if(devices.begin(), devices.end(), [&](const Device& one) {
            return one.id == handles[device];
        });
        if (found == devices.end()) return false;
        state = found->state;
        found->state.pressed = {};
        return true;
    }
    void Close() override {
        ++closed;
        handles.clear();
    }
    bool Changed() override { return std::exchange(changed, false); }
    // The device at that place is the one that was opened there.
    bool IsOpened(std::size_t device) const {
        return device < devices.size() && device < handles.size() &&
               devices[device].id == handles[device];
    }

    std::vector<Device> devices{{{"Mouse", 0}, {}}, {{"Keyboard", 0}, {}}};
    std::function<void()> onOpen;  // while the service looks
    bool noService = false;
    bool changed = false;
    int opened = 0, closed = 0, reads = 0;

 private:
    static int NextId() {
        static std::atomic<int> last = 0;
        return ++last;
    }

    std::vector<int> handles;
};

}  // namespace kivu::testing
