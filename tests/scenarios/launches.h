#pragma once

#include "scenarios/scenario.h"
#include "support/path_forms.h"
#include "text/stored_paths.h"

namespace kivu::scenarios {

// Games of Alpha, started with settings of the test's own.
class Launch : public LoadedScenario {
 protected:
    std::string StartFile() { return tree.Read("Config/Alpha/Kivu_tmp.bat"); }
    void Profile(ProgramDirectory::Settings settings) {
        settings.insert(settings.begin(),
                        {{"EmulatorPath", "/Emu/alpha"},
                         {"SplashTimer", "0"},
                         {"WinUAE_UseMasterConfig", "0"}});
        tree.AddEmulator("Alpha", settings);
    }
    // As it stands in a start file for cmd.exe: the short name where the host has one.
    std::string Short(const std::string& path) {
        return text::QuoteIfNeeded(support::ShortFileName(files, path));
    }
    std::string Bee() { return tree.Path("Roms/Alpha/Bee (1991)(Maker).adf"); }
};

}  // namespace kivu::scenarios
