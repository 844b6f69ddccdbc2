// The place of the preview picture, and its zoom.

#include <algorithm>

#include "core/form1.h"
#include "ui/layout.h"
#include "ui/move_what_fits.h"

namespace kivu::ui {

// The picture box inside the frame shows in that state alone.
bool Layout::Zoomed() const {
    return form.GamePicture.Visible();
}

Place Layout::PicturePlace() const {
    return PicturePlaceOf(form, form.FavoritenListe.Top());
}

// What lies under the picture does not move when that is zoomed.
int Layout::PictureBottom() const {
    if (!Zoomed()) return form.VorschauBild.Bottom();
    const Place place = PicturePlace();
    return place.top + std::max(0, place.height);
}

void Layout::SetVorschau() {
    if (Zoomed()) {
        form.GamePicture.SetVisible(false);
        if (natural) form.GamePicture.Move(0, 0, natural->width, natural->height);
        natural.reset();
        form.GamePictureVis.SetVisible(form.VorschauBild.Visible());
        form.VorschauBild.SendToBack();
    }
    const Place place = PicturePlace();
    MoveWhatFits(form.VorschauBild, place.left, place.top, place.width, place.height);
}

void Layout::VorschauBild_Resize() {
    form.GamePictureVis.Move(0, 0, form.VorschauBild.Width(), form.VorschauBild.Height());
}

void Layout::ZoomPicture() {
    forms::PictureBox& picture = form.GamePicture;
    picture.Move(0, 0, picture.Width(), picture.Height());
    forms::Frame& frame = form.VorschauBild;
    if (form.WIthoutDoubles.Left() >= frame.Left()) return;
    const Place place =
        ZoomPlaceOf(form, form.Width(), frame.Top(), picture.Width(), picture.Height());
    natural = forms::Size{picture.Width(), picture.Height()};
    picture.Move(0, 0, place.width, place.height);
    // Before the frame grows, so that whatever counts from the picture counts from its place.
    picture.SetVisible(true);
    frame.Move(place.left, place.top, place.width, place.height);
    form.GamePictureVis.SetVisible(false);
    frame.BringToFront();
}

// In a low window the column's buttons lie on the picture's lower edge.
void Layout::ShowPictureAboveButtons() {
    const int top = std::min(form.AddToFavorit.Top(), form.AddToFavorit_Global.Top()) - rows.gap;
    form.GamePictureVis.SetMostShownHeight(rows.outside ? std::max(0, top - form.VorschauBild.Top())
                                                        : -1);
}

}  // namespace kivu::ui
