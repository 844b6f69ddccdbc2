#pragma once

#include <string>

#include "core/hook.h"
#include "core/ports.h"
#include "forms/list_control.h"
#include "platform/dialogs.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

// The game of the row that is marked in the list in front. A launch and the favourites go by
// UAE_Short and UAE_FULL, where another list may have selected another game since; whoever acts on
// the marked row brings them into step first.
class MarkedGame {
 public:
    struct Ports {
        core::Port<core::MarkedFavourite> favourite{"MarkedGame.favourite"};
    };

    MarkedGame(core::Form1& form, platform::Dialogs& dialogs) : form(form), dialogs(dialogs) {}

    // The list of games that the user works in; null over the emulators, over the lists that go
    // through them all, and while no list is on show.
    forms::ListBox* ListInFront() const;

    // Selects the game of the list's marked row by that row's click, unless it is selected already:
    // then nothing is touched, nor the drives. False: no row is marked, or its game has gone, which
    // the user is told.
    bool Select(forms::ListBox& list);

    // The same for the list in front. With no row marked there, the selected game counts, whose
    // name is on show. False: there is nothing to start.
    bool SelectInFront();
    // The same for a button that stores the selected game. False: the marked row's game has gone.
    bool SelectToStore();

    // Writes the name of the marked row's game where none is on show, as the row's click would, and
    // does nothing else that the click does. With no row marked it is the selected game's.
    void ShowName();
    // The same where a list comes to the front: a name that was written for a row marked in another
    // list, and is not the selected game's, gives way.
    void ShowNameInFront();

    // The row of UAE_Short of the selected game, or of a marked one whose name has been written in
    // its place; with none selected, as after a rescan, that of the game marked in the list in
    // front. -1 for none.
    int RowOnShow() const;

    Ports ports;

 private:
    int RowInFront() const;
    void WriteName();
    // The row of UAE_Short of the game that is marked in some list and has its name on show; -1 for
    // none.
    int NamedRow() const;
    // Whether the name on show is that of this row of UAE_FULL.
    bool IsNamed(int row) const;
    // The row of UAE_Short that a game's shown name stands for; -1 for none.
    int RowOf(const forms::ListBox& list) const;
    bool IsInStep(const forms::ListBox& list) const;
    void ClickMarkedRow(forms::ListBox& list);

    core::Form1& form;
    platform::Dialogs& dialogs;
};

}  // namespace kivu::library
