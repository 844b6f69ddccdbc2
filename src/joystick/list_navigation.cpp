#include "joystick/list_navigation.h"

#include <array>

#include "core/form1.h"
#include "core/raised.h"

namespace kivu::joystick {

namespace keys = forms::keys;

void ListNavigation::JoystickDirection(int KeyValue) {
    if (form.JoystickFocus < 0 || form.Busy) return;
    if (form.EmulatorLongListbox.Visible()) form.JoystickFocus = 5;
    // The search box must not take the focus during the step.
    const bool searching = form.SearchDblsTxt.HasFocus();
    form.SearchDblsTxt.SetEnabled(false);
    if (form.JoystickFocus > 6) form.JoystickFocus = 1;
    const int focus = form.JoystickFocus;
    const bool vertical = KeyValue == keys::up || KeyValue == keys::down;
    const int step = KeyValue == keys::up ? -1 : 1;
    const std::array<forms::ListBox*, 4> lists{&form.FavoritenListe, &form.WIthoutDoubles,
                                               &form.UAE_Short, &form.SuchErgList};
    forms::ListBox* all = rows.ListOfAllEmulators();
    if (all && vertical) {
        MoveRow(*all, step);
    } else if (focus >= 1 && focus <= 4) {
        if (vertical) {
            MoveRow(*lists[static_cast<std::size_t>(focus - 1)], step);
        } else if (KeyValue == keys::left || KeyValue == keys::right) {
            Turn(focus, KeyValue == keys::right);
        }
    } else if (focus == 5 && vertical) {
        MoveEmulator(step);
    }
    form.EmuListbox.SetSelection(form.EmuListbox.SelStart(), 0);
    form.SearchDblsTxt.SetEnabled(true);
    form.EmuListbox.SetEnabled(true);
    // Over the open choice a step to the side leads nowhere.
    if (searching && !form.Focus()) form.SearchDblsTxt.SetFocus();
}

void ListNavigation::MoveRow(forms::ListBox& list, int step) {
    const int row = list.ListIndex();
    if (step < 0 && row < 1) return;
    rows.SetRow(list, row + step);
}

void ListNavigation::Turn(int focus, bool right) {
    GoTo((focus - 1 + (right ? 1 : 3)) % 4 + 1);
    if (focus == 2 && !right) form.FavoritenListe.SetFocus();
}

void ListNavigation::GoTo(int focus) {
    // Behind a start that ended in a box they stand alone in front, and would cover the list.
    globalFavourites.LeaveGlobalFavourites();
    switch (focus) {
        case 1:
            form.FavouritesListBusy = false;
            front.FavoritenListe_GotFocus();
            break;
        case 2:
            front.WIthoutDoubles_GotFocus();
            break;
        case 3:
            front.UAE_Short_GotFocus();
            break;
        case 4:
            front.SuchErgList_GotFocus();
            break;
        default:
            break;
    }
}

void ListNavigation::MoveEmulator(int step) {
    form.EmuListbox.SetEnabled(true);
    const int row = form.EmuListbox.ListIndex() + step;
    const bool possible =
        step < 0 ? form.EmuListbox.ListIndex() >= 1 : row < form.EmuListbox.ListCount();
    if (possible) {
        const core::Raised browsing(form.EmuListBrowsing);
        form.EmuListbox.SetListIndex(row);
        if (step < 0) {
            form.EmuListbox.SetText(form.EmuListbox.SelectedText());
            form.EmuListbox.SetFocus();
        } else {
            choice.EmuListbox_GotFocus();
            // The long list that had it has been put away and brought back.
            if (!form.Focus()) form.EmuListbox.SetFocus();
        }
    }
    form.JoystickFocus = 5;
}

}  // namespace kivu::joystick
