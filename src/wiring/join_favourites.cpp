// The favourites of the loaded emulator, and those of all.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinFavourites() {
    favoritenEvents.ports.launching = gameLaunch;
    favoritenEvents.ports.drives = driveSlots;
    globalEvents.ports.launching = gameLaunch;
    globalEvents.ports.layout = layout;

    forms::ListBox& list = form.FavoritenListe;
    list.onClick = [this] { favoritenEvents.FavoritenListe_Click(), markedGame.ShowName(); };
    list.onDblClick = [this] { favoritenEvents.FavoritenListe_DblClick(); };
    list.onGotFocus = [this] { listEvents.FavoritenListe_GotFocus(); };
    list.onLostFocus = [this] { listEvents.FavoritenListe_LostFocus(); };
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
