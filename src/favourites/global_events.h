#pragma once

#include <string>

#include "core/busy_state.h"
#include "core/form1.h"
#include "core/hook.h"
#include "favourites/global_favoriten.h"
#include "platform/beeper.h"
#include "platform/event_pump.h"

namespace kivu::favourites {

// What happens on FavoritenListeGlobal and on the button AddToFavorit_Global, and how the list
// comes up and goes.
class GlobalEvents {
 public:
    struct Hooks {
        core::Hook<void(bool)> SelectEmulator;
        core::Hook<void(const std::string&)> StartGame;
        // The game of the row marked in the list in front becomes the selected one. True: that has
        // gone.
        core::Hook<bool()> MarkedGameHasGone;
        core::Hook<void()> SetToNormal;   // the window is no longer kept on top
        core::Hook<void()> ArrangeLists;  // the list in front, and the tabs
        core::Hook<void()> LeaveEmulatorBox;
        core::Hook<void()> RestoreColours;  // the drop-down's, that the open choice has changed
        core::Hook<void(bool)> ShowEmulatorBox;
    };
    struct Services {
        platform::Beeper& beeper;
        platform::EventPump& events;
    };

    GlobalEvents(core::Form1& form, GlobalFavoriten& store, core::BusyState& busy,
                 Services services)
        : form(form), store(store), busy(busy), services(services) {}

    void FavoritenListeGlobal_Click();
    void FavoritenListeGlobal_DblClick();
    void FavoritenListeGlobal_KeyDown(forms::Key& key);
    void FavoritenListeGlobal_KeyPress(forms::Character& character);
    void AddToFavorit_Global_Click();

    // While the choice of emulators is open, the favourites are the global ones. False: it is not,
    // and the emulator's own are to be shown.
    bool ShowGlobalFavourites();
    // Closes the choice and puts the global list away, if it is on show.
    void LeaveGlobalFavourites();

    Hooks hooks;

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
};

}  // namespace kivu::favourites
