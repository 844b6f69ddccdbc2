#pragma once

#include "forms/control.h"

namespace kivu::settings {

// Off while what it has started is under way. Its form must be held.
class DisabledMeanwhile {
 public:
    explicit DisabledMeanwhile(forms::Control& control) : control(control) {
        control.SetEnabled(false);
    }
    ~DisabledMeanwhile() { control.SetEnabled(true); }
    DisabledMeanwhile(const DisabledMeanwhile&) = delete;
    DisabledMeanwhile& operator=(const DisabledMeanwhile&) = delete;

 private:
    forms::Control& control;
};

}  // namespace kivu::settings
