#pragma once

#include <string>

namespace kivu::core {

// Which list or control is in front. The numbers are those that ListMode spells.
enum class Front : int {
    favourites = 1,
    simple = 2,
    complete = 3,
    results = 4,
    choice = 5,     // the list of emulators has been opened
    searchBox = 7,  // has the focus
    longList = 10,  // the list of emulators has the focus
};

// What is in front, and what the lists are at.
struct ListState {
    std::string ListMode = "2";
    int CurrentEmuIndex = -1;    // row of the emulator whose data is loaded
    int EmuBoxIndexSaved = -1;   // row to go back to when the long list closes
    bool ListsVisible = true;    // what HideAll was last told
    bool EmuListLocked = false;  // SelectEmulator does nothing

    bool ShortListHasFocus = false, DoublesListHasFocus = false, DoublesListBusy = false;
    bool FavouritesListBusy = false;

    void SetMode(Front front) { ListMode = std::to_string(static_cast<int>(front)); }
    // ListMode as the number that it spells; of another text one that is nothing's.
    Front Mode() const;
    // The same, with the search box as the results that belong to it.
    Front ListOfMode() const;
    // The list of emulators: opened, or with the focus.
    bool ModeIsChoice() const;
};

// The lists' number among the four of the loaded emulator, from 0 on.
constexpr int IndexOf(Front front) {
    return static_cast<int>(front) - 1;
}
constexpr bool IsGameList(Front front) {
    return front >= Front::favourites && front <= Front::results;
}

}  // namespace kivu::core
