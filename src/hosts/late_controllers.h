#pragma once

#include "platform/controllers.h"

namespace kivu::hosts {

// Controllers that are looked for once the window stands: the system's service for them is slow to
// come up, and the start does not wait for it. Until then there are a mouse and a keyboard; then
// the list has changed.
class LateControllers : public platform::Controllers {
 public:
    explicit LateControllers(platform::Controllers& controllers) : controllers(controllers) {}

    void Wake() { awake = true; }

    std::optional<std::vector<platform::Controller>> Open() override {
        waiting = !awake;
        if (waiting) return std::vector<platform::Controller>{{"Mouse", 0}, {"Keyboard", 0}};
        return controllers.Open();
    }
    bool Read(std::size_t device, platform::ControllerState& state) override {
        if (!waiting) return controllers.Read(device, state);
        state = {};
        return device < 2;
    }
    void Close() override {
        if (!waiting) controllers.Close();
        waiting = false;
    }
    // Until they are opened anew.
    bool Changed() override { return waiting ? awake : controllers.Changed(); }

 private:
    platform::Controllers& controllers;
    bool awake = false;
    bool waiting = false;  // opened without the service
};

}  // namespace kivu::hosts
