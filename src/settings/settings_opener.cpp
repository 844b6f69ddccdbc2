#include "settings/settings_opener.h"

#include "core/form1.h"
#include "core/raised.h"

namespace kivu::settings {

void SettingsOpener::Show(bool programOnly) {
    if (showing || main.Busy || main.Ended) return;
    const core::Raised once(showing);
    alwaysOnTop.SetToNormal();
    SettingsWindow& settings = window.Get();
    SettingsForm& form = settings.GetForm();
    const forms::HeldForm held(form);
    settings.ShowMainSettingsOnly(programOnly);
    // By its handler, which notes what stands in the field.
    if (programOnly) {
        form.Joystickcheck.SetFocus();
    } else {
        form.txtWinUAEExe.SetFocus();
    }
    windows.ShowModal(form, &main);
    // Of a window that was hidden alone; any other has gone by itself.
    if (!main.Ended) form.Unload();
}

}  // namespace kivu::settings
