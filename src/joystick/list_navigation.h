#pragma once

#include "core/form1.h"
#include "core/hook.h"

namespace kivu::joystick {

// One step of an arrow key or of a stick through the lists. Left and right walk the ring of the
// four game lists; up and down move the row.
class ListNavigation {
 public:
    struct Hooks {
        core::Hook<void()> LeaveGlobalFavourites;
        core::Hook<void()> FavoritenListe_GotFocus;
        core::Hook<void()> WIthoutDoubles_GotFocus;
        core::Hook<void()> UAE_Short_GotFocus;
        core::Hook<void()> SuchErgList_GotFocus;
        core::Hook<void()> EmuListbox_GotFocus;
    };

    explicit ListNavigation(core::Form1& form) : form(form) {}

    // 37 left, 38 up, 39 right, 40 down.
    void JoystickDirection(int KeyValue);

    Hooks hooks;

 private:
    void MoveRow(forms::ListBox& list, int step);
    void Turn(int focus, bool right);
    void GoTo(int focus);
    void MoveEmulator(int step);

    core::Form1& form;
};

}  // namespace kivu::joystick
