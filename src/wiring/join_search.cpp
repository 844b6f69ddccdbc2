// The search box, its results and the search through all emulators.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinSearch() {
    listSearch.ports.front = listEvents;
    listSearch.ports.launching = gameLaunch;
    // Ctrl+Enter, and Enter over the emulators or over their hits, search everywhere.
    listSearch.hooks.SearchAllBtn_Click = [this] { globalSearch.SearchAllBtn_Click(); };
    globalSearch.ports.front = listEvents;
    // A hit shows its emulator.
    globalSearch.hooks.ShowEmulatorPreview = [this](int row) { previews.ShowEmulatorPreview(row); };
    globalSearch.hooks.RefreshHints = [this] { hints.Refresh(); };

    forms::TextBox& box = form.SearchDblsTxt;
    box.onChange = [this] { globalSearch.SearchDblsTxt_Change(), hints.Refresh(); };
    box.onGotFocus = [this] { listSearch.SearchDblsTxt_GotFocus(); };
    box.onLostFocus = [this] { listSearch.SearchDblsTxt_LostFocus(); };
    box.onKeyDown = [this](forms::Key& key) { listSearch.SearchDblsTxt_KeyDown(key); };
    box.onKeyPress = [this](forms::Character& key) { listSearch.SearchDblsTxt_KeyPress(key); };
    // Over the open choice of emulators it closes that one first, as the tabs do.
    form.SuchErg.onClick = [this] { emulatorBox.LeaveOpenChoice(), listSearch.SuchErg_Click(); };
    form.SearchAllBtn.onClick = [this] { globalSearch.SearchAllBtn_Click(); };

    forms::ListBox& results = form.SuchErgList;
    results.onClick = [this] { listSearch.SuchErgList_Click(), markedGame.ShowName(); };
    results.onDblClick = [this] { listSearch.SuchErgList_DblClick(); };
    results.onGotFocus = [this] { listEvents.SuchErgList_GotFocus(); };
    results.onKeyPress = [this](forms::Character& key) { listSearch.SuchErgList_KeyPress(key); };

    forms::ListBox& hits = form.GlobalSearchList;
    hits.onClick = [this] { globalSearch.GlobalSearchList_Click(); };
    hits.onDblClick = [this] { globalSearch.GlobalSearchList_DblClick(); };
    hits.onKeyPress = [this](forms::Character& key) {
        globalSearch.GlobalSearchList_KeyPress(key);
    };
}

}  // namespace kivu::wiring
