#pragma once

#include "forms/form.h"

namespace kivu::settings {

// Off while what it has started is under way; the focus comes back to it unless it has gone
// elsewhere. Its form must be held.
class DisabledMeanwhile {
 public:
    explicit DisabledMeanwhile(forms::Control& control)
        : control(control), focused(control.HasFocus()) {
        control.SetEnabled(false);
    }
    ~DisabledMeanwhile() {
        control.SetEnabled(true);
        if (focused && !control.ParentForm()->Focus()) control.SetFocus();
    }
    DisabledMeanwhile(const DisabledMeanwhile&) = delete;
    DisabledMeanwhile& operator=(const DisabledMeanwhile&) = delete;

 private:
    forms::Control& control;
    const bool focused;
};

}  // namespace kivu::settings
