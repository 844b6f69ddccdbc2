#include "library/find_game.h"

namespace kivu::library {

int FindGameInFullList(core::Form1& form, core::BusyState& busy, core::EventPacer& pacer,
                       const std::string& path) {
    const std::string noted = form.Caption();
    busy.MeCaption(" Suche ...");
    int found = -1;
    for (int row = 0; row < form.UAE_FULL.ListCount() && found < 0; ++row) {
        if (row % 500 == 0) pacer.DoEventsWhenDue();
        if (form.UAE_FULL.List(row).find(path) != std::string::npos) found = row;
    }
    busy.MeCaption(noted);
    return found;
}

}  // namespace kivu::library
