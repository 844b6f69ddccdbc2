#pragma once

#include <string>

#include "core/form1.h"
#include "core/hook.h"

namespace kivu::ui {

// Arranges the main window by formula. All measures are in twips.
class Layout {
 public:
    struct Hooks {
        core::Hook<void(int)> ChangeBorderstyle;
    };

    explicit Layout(core::Form1& form) : form(form) {}

    void Form_Resize();
    // The panel under the picture; brings the drives panel back into the window.
    void ResizeSettingsWindow();
    // The list of the mode in front, and the tabs.
    void ArrangeLists();
    // The tabs alone, as the mode has them.
    void ArrangeTabs();
    // The tabs in their row; a new count makes one wider.
    void PlaceTabs();
    // The place of the preview picture.
    void SetVorschau();

    // A click folds the drives panel and unfolds it.
    void DrivesResizeLabel_Click();
    void SettingsSubPicture_Resize();
    void Current_ProgramNameFull_Change();
    void Current_ProgramNameFull_FontChange();

    // The drives panel lies in its place in the right column, and goes with it at each size.
    bool DrivesAreHome() const;
    void DockDrives();
    // Dropped within some pixels of its home, it is meant to lie there.
    void DockDrivesNearHome();
    // It lies on something that has a place of its own.
    bool DrivesCoverOthers() const;

    Hooks hooks;

 private:
    void Compute();
    void PlaceLists();
    void PlaceBusySigns();
    bool Stacked(int frameWidth) const;
    int RoomBelowName(int frameWidth) const;
    int HeightOfName(int width) const;
    int HeightOfFrame(int width, int height) const;
    void PlaceName();
    void PlaceFrameRows();
    void FitDrives(int room);
    void KeepDrivesInside();
    void PlaceDrivesHome();
    void PlaceFavouriteButtons();
    void ShowListOfMode();
    int WidthOfEmuListbox() const;
    void FitEmuListbox();
    void FitTabs(int left, bool choosing);

    core::Form1& form;
    int drivesHomeLeft = -1, drivesHomeTop = -1;
    int drivesWidth = 4560, drivesHeight = 480;  // natural size
    // In Current_ProgramNameFull, whole and as it was broken to its width.
    std::string fullName, brokenName;
    bool wrapping = false;
    bool placingTabs = false;
};

}  // namespace kivu::ui
