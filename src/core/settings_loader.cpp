#include "core/settings_loader.h"

#include "text/paths.h"
#include "text/stored_paths.h"

namespace kivu::core {

namespace {
constexpr const char* settings = "Settings";
}

void SettingsLoader::LoadSettings() {
    for (int i = 1; i <= 12; ++i) {
        form.JoystickButtons[static_cast<std::size_t>(i - 1)] = ini.ReadIniNumber(
            settings, "Button" + std::to_string(i), form.BaseIniName, std::to_string(i - 1), true);
    }
    LoadPaths();
    LoadDrivesPanel();
    form.TmpBatName = form.StartPfad + form.EXE + "_tmp.bat";
    hooks.SetColors();
    LoadJoystick();
    form.ExitButtonAction =
        ini.ReadIniNumber(settings, "UseJoystickExitbutton", form.BaseIniName, "0", true);
    const int smart = ini.ReadIniNumber(settings, "SmartRomSelection", form.IniPath, "1", true);
    form.SettingsSubPicture.SetVisible(smart == 1);
}

std::string SettingsLoader::AbsolutePath(const std::string& stored) const {
    return text::ProfilePath(form.BaseDirectory(), stored, [this](const std::string& path) {
        return files.FileExists(path) || files.IsDirectory(path);
    });
}

// A program named without a directory may be anywhere in the search path of a POSIX host, where the
// start looks for it.
std::string SettingsLoader::EmulatorPath(const std::string& stored) const {
    const std::string path = AbsolutePath(stored);
    const bool bareName = !stored.empty() && stored.find_first_of("/\\") == std::string::npos;
    const bool posix = files.Separator() == '/';
    return bareName && posix && !files.FileExists(path) ? stored : path;
}

void SettingsLoader::LoadPaths() {
    const auto read = [&](const char* key) {
        return ini.ReadIniValue(settings, key, form.IniPath, "", true);
    };
    form.TxtRomPath.SetText(read("RomPath"));
    form.TxtRomPath.SetText(text::AddPathSeparator(AbsolutePath(form.TxtRomPath.Text())));
    form.txtWinUAEExe.SetText(read("EmulatorPath"));
    form.txtWinUAEExe.SetText(EmulatorPath(form.txtWinUAEExe.Text()));
    form.FontSizeCombo.SetListIndex(
        ini.ReadIniNumber(settings, "Fontsize", form.BaseIniName, "16", true));
    form.TxtKickstartRomFile.SetText(read("KickstartRom"));
    if (!form.TxtKickstartRomFile.Text().empty()) {
        form.TxtKickstartRomFile.SetText(AbsolutePath(form.TxtKickstartRomFile.Text()));
    }
    form.FullscreenCheck.SetValue(
        ini.ReadIniNumber(settings, "FullScreen", form.IniPath, "1", true));
}

void SettingsLoader::LoadDrivesPanel() {
    forms::PictureBox& panel = form.SettingsSubPicture;
    const auto place = [&](const char* key, int present) {
        return ini.ReadIniWide(settings, key, form.IniPath, std::to_string(present), true)
            .value_or(present);
    };
    panel.SetLeft(place("DrvWindowX", panel.Left()));
    panel.SetTop(place("DrvWindowY", panel.Top()));
    // A place from another size of the window, or of a profile that only took over the one that it
    // found, may lie anywhere by now.
    const std::string docked =
        ini.ReadIniValue(settings, "DrvWindowDocked", form.IniPath, "", false);
    if (docked == "1" || (docked != "0" && hooks.DrivesCoverOthers && hooks.DrivesCoverOthers()))
        hooks.DockDrives();
}

void SettingsLoader::LoadJoystick() {
    const auto wanted = [&] {
        return ini.ReadIniNumber(settings, "UseJoystick", form.BaseIniName, "1", true);
    };
    hooks.JoystickEnable(wanted() > 0);
    // Until there is a device layer, nobody can say that no device was found.
    if (!hooks.JoystickCount || wanted() != 1 || hooks.JoystickCount() > 0) return;
    // The box may stand for long.
    ini.StoreWriteBacks();
    const std::string question = form.Say(
        "Es wurden keine Joysticks oder Gampads gefunden!\r\r"
        "Soll die Joystick-Bedienung den Optionen ausgeschaltet werden?",
        "No Joysticks or Gampads found!\r\rDo you want to disable the Joystick-Navigation? ");
    if (dialogs.MessageBox(question, "Joysticks / Gamepads = 0)", platform::Buttons::YesNo,
                           platform::Icon::Question) != platform::Answer::Yes) {
        return;
    }
    ini.WriteIniValue(settings, "UseJoystick", "0", form.BaseIniName, true);
    hooks.JoystickEnable(true);
}

}  // namespace kivu::core
