#pragma once

#include <string>

#include "core/ports.h"

// The main window's other routines, doing nothing. A test that wants to see one asked overrides it.
namespace kivu::testing {

struct QuietFront : core::ListFront {
    void RefreshList() override {}
    void Label1_Click() override {}
    void Label2_Click() override {}
    void Label4_Click() override {}
    void FavoritenListe_GotFocus() override {}
    void WIthoutDoubles_GotFocus() override {}
    void UAE_Short_GotFocus() override {}
    void SuchErgList_GotFocus() override {}
};

struct QuietChoice : core::EmulatorChoice {
    void FillEmulatorLists() override {}
    void WritePrompt() override {}
    void ShowEmulatorBox(bool) override {}
    void CloseChoice() override {}
    void LeaveEmulatorBox() override {}
    void LeaveChoice() override {}
    void RestoreColours() override {}
    void EmuListbox_Click() override {}
    void EmuListbox_DblClick() override {}
    void EmuListbox_GotFocus() override {}
    void EmuListbox_KeyPress(forms::Character&) override {}
};

struct QuietSwitching : core::EmulatorSwitching {
    void SelectEmulator(bool) override {}
    void InitEmulatorView() override {}
};

struct QuietGames : core::LoadedGames {
    void LoadCacheList() override {}
    void BuildDoublesList() override {}
    void AddToALL_LIST() override {}
    void UpdateListCaptions() override {}
};

struct QuietLaunching : core::Launching {
    void LaunchBtn_Click() override {}
    void StartGame(const std::string&) override {}
};

struct QuietWatch : core::RunningEmulator {
    void HideListsOfRunning() override {}
    void EmuActiveTimer_Timer() override {}
    void WatchOnce() override {}
    void AppRunningPicture_Click() override {}
    void KillRunning() override {}
};

struct QuietStartHelpers : core::StartHelpers {
    bool MountGameImage(const std::string&) override { return true; }
    void RunStartScript() override {}
    void EditStartScript() override {}
};

struct QuietLoadingScreen : core::LoadingScreen {
    void ShowLoadingInfo(forms::Form*) override {}
    bool IsShown() const override { return false; }
    void Unload() override {}
    bool GivenUp() const override { return false; }
    bool TakesKey(const forms::Key&) override { return false; }
};

struct QuietLinks : core::ProgramLinks {
    void ShowHomePage() override {}
    bool HasDonations() const override { return false; }
    void Donate() override {}
    void UpdateProgram(forms::Label&, const std::function<bool()>&) override {}
    std::string EmuDownloadCaption() override { return {}; }
    void OpenEmuDownload() override {}
};

struct QuietDrives : core::Drives {
    void FillFromFile() override {}
    void FillFromGame(int) override {}
    void ShowOneDisk() override {}
    void SelectSimilarDisks(int, int, int, int) override {}
    bool SelectsByHand() const override { return false; }
};

struct QuietLayout : core::WindowLayout {
    void Form_Resize() override {}
    void ArrangeLists() override {}
    void ArrangeTabs() override {}
    void SetVorschau() override {}
    void ResizeSettingsWindow() override {}
    bool DrivesAreHome() const override { return false; }
    void DockDrives() override {}
    void DockDrivesNearHome() override {}
    bool DrivesCoverOthers() const override { return false; }
};

}  // namespace kivu::testing
