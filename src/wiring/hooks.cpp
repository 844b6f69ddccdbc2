// What each room asks of the others, one line a wish.

#include "support/window_handling.h"
#include "ui/colors.h"
#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinHooks() {
    JoinCore();
    JoinLibrary();
    JoinSearch();
    JoinFavourites();
    JoinLaunch();
    JoinDrives();
    JoinUi();
}

void Launcher::Routines::JoinCore() {
    startUp.hooks.HexToLong = [](const std::string& text) { return ui::HexToLong(text); };
    // A second start hands over to the first, which comes to the front.
    startUp.hooks.PreviousInstance = [this] {
        const std::string file = launch::FileToHandOver(host.commandLine, host.files);
        if (!host.instance.HandOver(form.Caption(), file)) return false;
        EndProgram();
        return true;
    };
    startUp.hooks.ChangeBorderstyle = [this] { support::ChangeBorderstyle(form, 3); };
    startUp.hooks.FillEmulatorLists = [this] { emulatorBox.FillEmulatorLists(); };
    startUp.hooks.SelectEmulator = [this](bool global) { emulatorSwitch.SelectEmulator(global); };
    startUp.hooks.InitEmulatorView = [this] { emulatorSwitch.InitEmulatorView(); };
    startUp.hooks.ArrangeWindow = [this] { layout.Form_Resize(); };

    auto& change = emulatorSwitch.hooks;
    change.ShowEmulatorBox = [this](bool show) { emulatorBox.ShowEmulatorBox(show); };
    change.LeaveEmulatorBox = [this] { emulatorBox.LeaveEmulatorBox(); };
    change.HideListsOfRunning = [this] { watch.HideListsOfRunning(); };
    change.RebuildLayout = [this] { RefreshList(); };
    change.ArrangeWindow = [this] { layout.Form_Resize(); };
    change.SetVorschau = [this] { layout.SetVorschau(); };
    change.Label1_Click = [this] { listEvents.Label1_Click(); };
    change.Label2_Click = [this] { listEvents.Label2_Click(); };
    change.AddToALL_LIST = [this] { gameLists.AddToALL_LIST(); };
    change.SetToTop = [this] { alwaysOnTop.SetToTop(); };
    change.LoadSettings = [this] { settingsLoader.LoadSettings(); };
    change.StartGame = [this](const std::string& path) { gameLaunch.StartGame(path); };
    change.LoadCacheList = [this] { gameLists.LoadCacheList(); };
    change.BuildDoublesList = [this] { gameLists.BuildDoublesList(); };
    change.WatchOnce = [this] { watch.WatchOnce(); };
    change.EndProgram = [this] { EndProgram(); };

    shutDown.EndProgram = [this] { EndProgram(); };
    windowKeys.hooks.ExitBtn_Click = [this] { shutDown.ExitBtn_Click(); };
    windowKeys.hooks.AppRunningPicture_Click = [this] { watch.AppRunningPicture_Click(); };
    windowKeys.hooks.JoystickDirection = [this](int key) { navigation.JoystickDirection(key); };
}

