// The drives panel: its home in the right column, and what folds and unfolds it.

#include <algorithm>
#include <cstdlib>

#include "core/form1.h"
#include "ui/column_grid.h"
#include "ui/layout.h"

namespace kivu::ui {

namespace {
constexpr int foldedWidth = 480, foldedHeight = 210;
// The boxes behind the edge where the panel is gripped.
constexpr int boxesLeft = 210, boxesTop = 45, boxPitch = 775, boxRow = 390;

bool Overlap(int left, int top, int right, int bottom, const forms::Control& panel) {
    return left < panel.Right() && right > panel.Left() && top < panel.Bottom() &&
           bottom > panel.Top();
}
}  // namespace

// All boxes in one row, or in two where the column is narrow.
void Layout::FitDrives(int room) {
    constexpr int oneRow = boxesLeft + 5 * boxPitch + 245, twoRows = boxesLeft + 3 * boxPitch + 245;
    const int columns = room >= oneRow ? 5 : 3;
    // In a wide column half of it, as the button above.
    const int half = room - columnGap - (room - columnGap) / 2;
    const int width = half >= oneRow ? half : std::max(room, columns == 5 ? oneRow : twoRows);
    const int height = columns == 5 ? 2 * boxesTop + boxRow : 2 * boxesTop + 2 * boxRow;
    if (width == drivesWidth && height == drivesHeight) return;
    forms::PictureBox& panel = form.SettingsSubPicture;
    const bool natural = panel.Width() == drivesWidth && panel.Height() == drivesHeight;
    drivesWidth = width;
    drivesHeight = height;
    form.Frame2.Move(boxesLeft, boxesTop, columns * boxPitch + 30, height - 2 * boxesTop);
    for (std::size_t i = 0; i < form.Check_Dfx.size(); ++i) {
        const int place = static_cast<int>(i);
        form.Check_Dfx[i].Move(30 + place % columns * boxPitch, 45 + place / columns * boxRow,
                               boxPitch - 10, 300);
    }
    if (natural) panel.Move(panel.Left(), panel.Top(), width, height);
}

// The panel lies in the frame, above its rows, until somebody drags it away. A low frame has it on
// its top edge.
void Layout::PlaceDrivesHome() {
    const forms::Frame& frame = form.SettingsFrame;
    const bool atHome = drivesHomeLeft < 0 || DrivesAreHome();
    drivesHomeLeft = frame.Left() + columnLeft;
    drivesHomeTop =
        (rows.outside ? frame.Top() - rows.gap : frame.Bottom() - rows.AboveRows()) - drivesHeight;
    if (atHome) DockDrives();
}

bool Layout::DrivesAreHome() const {
    const forms::PictureBox& panel = form.SettingsSubPicture;
    return panel.Left() == drivesHomeLeft && panel.Top() == drivesHomeTop;
}

void Layout::DockDrives() {
    // Before the first layout there is no home; it docks the panel.
    if (drivesHomeLeft < 0) return;
    forms::PictureBox& panel = form.SettingsSubPicture;
    panel.Move(drivesHomeLeft, drivesHomeTop, panel.Width(), panel.Height());
}

void Layout::DockDrivesNearHome() {
    constexpr int near = 300;
    const forms::PictureBox& panel = form.SettingsSubPicture;
    if (std::abs(panel.Left() - drivesHomeLeft) <= near &&
        std::abs(panel.Top() - drivesHomeTop) <= near)
        DockDrives();
}

bool Layout::DrivesCoverOthers() const {
    const forms::PictureBox& panel = form.SettingsSubPicture;
    const Place picture = PicturePlace();
    if (Overlap(picture.left, picture.top, picture.left + picture.width,
                picture.top + picture.height, panel))
        return true;
    for (const forms::Control* other :
         {static_cast<const forms::Control*>(&form.FavoritenListe),
          static_cast<const forms::Control*>(&form.EmuListbox),
          static_cast<const forms::Control*>(&form.TopRightPic),
          static_cast<const forms::Control*>(&form.AddToFavorit),
          static_cast<const forms::Control*>(&form.AddToFavorit_Global)}) {
        if (Overlap(other->Left(), other->Top(), other->Right(), other->Bottom(), panel))
            return true;
    }
    const forms::Frame& frame = form.SettingsFrame;
    for (const forms::Control* inner : frame.Children()) {
        if (inner == &form.DonateBtn && !form.DonateBtn.Visible()) continue;
        const int left = frame.Left() + inner->Left(), top = frame.Top() + inner->Top();
        if (Overlap(left, top, left + inner->Width(), top + inner->Height(), panel)) return true;
    }
    return false;
}

void Layout::KeepDrivesInside() {
    // In a window too small for it, it comes back with the window's size.
    if (DrivesAreHome()) {
        drivesPushedTo = {};
        return;
    }
    forms::PictureBox& panel = form.SettingsSubPicture;
    const forms::Point here{panel.Left(), panel.Top()};
    // From where it was put, so that a window that is small for a while, or has not got its size
    // yet, moves it for that while alone.
    if (here != drivesPushedTo) drivesPutAt = here;
    const forms::Point inside = PlaceInside(drivesPutAt);
    drivesPushedTo = inside;
    panel.Move(inside.x, inside.y, panel.Width(), panel.Height());
}

forms::Point Layout::PlaceInside(forms::Point place) const {
    const forms::PictureBox& panel = form.SettingsSubPicture;
    if (place.x > form.Width() - 300) place.x = form.Width() - panel.Width() - 200;
    if (place.y > form.Height() - 500) place.y = form.Height() - panel.Height() - 200;
    // Beyond the other edges nothing would be left to grab it by.
    constexpr int leastInside = 150;
    if (place.x + panel.Width() < leastInside) place.x = 200;
    if (place.y + panel.Height() < leastInside) place.y = 200;
    return place;
}

void Layout::DrivesResizeLabel_Click() {
    forms::PictureBox& panel = form.SettingsSubPicture;
    const bool folded = panel.Width() == foldedWidth && panel.Height() == foldedHeight;
    panel.Move(panel.Left(), panel.Top(), folded ? drivesWidth : foldedWidth,
               folded ? drivesHeight : foldedHeight);
    form.DrivesResizeLabel.SetCaption(folded ? core::unfoldedHandle : ">");
    if (folded) form.DrivesResizeLabel.SetShownText(core::foldSign);
}

void Layout::SettingsSubPicture_Resize() {
    form.DrivesResizeLabel.SetLeft(form.SettingsSubPicture.Width() -
                                   form.DrivesResizeLabel.Width());
    form.DrivesResizeLabel.SetTop(form.SettingsSubPicture.Height() -
                                  form.DrivesResizeLabel.Height());
}

}  // namespace kivu::ui
