// The drives panel: its boxes, and the way that it is dragged.

#include "wiring/routines.h"

namespace kivu::wiring {

void Launcher::Routines::JoinDrives() {
    for (forms::CheckBox& box : form.Check_Dfx) {
        const int drive = box.Index();
        box.onMouseUp = [this, drive](const forms::Mouse&) { driveSlots.Check_Dfx_MouseUp(drive); };
        box.onKeyPress = [this, drive](forms::Character& key) {
            driveSlots.Check_Dfx_KeyPress(drive, key);
        };
    }
    form.DrivesResizeLabel.onClick = [this] { layout.DrivesResizeLabel_Click(); };
    form.SettingsSubPicture.onResize = [this] { layout.SettingsSubPicture_Resize(); };
    form.SettingsSubPicture.onMouseDown = [this](const forms::Mouse& mouse) {
        panelDrag.SettingsSubPicture_MouseDown(mouse);
    };
    for (const ui::PanelDrag::Target& target : panelDrag.Targets()) {
        target.control->onDragOver = [this, target](forms::Control& source, int x, int y) {
            panelDrag.DragOver(target, source, x, y);
        };
        target.control->onDragDrop = [this, target](forms::Control& source, int x, int y) {
            panelDrag.DragDrop(target, source, x, y);
        };
    }
}

}  // namespace kivu::wiring
