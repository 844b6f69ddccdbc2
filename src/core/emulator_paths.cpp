#include "core/emulator_paths.h"

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

void AssignProgramPaths(Form1& form, const platform::FileSystem& files) {
    form.BaseIniName = form.ConfigPath + form.EXE + ".ini";
    form.FavoritenGlobalIni = FindByName(files, form.ConfigPath, "Favoriten_Global.ini");
    form.GlobalListName = form.ConfigPath + form.EXE + "_Global.txt";
    form.MasterConfigName.clear();
    form.IniPath = form.StartPfad + form.EXE + ".ini";
    form.CacheName = form.StartPfad + form.EXE + "_Cache.txt";
    form.TmpBatName = form.StartPfad + form.EXE + "_tmp.bat";
    form.StartScriptName = form.StartPfad + form.EXE + "_StartScript.uaecfg";
    form.VBSFilename = form.StartPfad + "Startscript.vbs";
    form.FavoritenIni = FindByName(files, form.StartPfad, "Favoriten.ini");
    // Without an emulator the skin's profile lies beside the others, in no directory of its own.
    form.ColorsIniName = FindByName(files, form.StartPfad, "Skin.ini");
}

void AssignEmulatorPaths(Form1& form, const platform::FileSystem& files, const std::string& name) {
    form.StartPfad = text::AddPathSeparator(form.ConfigPath + name);
    form.VBSFilename = form.StartPfad + "Startscript.vbs";
    form.FavoritenIni = FindByName(files, form.StartPfad, "Favoriten.ini");
    form.IniPath = form.StartPfad + form.EXE + ".ini";
    const std::string skin = FindByName(files, form.StartPfad, "Skin") + files.Separator();
    form.ColorsIniName = FindByName(files, skin, "Skin.ini");
    form.TmpBatName = form.StartPfad + form.EXE + "_tmp.bat";
    form.CacheName = form.StartPfad + form.EXE + "_Cache.txt";
    form.StartScriptName = form.StartPfad + form.EXE + "_StartScript.uaecfg";
}

profile::keys::Profiles ProfilesOf(const Form1& form) {
    return {form.BaseIniName, form.IniPath, form.ColorsIniName};
}

}  // namespace kivu::core
