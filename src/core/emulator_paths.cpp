#include "core/emulator_paths.h"

#include <optional>

#include "text/paths.h"
#include "text/text.h"

namespace kivu::core {

std::string FindByName(const platform::FileSystem& files, const std::string& directory,
                       const std::string& name) {
    const std::string exact = directory + name;
    if (files.FileExists(exact) || files.IsDirectory(exact)) return exact;
    const auto entries = files.ListDirectory(directory);
    if (!entries) return exact;
    for (const auto& entry : *entries) {
        if (text::EqualsNoCase(entry.name, name)) return directory + entry.name;
    }
    return exact;
}

std::string SkinDirectory(const platform::FileSystem& files, const std::string& profileDirectory) {
    const std::string own = text::AddPathSeparator(profileDirectory);
    // Below nothing would be below the root.
    const auto found = own.empty() ? std::nullopt : files.FindDirectory(own, "Skin");
    return own + found.value_or("Skin") + files.Separator();
}

void AssignProgram(ProgramFiles& program, const platform::FileSystem& files,
                   const std::string& directory, const std::string& name) {
    const char separator = files.Separator();
    program.AppDir = directory;
    if (program.AppDir.empty() || program.AppDir.back() != separator) program.AppDir += separator;
    program.EXE = name;
}

void AssignProgramPaths(ProgramFiles& program, const platform::FileSystem& files) {
    program.BaseIniName = program.ConfigPath + program.EXE + ".ini";
    program.FavoritenGlobalIni = FindByName(files, program.ConfigPath, "Favoriten_Global.ini");
    program.GlobalListName = program.ConfigPath + program.EXE + "_Global.txt";
    program.MasterConfigName.clear();
    program.IniPath = program.StartPfad + program.EXE + ".ini";
    program.CacheName = program.StartPfad + program.EXE + "_Cache.txt";
    program.TmpBatName = program.StartPfad + program.EXE + "_tmp.bat";
    program.StartScriptName = program.StartPfad + program.EXE + "_StartScript.uaecfg";
    program.VBSFilename = program.StartPfad + "Startscript.vbs";
    program.FavoritenIni = FindByName(files, program.StartPfad, "Favoriten.ini");
    // Without an emulator the skin's profile lies beside the others, in no directory of its own.
    program.ColorsIniName = FindByName(files, program.StartPfad, "Skin.ini");
}

void AssignEmulatorPaths(ProgramFiles& program, const platform::FileSystem& files,
                         const std::string& name) {
    program.StartPfad = text::AddPathSeparator(program.ConfigPath + name);
    program.VBSFilename = program.StartPfad + "Startscript.vbs";
    program.FavoritenIni = FindByName(files, program.StartPfad, "Favoriten.ini");
    program.IniPath = program.StartPfad + program.EXE + ".ini";
    program.ColorsIniName = FindByName(files, SkinDirectory(files, program.StartPfad), "Skin.ini");
    program.TmpBatName = program.StartPfad + program.EXE + "_tmp.bat";
    program.CacheName = program.StartPfad + program.EXE + "_Cache.txt";
    program.StartScriptName = program.StartPfad + program.EXE + "_StartScript.uaecfg";
}

profile::keys::Profiles ProfilesOf(const ProgramFiles& program) {
    return {program.BaseIniName, program.IniPath, program.ColorsIniName};
}

}  // namespace kivu::core
