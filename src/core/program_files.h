#pragma once

#include <string>

namespace kivu::core {

// Files of the program and of the emulator of the moment.
struct ProgramFiles {
    // Where the program lies, with a closing separator, and the base name of its file.
    std::string AppDir;
    std::string EXE;

    std::string ConfigPath, StartPfad, IniPath, BaseIniName, ColorsIniName, FavoritenIni,
        FavoritenGlobalIni, VBSFilename, CacheName, GlobalListName, TmpBatName, StartScriptName,
        MasterConfigName;

    const std::string& GetStartPfad() const { return StartPfad; }
    const std::string& GetIniPath() const { return IniPath; }
    const std::string& getBaseIniName() const { return BaseIniName; }
    const std::string& GetFavortitenIni() const { return FavoritenIni; }
    const std::string& GetColorsIniName() const { return ColorsIniName; }
    const std::string& GetVBSFilename() const { return VBSFilename; }

    // The program's directory as path routines want it: without a closing separator.
    std::string BaseDirectory() const;
};

}  // namespace kivu::core
