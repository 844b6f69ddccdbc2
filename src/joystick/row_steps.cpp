#include "joystick/row_steps.h"

#include <utility>

#include "core/form1.h"

namespace kivu::joystick {

bool RowSteps::KeepsChosenRows(const forms::ListBox& list) const {
    return &list == &form.UAE_Short && drives.SelectsByHand();
}

forms::ListBox* RowSteps::ListOfAllEmulators() const {
    for (forms::ListBox* list : {&form.FavoritenListeGlobal, &form.GlobalSearchList}) {
        if (list->Visible()) return list;
    }
    return nullptr;
}

void RowSteps::SetRow(forms::ListBox& list, int row) {
    const bool focused = form.Focus() != nullptr;
    if (KeepsChosenRows(list)) {
        list.MoveCurrentRow(row);
    } else {
        list.SetListIndex(row);
    }
    // A button that has gone with the step takes the focus with it, and no key would do anything.
    if (focused && !form.Focus()) list.SetFocus();
}

void RowSteps::SetRowQuietly(forms::ListBox& list, int row) {
    if (!KeepsChosenRows(list)) {
        list.SetListIndexQuietly(row);
        return;
    }
    const auto click = std::exchange(list.onClick, {});
    list.MoveCurrentRow(row);
    list.onClick = click;
}

}  // namespace kivu::joystick
