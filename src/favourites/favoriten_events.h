#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "favourites/favoriten.h"
#include "favourites/global_favoriten.h"
#include "favourites/repair_favoriten.h"
#include "forms/types.h"
#include "library/marked_game.h"
#include "platform/beeper.h"
#include "platform/dialogs.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::favourites {

// What happens on FavoritenListe and on the buttons AddToFavorit and DeLFav.
class FavoritenEvents : public core::MarkedFavourite {
 public:
    struct Ports {
        core::Port<core::Launching> launching{"FavoritenEvents.launching"};
        core::Port<core::Drives> drives{"FavoritenEvents.drives"};
    };
    struct Routines {
        core::EmulatorChoice& choice;
        core::ListFront& front;
        library::MarkedGame& marked;
    };
    struct Services {
        platform::Dialogs& dialogs;
        platform::Beeper& beeper;
    };

    FavoritenEvents(core::Form1& form, Favoriten& store, GlobalFavoriten& global, Repair& repair,
                    core::BusyState& busy, core::EventPacer& pacer, Services services,
                    Routines routines)
        : form(form),
          store(store),
          global(global),
          repair(repair),
          busy(busy),
          pacer(pacer),
          services(services),
          routines(routines) {}

    // Selects the favourite's game in the game list, or asks whether to repair the favourites.
    void FavoritenListe_Click();
    void FavoritenListe_DblClick();
    // Selects the game of the marked row, by its click unless it is selected already. False: there
    // is none, and the user has been asked whether to repair the favourites.
    bool SelectGame() override;
    // The row of UAE_FULL of the marked row's game, -1 for none; found without a turn for events.
    int RowOfGame() const override;
    void OfferButtons() override;
    void FavoritenListe_MouseDown(const forms::Mouse& mouse);
    void FavoritenListe_KeyDown(forms::Key& key);
    void FavoritenListe_KeyPress(forms::Character& character);
    void AddToFavorit_Click();
    void DeLFav_Click();

    Ports ports;

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
    Routines routines;
    // A search lets events run: a newer click may be through before an older one goes on.
    unsigned clicks = 0;
    bool gameFound = false;  // by the last click
};

}  // namespace kivu::favourites