void Launcher::Routines::JoinLibrary() {
    gameLists.hooks.EmuListbox_Click = [this] { emulatorBox.EmuListbox_Click(); };
    gameLists.hooks.RefreshList = [this] { RefreshList(); };
    gameLists.hooks.LeaveChoice = [this] { LeaveChoice(); };
    gameLists.hooks.HideListsOfRunning = [this] { watch.HideListsOfRunning(); };
    gameLists.hooks.SelectEmulator = [this](bool global) { emulatorSwitch.SelectEmulator(global); };

    auto& box = emulatorBox.hooks;
    box.SelectEmulator = [this](bool global) { emulatorSwitch.SelectEmulator(global); };
    box.RebuildLayout = [this] { RefreshList(); };
    box.ArrangeTabs = [this] { layout.ArrangeTabs(); };
    box.HideListsOfRunning = [this] { watch.HideListsOfRunning(); };
    box.WritePrompt = [this] { startUp.WritePrompt(); };
    box.Label1_Click = [this] { listEvents.Label1_Click(); };
    box.Label2_Click = [this] { listEvents.Label2_Click(); };
    box.SetVorschau = [this] { layout.SetVorschau(); };
    // The right mouse button opens an emulator without a game.
    box.StartEmulator = [this](const std::string& name, bool ask) {
        emulatorSetup.StartEmulator(name, ask);
    };

    auto& lists = listEvents.hooks;
    lists.RefreshList = [this] { RefreshList(); };
    lists.LaunchBtn_Click = [this] { gameLaunch.LaunchBtn_Click(); };
    // Letters typed in a game list go where those typed in the emulator list go.
    lists.EmuListbox_KeyPress = [this](forms::Character& key) {
        emulatorBox.EmuListbox_KeyPress(key);
    };

    navigation.hooks.LeaveGlobalFavourites = [this] { globalEvents.LeaveGlobalFavourites(); };
    navigation.hooks.FavoritenListe_GotFocus = [this] { listEvents.FavoritenListe_GotFocus(); };
    navigation.hooks.WIthoutDoubles_GotFocus = [this] { listEvents.WIthoutDoubles_GotFocus(); };
    navigation.hooks.UAE_Short_GotFocus = [this] { listEvents.UAE_Short_GotFocus(); };
    navigation.hooks.SuchErgList_GotFocus = [this] { listEvents.SuchErgList_GotFocus(); };
    navigation.hooks.EmuListbox_GotFocus = [this] { emulatorBox.EmuListbox_GotFocus(); };
}

void Launcher::Routines::JoinLaunch() {
    watch.hooks.CloseChoice = [this] { emulatorBox.CloseChoice(); };
    watch.hooks.WIthoutDoubles_GotFocus = [this] { listEvents.WIthoutDoubles_GotFocus(); };
    watch.hooks.RefreshList = [this] { RefreshList(); };
    watch.hooks.Label1_Click = [this] { listEvents.Label1_Click(); };
    watch.hooks.Label2_Click = [this] { listEvents.Label2_Click(); };
    watch.hooks.SetToTop = [this] { alwaysOnTop.SetToTop(); };

    // An emulator's window must not come up behind the launcher's.
    gameLaunch.hooks.SetToNormal = [this] { alwaysOnTop.SetToNormal(); };
    gameLaunch.hooks.SetWindowBackToNormal = [this] { alwaysOnTop.SetWindowBackToNormal(); };
    gameLaunch.hooks.LeaveChoice = [this] { LeaveChoice(); };
    gameLaunch.hooks.RefreshList = [this] { RefreshList(); };

    // The loaded emulator starts it, whatever row of the choice has been looked at.
    handedFile.hooks.LeaveEmulatorBox = [this] { LeaveChoice(); };
    handedFile.hooks.SetToNormal = [this] { alwaysOnTop.SetToNormal(); };
    handedFile.hooks.StartGame = [this](const std::string& path) { gameLaunch.StartGame(path); };
    handedFile.hooks.BoxIsOpen = [this] { return windows.Questions() > 0; };

    emulatorSetup.hooks.SetCurrentRunninApplication = [this](const std::string& name) {
        gameLaunch.SetCurrentRunninApplication(name);
    };
    emulatorSetup.hooks.EmuActiveTimer_Timer = [this] { watch.EmuActiveTimer_Timer(); };
}

void Launcher::Routines::JoinUi() {
    layout.hooks.ChangeBorderstyle = [this](int mode) { support::ChangeBorderstyle(form, mode); };
    fontSize.Form_Resize = [this] { layout.Form_Resize(); };
    surface.hooks.MeCaption = [this](const std::string& caption) { busy.MeCaption(caption); };
    surface.hooks.ApplyAlwaysOnTop = [this] { alwaysOnTop.SetToTop(); };
}

}  // namespace kivu::wiring
