#pragma once

#include "core/ports.h"
#include "forms/list_control.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

// How the controller sets the row of a list. A row out of range changes nothing. Where disks are
// chosen row by row the chosen ones stay, and only the current row moves.
class RowSteps {
 public:
    RowSteps(core::Form1& form, const core::Drives& drives) : form(form), drives(drives) {}

    // As a step of the user: the click handler runs.
    void SetRow(forms::ListBox& list, int row);
    // Of a list that the user does not look at: nothing else follows.
    void SetRowQuietly(forms::ListBox& list, int row);
    // The hits in all emulators, or the favourites of all: while one of them is in front the
    // controller's list is behind it, and what it moves or starts is this one's. Else null.
    forms::ListBox* ListOfAllEmulators() const;
    bool KeepsChosenRows(const forms::ListBox& list) const;

 private:
    core::Form1& form;
    const core::Drives& drives;
};

}  // namespace kivu::joystick
