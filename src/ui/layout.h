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

    Hooks hooks;

 private:
    void Compute();
    void PlaceLists();
    void PlaceBusySigns();
    int RoomBelowName() const;
    int LineOfName() const;
    int HeightOfName(int width) const;
    int HeightOfFrame(int width, int height) const;
    void PlaceName();
    void PlaceFrameRows();
    void KeepDrivesInside();
    void PlaceDrivesHome();
    void PlaceFavouriteButtons();
    void ShowListOfMode();
    int WidthOfEmuListbox() const;
    void FitTabs(int left, bool choosing);

    core::Form1& form;
    int drivesHomeLeft = -1, drivesHomeTop = -1;
    int drivesWidth = 0, drivesHeight = 0;  // natural size while folded
    bool stacked = false;                   // the favourites' buttons, in a narrow window
    std::string fullName;                   // in Current_ProgramNameFull, unbroken
    bool wrapping = false;
    bool placingTabs = false;
};

}  // namespace kivu::ui
