#pragma once

#include <optional>
#include <string>

#include "walker/stores.h"

namespace kivu::walker {

// What a row of a list stands for.
struct Meaning {
    enum class Kind {
        none,  // no row, or one that stands for no game
        gone,  // a row whose game is not in the emulator's lists
        game,
        untold  // cannot be told from what is seen
    };
    Kind kind = Kind::none;
    std::string path, name;
    std::string emulator;
};

Meaning MeaningOf(const Look& look, const Stores& stores, List list, int row);
// Of a row that is marked already. Of a game with several files the one that is selected counts:
// drives that were filled for it stay.
Meaning MeaningAsSelected(const Look& look, const Stores& stores, List list, int row);
// Of the marked row of the list in front. With no row marked there the selected game counts, whose
// name is to be seen.
Meaning MeaningInFront(const Look& look, const Stores& stores);

// What a command is to do, worked out in front of it.
struct Expected {
    enum class Act { nothing, start, setUp, storeOwn, storeGlobal };
    Act act = Act::nothing;
    Meaning meant;      // what is started or stored
    std::string setUp;  // the emulator that is started for setting up
    std::string loads;  // the emulator that is loaded afterwards; empty: the same as before
};

Expected Expect(const Look& look, const Stores& stores, const Json& command);

// A command by its parts.
struct Hand {
    std::string gesture;  // "click", "dblclick", "key", ...
    std::string control;  // without the window; of a later start of the program its file
    int row = -1;
    std::string key;
};
Hand HandOf(const Json& command);

// What a later start of the program may hand over: a whole path, and no question for help.
bool IsFileToStart(const std::string& path);

std::string FileName(const std::string& path);
std::string LowerCase(const std::string& text);

}  // namespace kivu::walker
