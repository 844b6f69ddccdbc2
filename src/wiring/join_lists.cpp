// The loaded emulator's games: their lists, their tabs, the name on show and the rescan.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinLists() {
    gameLists.ports.front = listEvents;
    gameLists.ports.watch = watch;
    gameLists.hooks.SetVorschau = [this] { layout.SetVorschau(); };
    markedGame.ports.favourite = favoritenEvents;
    listEvents.ports.launching = gameLaunch;
    listEvents.ports.drives = driveSlots;
    listEvents.ports.favourite = favoritenEvents;
    listEvents.ports.globalFavourites = globalEvents;
    listEvents.ports.layout = layout;
    // The picture of the game under the cursor, at each change of the selection.
    listEvents.hooks.ShowGamePreview = [this](int row) { previews.ShowGamePreview(row); };
    listEvents.hooks.RefreshPreview = [this] { previews.Refresh(markedGame.RowOnShow()); };
    listEvents.hooks.RefreshHints = [this] { hints.Refresh(); };

    form.UAE_FULL.onClick = [this] { listEvents.UAE_FULL_Click(); };

    forms::ListBox& complete = form.UAE_Short;
    complete.onClick = [this] { listEvents.UAE_Short_Click(), markedGame.ShowName(); };
    complete.onDblClick = [this] { listEvents.UAE_Short_DblClick(); };
    complete.onGotFocus = [this] { listEvents.UAE_Short_GotFocus(); };
    complete.onLostFocus = [this] { listEvents.UAE_Short_LostFocus(); };
    complete.onKeyPress = [this](forms::Character& key) { listEvents.UAE_Short_KeyPress(key); };

    forms::ListBox& simple = form.WIthoutDoubles;
    simple.onClick = [this] { listEvents.WIthoutDoubles_Click(), markedGame.ShowName(); };
    simple.onDblClick = [this] { listEvents.WIthoutDoubles_DblClick(); };
    simple.onGotFocus = [this] { listEvents.WIthoutDoubles_GotFocus(); };
    simple.onLostFocus = [this] { listEvents.WIthoutDoubles_LostFocus(); };
    simple.onKeyPress = [this](forms::Character& key) { listEvents.WIthoutDoubles_KeyPress(key); };

    // While the search box has the focus, the tabs show over the open choice of emulators, which
    // the other three close. The favourites lie over it.
    form.Label1.onClick = [this] { listEvents.Label1_Click(); };
    form.Label2.onClick = [this] { emulatorBox.LeaveOpenChoice(), listEvents.Label2_Click(); };
    form.Label3.onClick = [this] { emulatorBox.LeaveOpenChoice(), listEvents.Label3_Click(); };
    form.Label4.onClick = [this] { emulatorBox.LeaveOpenChoice(), listEvents.Label4_Click(); };

    form.Current_ProgramNameFull.onDblClick = [this] {
        listEvents.Current_ProgramNameFull_DblClick();
    };
    form.LoadBtn.onClick = [this] { gameLists.RescanByButton(); };
    form.TxtRomPath.onChange = [this] { hints.Refresh(); };
    form.FileScanRecursive1.frame.onResize = [this] { scanner.UserControl_Resize(); };
}

}  // namespace kivu::wiring
