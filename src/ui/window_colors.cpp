#include "ui/window_colors.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "ui/colors.h"

namespace kivu::ui {

namespace {

namespace keys = profile::keys;

bool HasColors(const forms::Control& control) {
    switch (control.GetKind()) {
        case forms::Kind::image:
        case forms::Kind::timer:
        case forms::Kind::commandButton:
            return false;
        default:
            break;
    }
    for (const forms::Container* around = control.Parent(); around; around = around->Parent()) {
        if (around->IsUserControl()) return false;
    }
    return true;
}

void Color(forms::Control& control, forms::Color back, forms::Color fore) {
    const bool swapped = control.GetKind() == forms::Kind::textBox;
    control.SetBackColor(swapped ? fore : back);
    control.SetForeColor(swapped ? back : fore);
}

}  // namespace

void ApplyListColors(core::Form1& form) {
    form.FavoritenListe.SetBackColor(form.FavouritesColor);
    form.FavoritenListe.SetForeColor(forms::Rgb(0, 0, 0));
    form.EmulatorLongListbox.SetBackColor(form.EmulatorListColor);
    form.EmulatorLongListbox.SetForeColor(forms::Rgb(0, 0, 0));
}

void WindowColors::SetColors(forms::Form& TargetForm, std::int32_t BackGroundCOlor,
                             std::int32_t ForeGroundColor) {
    const auto colorOf = [&](std::int32_t given, const keys::Text& key) {
        return given < 0 ? HexToLong(ini.Read(key, core::ProfilesOf(form)))
                         : static_cast<forms::Color>(given) & 0xffffffu;
    };
    const forms::Color back = colorOf(BackGroundCOlor, keys::BackColor);
    const forms::Color fore = colorOf(ForeGroundColor, keys::FontColor);
    TargetForm.SetBackColor(back);
    TargetForm.SetForeColor(fore);
    for (forms::Control* control : TargetForm.Controls()) {
        if (HasColors(*control)) Color(*control, back, fore);
    }
    form.FormBackColor = back;
    form.FormForeColor = fore;
    if (&TargetForm != &form) return;
    ApplyListColors(form);
    // The open choice has given the drop-down others, and gives it these when it closes.
    form.EmuListboxBackColor = back;
    form.EmuListboxForeColor = fore;
}

}  // namespace kivu::ui
