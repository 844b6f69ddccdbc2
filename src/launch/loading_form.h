#pragma once

#include "forms/controls.h"
#include "forms/form.h"

namespace kivu::launch {

// What stands on top of everything while a game starts.
struct LoadingForm : forms::Form {
    explicit LoadingForm(forms::Toolkit toolkit);

    forms::PictureBox Picture1{this, "Picture1"};
    forms::Image GameImage{this, "GameImage"};
    forms::Label Label1{this, "Label1"};
    forms::Label TxtTitle{this, "TxtTitle"};
    forms::CommandButton Command1{this, "Command1"};
    forms::Frame AlwaysOnTop1{this, "AlwaysOnTop1"};
    forms::Timer Timer1{this, "Timer1", 1000, false};

    int Seconds = 0;        // how long it stands
    int SecondsPassed = 0;  // and has stood

 private:
    void PlaceControls();
};

}  // namespace kivu::launch
