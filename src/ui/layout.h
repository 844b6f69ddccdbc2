#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ports.h"
#include "ui/column_grid.h"
#include "ui/layout_numbers.h"

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
    // Puts a zoomed picture back.
    void SetVorschau() override;
    void VorschauBild_Resize();
    // The picture at its natural size over the lists, as far as the window has room for it.
    void ZoomPicture();

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
    bool Zoomed() const;
    Place PicturePlace() const;
    int PictureBottom() const;
    void ShowPictureAboveButtons();
    bool Stacked() const;
    void PlaceName();
    std::string Shortened(std::string_view whole, int width, int lines) const;
    void PlaceFrameRows();
    void FitDrives(int room);
    void KeepDrivesInside();
    forms::Point PlaceInside(forms::Point place) const;
    void PlaceDrivesHome();
    void PlaceFavouriteButtons();
    void ShowListOfMode();
    void FitEmuListbox();
    void FitTabs(int left, bool choosing);

    core::Form1& form;
    int drivesHomeLeft = -1, drivesHomeTop = -1;
    int drivesWidth = 4560, drivesHeight = 480;  // natural size
    // Where somebody has put the panel, and where it lies since the window is too small for that.
    forms::Point drivesPutAt;
    std::optional<forms::Point> drivesPushedTo;
    ColumnRows rows;
    std::optional<forms::Size> natural;  // of the picture that is zoomed
    // In Current_ProgramNameFull, whole and as it was broken to its width.
    std::string fullName, brokenName;
    bool wrapping = false;
    bool placingTabs = false;
};

}  // namespace kivu::ui
