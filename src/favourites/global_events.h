#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/hook.h"
#include "core/ports.h"
#include "favourites/global_favoriten.h"
#include "forms/types.h"
#include "library/marked_game.h"
#include "platform/beeper.h"
#include "platform/event_pump.h"
#include "support/always_on_top.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::favourites {

// What happens on FavoritenListeGlobal and on the button AddToFavorit_Global, and how the list
// comes up and goes.
class GlobalEvents : public core::GlobalFavourites {
 public:
    struct Ports {
        core::Port<core::Launching> launching{"GlobalEvents.launching"};
        core::Port<core::WindowLayout> layout{"GlobalEvents.layout"};
    };
    struct Routines {
        core::EmulatorSwitching& emulators;
        core::EmulatorChoice& choice;
        library::MarkedGame& marked;
        support::AlwaysOnTop& alwaysOnTop;
    };
    struct Services {
        platform::Beeper& beeper;
        platform::EventPump& events;
    };

    GlobalEvents(core::Form1& form, GlobalFavoriten& store, core::BusyState& busy,
                 Services services, Routines routines)
        : form(form), store(store), busy(busy), services(services), routines(routines) {}

    void FavoritenListeGlobal_Click();
    void FavoritenListeGlobal_DblClick();
    void FavoritenListeGlobal_KeyDown(forms::Key& key);
    void FavoritenListeGlobal_KeyPress(forms::Character& character);
    void AddToFavorit_Global_Click();

    bool ShowGlobalFavourites() override;
    void LeaveGlobalFavourites() override;

    Ports ports;

 private:
    int RowOfEmulator(const std::string& name) const;
    // False: the program has ended, or another emulator is loaded.
    bool SwitchTo(int row);
    void SearchFor(const std::string& name);
    void FocusListInFront();

    core::Form1& form;
    GlobalFavoriten& store;
    core::BusyState& busy;
    Services services;
    Routines routines;
};

}  // namespace kivu::favourites
