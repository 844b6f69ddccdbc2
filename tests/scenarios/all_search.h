#pragma once

#include "scenarios/scenario.h"

namespace kivu::scenarios {

// Blanks behind a counter, so that the label keeps its width.
inline const std::string backing(67, ' ');

// A row of hits whose name has so many characters, padded.
inline std::string Padded(const std::string& text, std::size_t nameLength, std::size_t to) {
    return text + std::string(to - nameLength, ' ');
}

// Three emulators, two of them with games, for searches through all their caches.
class AllSearchScenario : public Scenario {
 protected:
    AllSearchScenario() {
        for (const char* name : {"Alpha", "Beta", "Gamma"})
            tree.AddEmulator(name);
        tree.WriteCache("Alpha",
                        {{"/Roms/A/Ant (1990)(Maker)(Disk 1 of 2).adf", "Ant (1990)(Maker)"},
                         {"/Roms/A/Ant (1990)(Maker)(Disk 2 of 2).adf", "Ant (1990)(Maker)"},
                         {"/Roms/A/Bee (1991)(Maker).adf", "Bee (1991)(Maker)"}});
        tree.WriteCache("Beta", {{"/Roms/B/Cat (1992)(Maker).d64", "Cat (1992)(Maker)"},
                                 {"/Roms/B/Giant (1993)(Maker).d64", "Giant (1993)(Maker)"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
    }
    void SearchAll(const char* text) {
        Do("set", "Form1.SearchDblsTxt.Text", text);
        Do("key", "Form1.SearchDblsTxt", "Ctrl+Enter");
    }
    Json Hits() { return Get("GlobalSearchList.List"); }
};

}  // namespace kivu::scenarios
