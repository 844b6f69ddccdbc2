#pragma once

#include "core/form1.h"
#include "core/hook.h"

namespace kivu::ui {

// The row of FontSizeCombo sets the size of the lists and of the emulator box.
class FontSize {
 public:
    explicit FontSize(core::Form1& form) : form(form) {}
    void FontSizeCombo_Click();
    core::Hook<void()> Form_Resize;

 private:
    core::Form1& form;
};

}  // namespace kivu::ui
