#pragma once

#include <array>
#include <string>

#include "forms/controls.h"
#include "forms/form.h"

namespace kivu::joystick {

// The window that asks for the button of each action, one behind the other.
struct ButtonSetupForm : forms::Form {
    explicit ButtonSetupForm(forms::Toolkit toolkit);

    static constexpr int empty = -1;    // still to be filled
    static constexpr int skipped = -2;  // an action without a button

    forms::Image JoystickIcon{this, "JoystickIcon"};
    forms::Label TitleLabel{this, "TitleLabel"};
    forms::Frame AlwaysOnTop1{this, "AlwaysOnTop1"};
    forms::Image AOT_Enabled{&AlwaysOnTop1, "AOT_Enabled"};
    forms::Image AOT_Disabled{&AlwaysOnTop1, "AOT_Disabled"};
    forms::Image AOT_MouseMove{&AlwaysOnTop1, "AOT_MouseMove"};
    forms::Label InfoLabel{this, "InfoLabel"};
    forms::CommandButton CalibrateBtn{this, "CalibrateBtn"};
    forms::Label Label1{this, "Label1"};

    forms::Timer ShowTimer{this, "ShowTimer", 800, false};
    forms::Timer PollingTimer{this, "PollingTimer", 100, true};

    std::array<std::string, 14> Texts;
    std::array<int, 14> Buttons{};
    int Position = 0;  // the action that is asked for
    int Language = 2;

 private:
    void PlaceControls();
};

}  // namespace kivu::joystick
