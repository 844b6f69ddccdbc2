// The drives panel, and the files that tell WinUAE what lies in the drives.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinDrives() {
    // A profile with a master configuration has one from its first selection on.
    emulatorSwitch.hooks.GetMasterConfig = [this] { uaeFiles.GetMasterConfig(); };
    gameLaunch.hooks.WriteStartConfiguration = [this](bool windowsPaths) {
        uaeFiles.WriteStartConfiguration(windowsPaths);
    };
    // The loading screen names each disk.
    uaeFiles.hooks.Add_CURRENT_PROGRAM_STARTED = [this](std::string& name) {
        gameLaunch.Add_CURRENT_PROGRAM_STARTED(name);
    };

    auto& lists = listEvents.hooks;
    lists.FillDrivesFromFile = [this](int) { driveSlots.FillFromFile(); };
    lists.ShowOneDisk = [this] { driveSlots.ShowOneDisk(); };
    lists.FillDrivesFromGame = [this](int row) { driveSlots.FillFromGame(row); };
    lists.SelectsByHand = [this] { return driveSlots.SelectsByHand(); };
    // Whatever offers the buttons after a click in a list does so after a click on a file.
    driveSlots.hooks.OfferFavouriteButtons = [this] { listEvents.hooks.OfferFavouriteButtons(); };

    for (forms::CheckBox& box : form.Check_Dfx) {
        const int drive = box.Index();
        box.onMouseUp = [this, drive](const forms::Mouse&) { driveSlots.Check_Dfx_MouseUp(drive); };
        box.onKeyPress = [this, drive](forms::Character& key) {
            driveSlots.Check_Dfx_KeyPress(drive, key);
        };
    }
    // A favourite brings the other disks of its game.
    favoritenEvents.hooks.SelectSimilarDisks = [this](int row, int back, int forward, int limit) {
        driveSlots.SelectSimilarDisks(row, back, forward, limit);
    };
    JoinPanelDrag();
}

void Launcher::Routines::JoinPanelDrag() {
    form.SettingsSubPicture.onMouseDown = [this](const forms::Mouse& mouse) {
        panelDrag.SettingsSubPicture_MouseDown(mouse);
    };
    for (const ui::PanelDrag::Target& target : panelDrag.Targets()) {
        target.control->onDragOver = [this, target](forms::Control& source, int x, int y) {
            panelDrag.DragOver(target, source, x, y);
        };
        target.control->onDragDrop = [this, target](forms::Control& source, int x, int y) {
            panelDrag.DragDrop(target, source, x, y);
        };
    }
    // A panel that was let go of at the edge must not be out of reach.
    panelDrag.KeepInside = [this] { layout.ResizeSettingsWindow(); };
    panelDrag.DockNearHome = [this] { layout.DockDrivesNearHome(); };
    settingsLoader.hooks.DrivesCoverOthers = [this] { return layout.DrivesCoverOthers(); };
    settingsLoader.hooks.DockDrives = [this] { layout.DockDrives(); };
    shutDown.DrivesAreHome = [this] { return layout.DrivesAreHome(); };
}

}  // namespace kivu::wiring
