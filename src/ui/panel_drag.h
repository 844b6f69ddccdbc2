#pragma once

#include <vector>

#include "core/form1.h"
#include "core/hook.h"

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

    explicit PanelDrag(core::Form1& form) : form(form) {}

    std::vector<Target> Targets() const;
    void SettingsSubPicture_MouseDown(const forms::Mouse& mouse);
    // Follows the mouse, and comes to rest; does nothing for any other control than the panel.
    void DragOver(const Target& target, const forms::Control& source, int x, int y);
    void DragDrop(const Target& target, const forms::Control& source, int x, int y);

    // Brings a panel back that lies outside of the window.
    core::Hook<void()> KeepInside;
    core::Hook<void()> DockNearHome;

 private:
    core::Form1& form;
    // From the panel's edges to where it was grabbed.
    double grabX = 0, grabY = 0;
};

}  // namespace kivu::ui
