#include "settings/saving.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "core/raised.h"
#include "core/settings_loader.h"
#include "library/search_colors.h"
#include "settings/boxes.h"
#include "settings/form_values.h"
#include "settings/settings_form.h"
#include "settings/settings_store.h"
#include "text/text.h"
#include "ui/window_colors.h"

namespace kivu::settings {

namespace {

// The open choice of emulators gives its drop-down other colours than the skin's, which it takes
// away again as it closes.
class KeptChoiceColors {
 public:
    explicit KeptChoiceColors(core::Form1& main)
        : main(main), back(main.EmuListbox.BackColor()), fore(main.EmuListbox.ForeColor()) {
        own = back != main.EmuListboxBackColor || fore != main.EmuListboxForeColor;
    }
    ~KeptChoiceColors() {
        if (!own) return;
        main.EmuListbox.SetBackColor(back);
        main.EmuListbox.SetForeColor(fore);
    }
    KeptChoiceColors(const KeptChoiceColors&) = delete;
    KeptChoiceColors& operator=(const KeptChoiceColors&) = delete;

 private:
    core::Form1& main;
    forms::Color back, fore;
    bool own = false;
};

// The hits of all emulators, and the label over them, have other colours than the skin's, too.
class DressedHits {
 public:
    explicit DressedHits(core::Form1& main) : main(main) {}
    ~DressedHits() {
        forms::ListBox& hits = main.GlobalSearchList;
        if (!hits.Visible()) return;
        hits.SetBackColor(library::HitListColor(main.FormBackColor));
        main.Label4.SetBackColor(hits.BackColor());
        main.Label4.SetForeColor(hits.ForeColor());
    }
    DressedHits(const DressedHits&) = delete;
    DressedHits& operator=(const DressedHits&) = delete;

 private:
    core::Form1& main;
};

}  // namespace

void Saving::SaveBtn_Click() {
    if (saving) return;
    if (main.Busy) {
        services.beeper.Beep();
        return;
    }
    const core::Raised once(saving);
    const KeptChoiceColors kept(main);
    const DressedHits dressed(main);
    const bool written = Write();
    if (main.Ended || !written) return;
    // A button that goes off loses the focus.
    if (form.SaveBtn.HasFocus()) form.ExitBtn.SetFocus();
    form.SaveBtn.SetEnabled(false);
    ColorWindows();
}

// False: something is still unsaved.
bool Saving::Write() {
    const SettingsStore::Saved saved = store.Save(ValuesOf(form));
    for (const std::string& file : saved.failed)
        Show(services.dialogs, NotSavedBox(file, main));
    if (main.Ended) return false;
    if (!saved.complete) {
        RefuseSeconds();
        return false;
    }
    const bool master = routines.saveMaster();
    if (main.Ended || !saved.IsDone()) return false;
    LoadSettings();
    return master;
}

void Saving::RefuseSeconds() {
    services.beeper.Beep();
    form.SecondsTimerTxt.SetFocus();
    form.SecondsTimerTxt.SetSelection(
        0, static_cast<int>(text::CodePointCount(form.SecondsTimerTxt.Text())));
}

void Saving::LoadSettings() {
    // The profile knows the drives panel's place at the last exit, and nothing of what stands in
    // front of the lists.
    forms::PictureBox& drives = main.SettingsSubPicture;
    const forms::Point place{drives.Left(), drives.Top()};
    routines.settings.LoadSettings();
    if (main.Ended) return;
    drives.Move(place.x, place.y, drives.Width(), drives.Height());
    if (!main.ListsVisible) drives.SetVisible(false);
    routines.takeJoystick(
        services.ini.Read(profile::keys::UseJoystickInSettings, core::ProfilesOf(main)));
}

void Saving::ColorWindows() {
    routines.windowColors.SetColors(main, -1, -1);
    routines.windowColors.SetColors(form, -1, -1);
}

}  // namespace kivu::settings
