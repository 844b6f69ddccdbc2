#pragma once

#include "scenarios/scenario.h"
#include "support/path_forms.h"
#include "text/stored_paths.h"

namespace kivu::scenarios {

// An Amiga with a game of three disks, one of two and one of one, and a second emulator.
class DrivesScenario : public Scenario {
 protected:
    DrivesScenario() {
        WriteProfile({});
        ProgramDirectory::Settings images;
        for (const char* name :
             {"Käfer König (1990)(Maker)(Disk 1 of 3).adf",
              "Käfer König (1990)(Maker)(Disk 2 of 3).adf",
              "Käfer König (1990)(Maker)(Disk 3 of 3).adf", "Moon Miner (1991)(Disk 1 of 2).adf",
              "Moon Miner (1991)(Disk 2 of 2).adf", "Solo Flight (1992)(Other Maker).adf"}) {
            const std::string path = std::string("/Roms/Amiga/") + name;
            tree.Write(path.substr(1), "x");
            const std::string title = name;
            const std::size_t cut = title.find("(Disk");
            images.push_back({path, title.substr(0, cut == std::string::npos ? 31 : cut)});
        }
        tree.WriteCache("Amiga", images);
        tree.Write("Emu/uae", "#!/bin/sh\n");
        tree.Write("Emu/winuae.exe", "MZ");
        tree.AddEmulator("Zed", {{"RomPath", "/Roms/Zed"}, {"WinUAE_UseMasterConfig", "0"}});
        tree.WriteCache("Zed", {{"/Roms/Zed/z.adf", "z.adf"}});
        tree.WriteProgramProfile({{"LastEmulator", "Amiga"}});
    }

    void WriteProfile(const ProgramDirectory::Settings& more) {
        ProgramDirectory::Settings settings = more;
        // The first of two equal keys counts.
        for (const auto& [key, value] : ProgramDirectory::Settings{{"RomPath", "/Roms/Amiga"},
                                                                   {"EmulatorPath", "/Emu/uae"},
                                                                   {"RomCount", "6"},
                                                                   {"WinUAE_ConfigParameter", "-f"},
                                                                   {"WinUAE_UseMasterConfig", "1"},
                                                                   {"SmartRomSelection", "1"},
                                                                   {"FullScreen", "0"},
                                                                   {"SplashTimer", "0"}})
            settings.push_back({key, value});
        tree.AddEmulator("Amiga", settings);
    }

    static constexpr const char* list = "Form1.UAE_Short";

    void ShowFiles() { Do("click", "Form1.Label3"); }
    void ShowGames() { Do("click", "Form1.Label2"); }
    // The drives' disks by their file names.
    Json Disks() {
        Json names = Json::array();
        const Json held = Get("DiskSlots");
        for (std::size_t drive = 0; drive < 5; ++drive) {
            const auto path = held[drive].get<std::string>();
            names.push_back(path.substr(path.find_last_of("/\\") + 1));
        }
        return names;
    }
    Json Ticks() {
        Json ticks = Json::array();
        for (int drive = 0; drive < 5; ++drive)
            ticks.push_back(Get("Check_Dfx(" + std::to_string(drive) + ").Value"));
        return ticks;
    }
    // A drive's line in the start configuration, with the short name that the host may have.
    std::string FloppyLine(int drive, const std::string& name) {
        const std::string path = support::ShortFileName(files, tree.Path("Roms/Amiga/" + name));
        return "floppy" + std::to_string(drive) + "=" +
               files.EncodeText(text::QuoteIfNeeded(path)) + "\r\n";
    }
    std::string StartConfiguration() { return tree.Read("Config/Amiga/Kivu_StartScript.uaecfg"); }
};

}  // namespace kivu::scenarios
