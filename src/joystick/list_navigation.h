#pragma once

#include "core/ports.h"
#include "forms/list_control.h"
#include "joystick/row_steps.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

// One step of an arrow key or of a stick through the lists. Left and right walk the ring of the
// four game lists; up and down move the row.
class ListNavigation {
 public:
    ListNavigation(core::Form1& form, core::ListFront& front, core::EmulatorChoice& choice,
                   core::GlobalFavourites& globalFavourites, const core::Drives& drives)
        : form(form),
          front(front),
          choice(choice),
          globalFavourites(globalFavourites),
          rows(form, drives) {}

    // 37 left, 38 up, 39 right, 40 down.
    void JoystickDirection(int KeyValue);

 private:
    void MoveRow(forms::ListBox& list, int step);
    void Turn(int focus, bool right);
    void GoTo(int focus);
    void MoveEmulator(int step);

    core::Form1& form;
    core::ListFront& front;
    core::EmulatorChoice& choice;
    core::GlobalFavourites& globalFavourites;
    RowSteps rows;
};

}  // namespace kivu::joystick
