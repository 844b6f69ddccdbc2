#include "settings/looks_group.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "settings/settings_form.h"
#include "support/window_handling.h"
#include "ui/colors.h"
#include "ui/window_colors.h"

namespace kivu::settings {

namespace keys = profile::keys;

LooksGroup::LooksGroup(SettingsForm& form, core::Form1& main, ui::WindowColors& windowColors,
                       Services services)
    : form(form),
      main(main),
      ini(services.ini),
      colors(form.ColorSelect1, main, windowColors, {services.dialogs, services.systemColors}) {
    colors.onChange = [&form] { form.MarkUnsaved(); };
    form.Command5.onClick = [this] { Command5_Click(); };
    form.FensterRahmChk.onClick = [this] { FensterRahmChk_Click(); };
    form.Picture1.onClick = [this] { Picture1_Click(); };
}

void LooksGroup::Load() {
    form.FensterRahmChk.SetValue(main.HasFrame() ? 1 : 0);
}

void LooksGroup::Command5_Click() {
    const keys::Profiles profiles = core::ProfilesOf(main);
    const auto colorOf = [&](const keys::PresentText& key, forms::Color present) {
        const std::string text = ini.Read(key, profiles, ui::LongToHex(present));
        return static_cast<std::int32_t>(ui::HexToLong(text));
    };
    colors.SetBackColor(colorOf(keys::BackColorInSettings, main.BackColor()));
    colors.SetForeColor(colorOf(keys::FontColorInSettings, main.Label1.ForeColor()));
    form.TogglePanel(form.DarstellungFrame);
}

// A click turns the frame, whatever the box says: what it opened with is how the window is.
void LooksGroup::FensterRahmChk_Click() {
    if (!form.Loading) support::ChangeBorderstyle(main, 1);
}

void LooksGroup::Picture1_Click() {
    form.DarstellungFrame.SetVisible(false);
}

}  // namespace kivu::settings
