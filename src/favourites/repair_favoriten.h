#pragma once

#include <string>

#include "core/busy_state.h"
#include "favourites/favoriten.h"
#include "favourites/store_in_memory.h"
#include "library/game_index.h"
#include "platform/dialogs.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::favourites {

// Looks for each favourite of the emulator in the game list, gives it the path at which it is now,
// drops it when it is gone, and tells what it has done.
class Repair {
 public:
    Repair(core::Form1& form, Favoriten& store, core::BusyState& busy, core::EventPacer& pacer,
           platform::Dialogs& dialogs)
        : form(form), store(store), busy(busy), pacer(pacer), dialogs(dialogs) {}

    // Events run on the way. A second one within the first does nothing.
    void RepairFavoriten();
    bool IsRunning() const { return running; }

 private:
    std::string Walk(StoreInMemory& memory);
    void RepairRow(StoreInMemory& memory, library::GameIndex& games, int row, std::string& report);

    core::Form1& form;
    Favoriten& store;
    core::BusyState& busy;
    core::EventPacer& pacer;
    platform::Dialogs& dialogs;
    bool running = false;
};

}  // namespace kivu::favourites
