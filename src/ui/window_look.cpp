#include "ui/window_look.h"

namespace kivu::ui {

forms::Look LookOf(const core::Form1& form) {
    const forms::ListBox& rows = form.UAE_Short;
    return {rows.FontSize(), form.BackColor(), form.ForeColor(), rows.BackColor(),
            rows.ForeColor()};
}

}  // namespace kivu::ui
