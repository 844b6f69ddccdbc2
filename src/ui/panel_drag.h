#pragma once

#include <vector>

#include "core/ports.h"
#include "forms/control.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// Moves the drives panel about the window by drag and drop.
class PanelDrag {
 public:
    // Where the panel may be dropped. A drop's place counts from the target's edges; the origins'
    // places added to it lead into the window.
    struct Target {
        forms::Control* control = nullptr;
        std::vector<const forms::Control*> origins;
    };
    // The controls that the panel goes by while it is dragged.
    static constexpr const char* tag = "Pic";

    PanelDrag(core::Form1& form, core::WindowLayout& layout) : form(form), layout(layout) {}

    std::vector<Target> Targets() const;
    void SettingsSubPicture_MouseDown(const forms::Mouse& mouse);
    // Follows the mouse, and comes to rest; does nothing for any other control than the panel.
    void DragOver(const Target& target, const forms::Control& source, int x, int y);
    void DragDrop(const Target& target, const forms::Control& source, int x, int y);

 private:
    core::Form1& form;
    core::WindowLayout& layout;
    // From the panel's edges to where it was grabbed.
    double grabX = 0, grabY = 0;
};

}  // namespace kivu::ui
