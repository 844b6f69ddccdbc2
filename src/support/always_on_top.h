#pragma once

#include "forms/controls.h"
#include "forms/form.h"
#include "platform/user_store.h"

namespace kivu::support {

// The pin that keeps a window on top. Its state is one for all windows of the user, kept in the
// per-user store; each pin acts on its own window.
class AlwaysOnTop {
 public:
    struct Pictures {
        forms::Image& enabled;
        forms::Image& disabled;
        forms::Image& hover;
    };

    AlwaysOnTop(forms::Form& parent, Pictures pictures, platform::UserStore& store)
        : parent(parent), pictures(pictures), store(store) {}

    void SetWindowAlwayOnTop();
    bool GetIsOnTop() const { return isOnTop; }
    void SetWindowBackToNormal();
    // On top, and off it, without a change of the state; the first only while the state is on.
    void SetToTop();
    void SetToNormal();
    void SaveSettings();
    // On unless the user has switched it off.
    void LoadSettings();

    void AOT_Enabled_Click() { SetWindowBackToNormal(); }
    void AOT_Disabled_Click() { SetWindowAlwayOnTop(); }
    void AOT_MouseMove_Click() { SetWindowAlwayOnTop(); }
    void AOT_Disabled_MouseMove();
    // The mouse has gone on to the window.
    void MouseLeft();

 private:
    void ShowState();
    // False: the session has no such thing, and a pin would do nothing.
    bool HasPin() const;

    forms::Form& parent;
    Pictures pictures;
    platform::UserStore& store;
    bool isOnTop = false;
};

}  // namespace kivu::support
