#pragma once

#include "ui/color_select.h"
#include "wiring/routines.h"

namespace kivu::testing {

// A window that holds the colour picker, as the settings do.
struct ColorWindow : forms::Form {
    explicit ColorWindow(wiring::Launcher::Routines& all)
        : forms::Form("Colors", all.form.GetToolkit()),
          picker(controls, all.form, all.windowColors, {all.dialogs, all.host.systemColors}) {
        Move(0, 0, ui::ColorSelectControls::width, ui::ColorSelectControls::height);
        picker.onChange = [this] { ++changes; };
    }

    ui::ColorSelectControls controls{this};
    ui::ColorSelect picker;
    int changes = 0;
};

}  // namespace kivu::testing
