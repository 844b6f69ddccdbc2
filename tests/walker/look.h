#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "core/form1.h"

namespace kivu::walker {

// The lists that can stand in front.
enum class List { favourites, simple, complete, hits, globalFavourites, globalHits, emulators };
inline constexpr std::size_t listCount = 7;

struct ListName {
    const char* control;
    const char* tab;   // empty: it has none
    const char* mode;  // ListMode while it is in front
};
// In the order of List.
inline constexpr std::array<ListName, listCount> listNames{{{"FavoritenListe", "Label1", "1"},
                                                            {"WIthoutDoubles", "Label2", "2"},
                                                            {"UAE_Short", "Label3", "3"},
                                                            {"SuchErgList", "Label4", "4"},
                                                            {"FavoritenListeGlobal", "", "1"},
                                                            {"GlobalSearchList", "Label4", "4"},
                                                            {"EmulatorLongListbox", "", "5"}}};

struct ListLook {
    std::vector<std::string> rows;
    int row = -1;
    bool visible = false;
    double fontSize = 0;

    bool Has(int at) const { return at >= 0 && static_cast<std::size_t>(at) < rows.size(); }
    std::string Text(int at) const { return Has(at) ? rows[static_cast<std::size_t>(at)] : ""; }
    std::string Marked() const { return Text(row); }
};

struct TabLook {
    std::string caption;
    bool visible = false;
};

// The game controller that is attached first.
struct PadLook {
    bool on = false;    // it is opened, and the launcher looks at it
    int focus = 0;      // number of the list that it drives
    int button = -1;    // the one that is held, from 0; -1 for none
    bool adds = false;  // the button for a favourite is to be seen
};

// What somebody sees who looks at the window, and what a routine leaves behind for the next one.
struct Look {
    std::array<ListLook, listCount> lists;
    ListLook dropDown;
    ListLook paths;  // the files of the complete list
    std::array<TabLook, 4> tabs;
    std::string focus;  // empty: nothing has it
    std::string mode;
    std::string searchText, title, started;
    bool titleVisible = false;
    // The file that is to be seen at the right; empty: none is.
    std::string preview;
    bool zoomed = false;
    int loaded = -1;  // row of the loaded emulator
    bool watching = false, picture = false, gameRuns = false;
    bool busyLabel = false, busy = false;
    bool splash = false;  // the loading screen stands
    bool ended = false;
    PadLook pad;

    const ListLook& At(List list) const { return lists[static_cast<std::size_t>(list)]; }
    std::string Loaded() const { return dropDown.Text(loaded); }
    // A game or an emulator that was started for setting up, from the start to its last grace tick.
    bool Running() const { return watching || picture; }
    // A start by the pad that has led to no game leaves the launcher saying so to the pad alone.
    bool PadIsSilent() const { return gameRuns || picture || busy || ended || !pad.on; }
    bool ChoiceOpen() const {
        return At(List::emulators).visible || At(List::globalFavourites).visible;
    }
    // Lists that are to be seen.
    std::vector<List> InFront() const;
};

Look TakeLook(core::Form1& form);

// "UAE_Short" of "Form1.UAE_Short"; nothing where it is none of the lists.
const List* ListOf(const std::string& control);
std::string NameOf(List list);

}  // namespace kivu::walker
