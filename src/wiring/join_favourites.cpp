// What the favourites ask of the other rooms and these of them, and what their controls run.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinFavourites() {
    favoriten.hooks.UpdateListCaptions = [this] { gameLists.UpdateListCaptions(); };
    emulatorSwitch.hooks.LoadFavoriten = [this] { favoriten.LoadFavoriten(); };

    auto& own = favoritenEvents.hooks;
    own.LaunchBtn_Click = [this] { gameLaunch.LaunchBtn_Click(); };
    own.MarkedGameHasGone = [this] { return !markedGame.SelectToStore(); };
    own.RefreshList = [this] { RefreshList(); };
    // Letters typed in a game list go where those typed in the emulator list go.
    own.EmuListbox_KeyPress = [this](forms::Character& key) {
        emulatorBox.EmuListbox_KeyPress(key);
    };

    auto& global = globalEvents.hooks;
    global.SelectEmulator = [this](bool add) { emulatorSwitch.SelectEmulator(add); };
    global.StartGame = [this](const std::string& path) { gameLaunch.StartGame(path); };
    global.MarkedGameHasGone = own.MarkedGameHasGone;
    global.SetToNormal = [this] { alwaysOnTop.SetToNormal(); };
    global.ArrangeLists = [this] { layout.ArrangeLists(); };
    global.RestoreColours = [this] { emulatorBox.RestoreColours(); };
    global.LeaveEmulatorBox = [this] { emulatorBox.LeaveEmulatorBox(); };
    global.ShowEmulatorBox = [this](bool show) { emulatorBox.ShowEmulatorBox(show); };

    auto& lists = listEvents.hooks;
    lists.ShowGlobalFavourites = [this] {
        if (globalEvents.ShowGlobalFavourites()) return true;
        // A favourite that is still chosen can be removed at once.
        if (form.FavoritenListe.ListIndex() >= 0) favoritenEvents.OfferButtons();
        return false;
    };
    lists.LeaveGlobalFavourites = [this] { globalEvents.LeaveGlobalFavourites(); };
    // A game that is selected can be made a favourite.
    lists.OfferFavouriteButtons = [this] {
        form.AddToFavorit.SetVisible(true);
        form.AddToFavorit_Global.SetVisible(true);
    };

    markedGame.hooks.SelectFavourite = [this] { return favoritenEvents.SelectGame(); };
    markedGame.hooks.RowOfFavourite = [this] { return favoritenEvents.RowOfGame(); };

    forms::ListBox& list = form.FavoritenListe;
    list.onClick = [this] {
        favoritenEvents.FavoritenListe_Click();
        markedGame.ShowName();
    };
    list.onDblClick = [this] { favoritenEvents.FavoritenListe_DblClick(); };
    list.onMouseDown = [this](const forms::Mouse& mouse) {
        favoritenEvents.FavoritenListe_MouseDown(mouse);
    };
    list.onKeyDown = [this](forms::Key& key) { favoritenEvents.FavoritenListe_KeyDown(key); };
    list.onKeyPress = [this](forms::Character& key) {
        favoritenEvents.FavoritenListe_KeyPress(key);
    };

    forms::ListBox& globalList = form.FavoritenListeGlobal;
    globalList.onClick = [this] { globalEvents.FavoritenListeGlobal_Click(); };
    globalList.onDblClick = [this] { globalEvents.FavoritenListeGlobal_DblClick(); };
    globalList.onKeyDown = [this](forms::Key& key) {
        globalEvents.FavoritenListeGlobal_KeyDown(key);
    };
    globalList.onKeyPress = [this](forms::Character& key) {
        globalEvents.FavoritenListeGlobal_KeyPress(key);
    };

    form.AddToFavorit.onClick = [this] { favoritenEvents.AddToFavorit_Click(); };
    form.AddToFavorit_Global.onClick = [this] { globalEvents.AddToFavorit_Global_Click(); };
    form.DeLFav.onClick = [this] { favoritenEvents.DeLFav_Click(); };
}

}  // namespace kivu::wiring
