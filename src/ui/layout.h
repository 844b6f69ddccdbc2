#pragma once

#include <string>

#include "core/ports.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// Arranges the main window by formula. All measures are in twips.
class Layout : public core::WindowLayout {
 public:
    explicit Layout(core::Form1& form) : form(form) {}

    void Form_Resize() override;
    void ResizeSettingsWindow() override;
    void ArrangeLists() override;
    void ArrangeTabs() override;
    // The tabs in their row; a new count makes one wider.
    void PlaceTabs();
    void SetVorschau() override;

    // A click folds the drives panel and unfolds it.
    void DrivesResizeLabel_Click();
    void SettingsSubPicture_Resize();
    void Current_ProgramNameFull_Change();
    void Current_ProgramNameFull_FontChange();

    bool DrivesAreHome() const override;
    void DockDrives() override;
    void DockDrivesNearHome() override;
    bool DrivesCoverOthers() const override;

 private:
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
