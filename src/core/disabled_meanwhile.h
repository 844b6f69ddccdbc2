#pragma once

#include "forms/control.h"
#include "forms/form.h"

namespace kivu::core {

// Off while what it has started is under way; the focus comes back to it. Its form must be held.
class DisabledMeanwhile {
 public:
    explicit DisabledMeanwhile(forms::Control& control)
        : control(control), hadFocus(control.HasFocus()) {
        control.SetEnabled(false);
    }
    ~DisabledMeanwhile() {
        control.SetEnabled(true);
        if (hadFocus && !control.ParentForm()->Focus()) control.SetFocus();
    }
    DisabledMeanwhile(const DisabledMeanwhile&) = delete;
    DisabledMeanwhile& operator=(const DisabledMeanwhile&) = delete;

 private:
    forms::Control& control;
    const bool hadFocus;
};

}  // namespace kivu::core
