#pragma once

#include "scenarios/scenario.h"

namespace kivu::scenarios {

// Games whose order by title is not that of their files.
class ListSearchScenario : public Scenario {
 protected:
    ListSearchScenario() {
        tree.AddEmulator("Alpha");
        tree.AddEmulator("Void");
        tree.WriteCache("Alpha", {{"/Roms/1 Zool.adf", "Zool (1992)(Gremlin)"},
                                  {"/Roms/2 Ant.adf", "Ant (1990)(Maker)"},
                                  {"/Roms/3 Giant.adf", "Giant Ant (1991)(Other)"},
                                  {"/Roms/4 Bee.adf", "Bee (1991)(Maker)"},
                                  {"/Roms/5 Jaeger.adf", "Der Jäger (1990)(Maker)"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        options.language = "English";
    }
    void Type(const char* text) { Do("type", "Form1.SearchDblsTxt", text); }
    Json Hits() { return Get("SuchErgList.List"); }
};

}  // namespace kivu::scenarios
