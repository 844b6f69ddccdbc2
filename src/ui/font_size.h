#pragma once

#include "core/ports.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// The row of FontSizeCombo sets the size of the lists and of the emulator box.
class FontSize {
 public:
    FontSize(core::Form1& form, core::WindowLayout& layout) : form(form), layout(layout) {}
    void FontSizeCombo_Click();

 private:
    core::Form1& form;
    core::WindowLayout& layout;
};

}  // namespace kivu::ui
