#pragma once

#include "scenarios/launches.h"

namespace kivu::scenarios {

// Games of Alpha whose images a tool puts into a drive first.
class Mounting : public Launch {
 protected:
    void UseTool(const std::string& path) {
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}, {"DeamonToolPath", path}});
        Profile({{"AutoMountDeamonTool", "1"}});
    }
    // What ran, in order: the text of a start file, else the command.
    std::vector<std::string> Ran() {
        std::vector<std::string> ran;
        const Json runs = Do("runs")["value"];
        for (const Json& run : runs)
            ran.push_back(run.contains("script") ? run["script"] : run["command"]);
        return ran;
    }
    bool MountFileIsThere() { return tree.Exists("Config/Alpha/MountDeamon.bat"); }
};

}  // namespace kivu::scenarios
