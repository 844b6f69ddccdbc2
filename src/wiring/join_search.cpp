// The search box, its results and the search through all emulators.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinSearch() {
    auto& search = listSearch.hooks;
    search.RebuildLayout = [this] { RefreshList(); };
    // Ctrl+Enter, and Enter over the emulators or over their hits, search everywhere.
    search.SearchAllBtn_Click = [this] { SearchAll(); };
    search.LaunchBtn_Click = [this] { gameLaunch.LaunchBtn_Click(); };
    search.SuchErgList_GotFocus = [this] { listEvents.SuchErgList_GotFocus(); };
    // Letters typed in the results begin a new search, as in the game lists.
    search.EmuListbox_KeyPress = [this](forms::Character& key) {
        emulatorBox.EmuListbox_KeyPress(key);
    };

    auto& all = globalSearch.hooks;
    all.RebuildLayout = [this] { RefreshList(); };
    all.CloseEmulatorChoice = [this] { emulatorBox.CloseChoice(); };
    all.ShowEmulatorPreview = [this](int row) { emulatorBox.hooks.ShowEmulatorPreview(row); };
    // A hit is started as the user would do it: choose the emulator, search there.
    all.EmuListbox_GotFocus = [this] { emulatorBox.EmuListbox_GotFocus(); };
    all.EmuListbox_DblClick = [this] { emulatorBox.EmuListbox_DblClick(); };
    all.SearchDblsTxt_Change = [this] { listSearch.SearchDblsTxt_Change(); };
    all.Label4_Click = [this] { listEvents.Label4_Click(); };
    // Letters typed in the hits narrow them.
    all.EmuListbox_KeyPress = [this](forms::Character& key) {
        emulatorBox.EmuListbox_KeyPress(key);
    };

    forms::TextBox& box = form.SearchDblsTxt;
    box.onChange = [this] {
        globalSearch.SearchDblsTxt_Change();
        hints.Refresh();
    };
    box.onGotFocus = [this] { listSearch.SearchDblsTxt_GotFocus(); };
    box.onLostFocus = [this] { listSearch.SearchDblsTxt_LostFocus(); };
    box.onKeyDown = [this](forms::Key& key) { listSearch.SearchDblsTxt_KeyDown(key); };
    box.onKeyPress = [this](forms::Character& key) { listSearch.SearchDblsTxt_KeyPress(key); };
    // Over the open list of emulators it closes that one first, as the tabs do.
    form.SuchErg.onClick = [this] {
        if (emulatorBox.ChoiceIsOpen()) emulatorBox.LeaveEmulatorBox();
        listSearch.SuchErg_Click();
    };
    form.SearchAllBtn.onClick = [this] { SearchAll(); };

    form.SuchErgList.onClick = [this] {
        listSearch.SuchErgList_Click();
        markedGame.ShowName();
    };
    form.SuchErgList.onDblClick = [this] { listSearch.SuchErgList_DblClick(); };
    form.SuchErgList.onGotFocus = [this] { listEvents.SuchErgList_GotFocus(); };
    form.SuchErgList.onKeyPress = [this](forms::Character& key) {
        listSearch.SuchErgList_KeyPress(key);
    };

    form.GlobalSearchList.onClick = [this] { globalSearch.GlobalSearchList_Click(); };
    form.GlobalSearchList.onDblClick = [this] { globalSearch.GlobalSearchList_DblClick(); };
    form.GlobalSearchList.onKeyPress = [this](forms::Character& key) {
        globalSearch.GlobalSearchList_KeyPress(key);
    };
}

void Launcher::Routines::SearchAll() {
    globalSearch.SearchAllBtn_Click();
    hints.Refresh();
}

}  // namespace kivu::wiring
