#pragma once

#include <cstdint>

#include "forms/form.h"
#include "profile/ini.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// The two lists that have a light back of their own in every skin, and black writing on it.
void ApplyListColors(core::Form1& form);

// The colours of a skin, or those that the user tries out, on whole windows.
class WindowColors {
 public:
    WindowColors(core::Form1& form, profile::Ini& ini) : form(form), ini(ini) {}

    // Colours a window and its controls: a text box the other way round, so that it stands out,
    // and neither command buttons nor what user controls are made of. A negative colour is read
    // from the skin's profile. The main window keeps both, whatever window has been coloured.
    void SetColors(forms::Form& TargetForm, std::int32_t BackGroundCOlor,
                   std::int32_t ForeGroundColor);

 private:
    core::Form1& form;
    profile::Ini& ini;
};

}  // namespace kivu::ui
