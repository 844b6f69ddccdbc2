#include "core/settings_loader.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/profile_paths.h"
#include "text/paths.h"

namespace kivu::core {

namespace keys = profile::keys;

void SettingsLoader::LoadSettings() {
    LoadButtons();
    LoadPaths();
    LoadDrivesPanel();
    form.TmpBatName = form.StartPfad + form.EXE + "_tmp.bat";
    hooks.SetColors();
    LoadJoystick();
    form.ExitButtonAction = ini.Read(keys::UseJoystickExitbutton, ProfilesOf(form));
    const int smart = ini.Read(keys::SmartRomSelection, ProfilesOf(form));
    form.SettingsSubPicture.SetVisible(smart == 1);
}

void SettingsLoader::LoadLook() {
    drivesOf = form.IniPath;
    form.FontSizeCombo.SetListIndex(ini.Read(keys::Fontsize, ProfilesOf(form)));
    hooks.SetColors();
}

void SettingsLoader::LoadButtons() {
    for (std::size_t action = 0; action < keys::Buttons.size(); ++action)
        form.JoystickButtons[action] = ini.Read(keys::Buttons[action], ProfilesOf(form));
}

std::string SettingsLoader::AbsolutePath(const std::string& stored) const {
    return PathOfProfile(form, files, stored);
}

std::string SettingsLoader::EmulatorPath(const std::string& stored) const {
    return ProgramOfProfile(form, files, stored);
}

void SettingsLoader::LoadPaths() {
    form.TxtRomPath.SetText(ini.Read(keys::RomPath, ProfilesOf(form)));
    form.TxtRomPath.SetText(text::AddPathSeparator(AbsolutePath(form.TxtRomPath.Text())));
    form.txtWinUAEExe.SetText(ini.Read(keys::EmulatorPath, ProfilesOf(form)));
    form.txtWinUAEExe.SetText(EmulatorPath(form.txtWinUAEExe.Text()));
    form.FontSizeCombo.SetListIndex(ini.Read(keys::Fontsize, ProfilesOf(form)));
    form.TxtKickstartRomFile.SetText(ini.Read(keys::KickstartRom, ProfilesOf(form)));
    if (!form.TxtKickstartRomFile.Text().empty()) {
        form.TxtKickstartRomFile.SetText(AbsolutePath(form.TxtKickstartRomFile.Text()));
    }
    form.FullscreenCheck.SetValue(ini.Read(keys::FullScreen, ProfilesOf(form)));
}

void SettingsLoader::LoadDrivesPanel() {
    forms::PictureBox& panel = form.SettingsSubPicture;
    panel.SetLeft(ini.Read(keys::DrvWindowX, ProfilesOf(form), panel.Left()));
    panel.SetTop(ini.Read(keys::DrvWindowY, ProfilesOf(form), panel.Top()));
    // A place from another size of the window, or of a profile that only took over the one that it
    // found, may lie anywhere by now.
    const std::string docked = ini.Read(keys::DrvWindowDocked, ProfilesOf(form));
    if (docked == "1" || (docked != "0" && ports.layout->DrivesCoverOthers()))
        ports.layout->DockDrives();
    drivesOf = form.IniPath;
}

void SettingsLoader::LoadJoystick() {
    const auto wanted = [&] { return ini.Read(keys::UseJoystick, ProfilesOf(form)); };
    // The start has given the devices to the game, and its end takes them back.
    if (form.EmulatorRuns() && wanted() > 0) return;
    hooks.JoystickEnable(wanted() > 0);
    if (wanted() != 1 || hooks.JoystickCount() > 0) return;
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
    ini.Write(keys::UseJoystick, ProfilesOf(form), "0");
    hooks.JoystickEnable(false);
}

}  // namespace kivu::core
