#pragma once

#include <functional>
#include <string>

#include "forms/types.h"

namespace kivu::forms {
class Form;
class Label;
}  // namespace kivu::forms

// What routines ask of the main window's other routines. Where the one that serves is built first,
// the other takes a reference to it; where it is built later, a Port (hook.h) that wiring/ sets.
namespace kivu::core {

// The list in front, and the tabs that put one there.
class ListFront {
 public:
    virtual ~ListFront() = default;
    // The list in front, the tabs and their counts.
    virtual void RefreshList() = 0;
    // The tabs: each puts its list in front and gives it the focus.
    virtual void Label1_Click() = 0;
    virtual void Label2_Click() = 0;
    virtual void Label4_Click() = 0;
    // The same without the way of the mouse.
    virtual void FavoritenListe_GotFocus() = 0;
    virtual void WIthoutDoubles_GotFocus() = 0;
    virtual void UAE_Short_GotFocus() = 0;
    virtual void SuchErgList_GotFocus() = 0;
};

// The choice among emulators, in a drop-down and a long list.
class EmulatorChoice {
 public:
    virtual ~EmulatorChoice() = default;
    virtual void FillEmulatorLists() = 0;
    // Into the drop-down, which shows no emulator.
    virtual void WritePrompt() = 0;
    // Opens or closes the long list.
    virtual void ShowEmulatorBox(bool Show) = 0;
    // Closes the choice, and the drop-down goes back to the emulator that is loaded.
    virtual void CloseChoice() = 0;
    // The same, with the emulator's games in front.
    virtual void LeaveEmulatorBox() = 0;
    // No choice is open, and the drop-down stands on the emulator that is loaded.
    virtual void LeaveChoice() = 0;
    // The drop-down as it looks beside any other list.
    virtual void RestoreColours() = 0;
    virtual void EmuListbox_Click() = 0;
    virtual void EmuListbox_DblClick() = 0;
    virtual void EmuListbox_GotFocus() = 0;
    // Letters typed in any list go where those typed in the choice go.
    virtual void EmuListbox_KeyPress(forms::Character& character) = 0;
};

// The change to another emulator.
class EmulatorSwitching {
 public:
    virtual ~EmulatorSwitching() = default;
    // Loads the emulator of the drop-down's row.
    virtual void SelectEmulator(bool AddToGlobal) = 0;
    // The window for the files of the moment, of which there need be none.
    virtual void InitEmulatorView() = 0;
};

// The lists of the loaded emulator's games.
class LoadedGames {
 public:
    virtual ~LoadedGames() = default;
    virtual void LoadCacheList() = 0;
    virtual void BuildDoublesList() = 0;
    virtual void AddToALL_LIST() = 0;
    // Row counts into the tabs.
    virtual void UpdateListCaptions() = 0;
};

// The favourite that is marked in FavoritenListe.
class MarkedFavourite {
 public:
    virtual ~MarkedFavourite() = default;
    // Selects its game. False: there is none, and the user knows.
    virtual bool SelectGame() = 0;
    // The row of UAE_FULL of its game; -1 for none.
    virtual int RowOfGame() const = 0;
    // The buttons that make sense for it.
    virtual void OfferButtons() = 0;
};

// The favourites of all emulators, which lie over the open choice.
class GlobalFavourites {
 public:
    virtual ~GlobalFavourites() = default;
    // False: the choice is not open, and the emulator's own favourites are to be shown.
    virtual bool ShowGlobalFavourites() = 0;
    // Closes the choice and puts the list away, if it is on show.
    virtual void LeaveGlobalFavourites() = 0;
};

// The start of a game.
class Launching {
 public:
    virtual ~Launching() = default;
    // The game of the selected row of UAE_Short.
    virtual void LaunchBtn_Click() = 0;
    virtual void StartGame(const std::string& GamePath) = 0;
};

// The emulator that has been started.
class RunningEmulator {
 public:
    virtual ~RunningEmulator() = default;
    // A list that another routine has brought up meanwhile goes again, while an emulator runs.
    virtual void HideListsOfRunning() = 0;
    // A look whether it runs.
    virtual void EmuActiveTimer_Timer() = 0;
    // The one look that a change of emulator takes; nothing to do until something has been started.
    virtual void WatchOnce() = 0;
    // The user ends it.
    virtual void AppRunningPicture_Click() = 0;
    // Ends its process, if there is one, and nothing else: the watch does the rest.
    virtual void KillRunning() = 0;
};

// The five drives and the boxes that show them.
class Drives {
 public:
    virtual ~Drives() = default;
    // A click of the user on a row of UAE_Short.
    virtual void FillFromFile() = 0;
    // A click in WIthoutDoubles. `row`: the game's row in UAE_Short, -1 for none.
    virtual void FillFromGame(int row) = 0;
    // What the boxes show for a game found from a wide WIthoutDoubles.
    virtual void ShowOneDisk() = 0;
    virtual void SelectSimilarDisks(int FromRow, int RowsBack, int RowsForward, int Limit) = 0;
    // Disks are chosen row by row by the user.
    virtual bool SelectsByHand() const = 0;
};

// The small files and tools of a launch that the user has chosen.
class StartHelpers {
 public:
    virtual ~StartHelpers() = default;
    // Before the start. False: the user has given the launch up.
    virtual bool MountGameImage(const std::string& GamePath) = 0;
    virtual void RunStartScript() = 0;
    // Into the user's editor; made from the template where there is none.
    virtual void EditStartScript() = 0;
};

// The loading screen.
class LoadingScreen {
 public:
    virtual ~LoadingScreen() = default;
    // `owner`: the window that is in front of the user. On a standing one it changes nothing.
    virtual void ShowLoadingInfo(forms::Form* owner) = 0;
    virtual bool IsShown() const = 0;
    virtual void Unload() = 0;
    // The user wants the launch to stop that is under way, and nothing has been started yet: who
    // waits for something stops waiting. The next launch begins anew.
    virtual bool GivenUp() const = 0;
    // A key in the main window that skips the screen, or stops the launch, and means nothing else
    // meanwhile.
    virtual bool TakesKey(const forms::Key& key) = 0;
};

// Addresses outside, and the program's own renewal.
class ProgramLinks {
 public:
    virtual ~ProgramLinks() = default;
    virtual void ShowHomePage() = 0;
    virtual bool HasDonations() const = 0;
    virtual void Donate() = 0;
    // `link` is disabled and shows how far it has come; `cancelled` is asked meanwhile.
    virtual void UpdateProgram(forms::Label& link, const std::function<bool()>& cancelled) = 0;
    // Of the loaded emulator; empty: it has no address.
    virtual std::string EmuDownloadCaption() = 0;
    virtual void OpenEmuDownload() = 0;
};

// Where everything stands in the main window.
class WindowLayout {
 public:
    virtual ~WindowLayout() = default;
    // All of it, as at a new size.
    virtual void Form_Resize() = 0;
    // The list of the mode in front, and the tabs.
    virtual void ArrangeLists() = 0;
    // The tabs alone, as the mode has them.
    virtual void ArrangeTabs() = 0;
    // The place of the preview picture.
    virtual void SetVorschau() = 0;
    // The panel under the picture; brings the drives panel back into the window.
    virtual void ResizeSettingsWindow() = 0;
    // The drives panel lies in its place in the right column, and goes with it at each size.
    virtual bool DrivesAreHome() const = 0;
    virtual void DockDrives() = 0;
    // Dropped within some pixels of its home, it is meant to lie there.
    virtual void DockDrivesNearHome() = 0;
    // It lies on something that has a place of its own.
    virtual bool DrivesCoverOthers() const = 0;
};

}  // namespace kivu::core
