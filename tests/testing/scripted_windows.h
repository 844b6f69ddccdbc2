#pragma once

#include <functional>

#include "forms/window_host.h"

namespace kivu::testing {

// Windows without a screen. A modal window is served by a script; one that the script leaves open,
// or that has none, is hidden.
class ScriptedWindows : public forms::WindowHost {
 public:
    forms::Size Room(const forms::Form*) const override { return room; }

    Activity ActiveWindow() const override { return activity; }

    Activity activity = Activity::unknown;
    // What the user does while a modal window waits.
    std::function<void(forms::Form& form, const std::function<bool()>& isOpen)> onModal;
    forms::Size room{1920 * forms::twipsPerPixel, 1080 * forms::twipsPerPixel};

 protected:
    void Serve(forms::Form& form, const std::function<bool()>& isOpen) override {
        if (onModal) onModal(form, isOpen);
    }
};

}  // namespace kivu::testing
