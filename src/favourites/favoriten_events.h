#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "favourites/favoriten.h"
#include "favourites/global_favoriten.h"
#include "favourites/repair_favoriten.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"

namespace kivu::favourites {

// What happens on FavoritenListe and on the buttons AddToFavorit and DeLFav.
class FavoritenEvents {
 public:
    struct Hooks {
        core::Hook<void()> LaunchBtn_Click;
        // The game of the row marked in the list in front becomes the selected one. True: that has
        // gone.
        core::Hook<bool()> MarkedGameHasGone;
        core::Hook<void(int, int, int, int)> SelectSimilarDisks;
        core::Hook<void()> RefreshList;  // the list in front, the tabs and their counts
        core::Hook<void(forms::Character&)> EmuListbox_KeyPress;
    };
    struct Services {
        platform::Dialogs& dialogs;
        platform::Beeper& beeper;
    };

    FavoritenEvents(core::Form1& form, Favoriten& store, GlobalFavoriten& global, Repair& repair,
                    core::BusyState& busy, core::EventPacer& pacer, Services services)
        : form(form),
          store(store),
          global(global),
          repair(repair),
          busy(busy),
          pacer(pacer),
          services(services) {}

    // Selects the favourite's game in the game list, or asks whether to repair the favourites.
    void FavoritenListe_Click();
    void FavoritenListe_DblClick();
    // Selects the game of the marked row, by its click unless it is selected already. False: there
    // is none, and the user has been asked whether to repair the favourites.
    bool SelectGame();
    // The row of UAE_FULL of the marked row's game, -1 for none; found without a turn for events.
    int RowOfGame() const;
    // The buttons that make sense for a chosen favourite.
    void OfferButtons();
    void FavoritenListe_MouseDown(const forms::Mouse& mouse);
    void FavoritenListe_KeyDown(forms::Key& key);
    void FavoritenListe_KeyPress(forms::Character& character);
    void AddToFavorit_Click();
    void DeLFav_Click();

    Hooks hooks;

 private:
    int FindGame(const FavoritEntry& favourite);
    bool IsInStep() const;
    // False: the repair has made the row that was clicked another one.
    bool AskForRepair(const FavoritEntry& favourite);
    void ShowGame(int row);

    core::Form1& form;
    Favoriten& store;
    GlobalFavoriten& global;
    Repair& repair;
    core::BusyState& busy;
    core::EventPacer& pacer;
    Services services;
    // A search lets events run: a newer click may be through before an older one goes on.
    unsigned clicks = 0;
    bool gameFound = false;  // by the last click
};

}  // namespace kivu::favourites
