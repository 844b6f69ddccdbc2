#include "ui/panel_drag.h"

#include <algorithm>
#include <cmath>

#include "core/form1.h"

namespace kivu::ui {

namespace {

// Twips; a place from a hand-written profile or a script may be anywhere.
int Place(double value) {
    constexpr double farthest = 1e8;
    return static_cast<int>(std::nearbyint(std::clamp(value, -farthest, farthest)));
}

}  // namespace

std::vector<PanelDrag::Target> PanelDrag::Targets() const {
    std::vector<Target> targets{{&form, {}}};
    for (forms::Control* picture : {static_cast<forms::Control*>(&form.GamePicture),
                                    static_cast<forms::Control*>(&form.GamePictureVis),
                                    static_cast<forms::Control*>(&form.VorschauBild)})
        targets.push_back({picture, {&form.VorschauBild}});
    targets.push_back({&form.Current_ProgramNameFull, {&form.SettingsFrame}});
    targets.push_back({&form.SettingsFrame, {&form.SettingsFrame}});
    targets.push_back({&form.TimeString, {&form.TopRightPic, &form.TimeString}});
    for (forms::Control* itself : {static_cast<forms::Control*>(&form.FavoritenListe),
                                   static_cast<forms::Control*>(&form.TopRightPic),
                                   static_cast<forms::Control*>(&form.MyCaptionLabel),
                                   static_cast<forms::Control*>(&form.LoadingBtn),
                                   static_cast<forms::Control*>(&form.UAE_Short),
                                   static_cast<forms::Control*>(&form.WIthoutDoubles)})
        targets.push_back({itself, {itself}});
    return targets;
}

void PanelDrag::SettingsSubPicture_MouseDown(const forms::Mouse& mouse) {
    if (mouse.button != forms::buttons::left) return;
    constexpr int sideways = 700;
    forms::PictureBox& panel = form.SettingsSubPicture;
    const auto pixels = [](double twips) { return std::fabs(twips / forms::twipsPerPixel); };
    grabX = mouse.x - (pixels(static_cast<double>(panel.Left()) + form.Left()) - sideways);
    grabY = mouse.y - pixels(static_cast<double>(panel.Top()) + form.Top());
    panel.BringToFront();
    panel.StartDrag();
}

void PanelDrag::DragOver(const Target& target, const forms::Control& source, int x, int y) {
    if (source.Tag() != tag) return;
    double left = x - grabX, top = y - grabY;
    for (const forms::Control* origin : target.origins) {
        left += origin->Left();
        top += origin->Top();
    }
    forms::PictureBox& panel = form.SettingsSubPicture;
    panel.Move(Place(left), Place(top), panel.Width(), panel.Height());
}

void PanelDrag::DragDrop(const Target& target, const forms::Control& source, int x, int y) {
    if (source.Tag() != tag) return;
    DragOver(target, source, x, y);
    layout.DockDrivesNearHome();
    // A panel that was let go of at the edge must not be out of reach.
    layout.ResizeSettingsWindow();
}

}  // namespace kivu::ui
