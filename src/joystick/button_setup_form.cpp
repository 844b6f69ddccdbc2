#include "joystick/button_setup_form.h"

namespace kivu::joystick {

namespace {
constexpr int windowWidth = 6300, windowHeight = 3900, margin = 240;
constexpr int iconSize = 480, pinSize = 420;
constexpr int titleTop = 240, infoTop = 960, infoHeight = 2040, buttonTop = 1740, hintTop = 3180;
}  // namespace

ButtonSetupForm::ButtonSetupForm(forms::Toolkit toolkit)
    : forms::Form("SetJoystickButtons", toolkit) {
    SetCaption("Joystick / Gamepad");
    SetHasFrame(false);
    SetCornerRadius(16);
    SetResizable(false);
    Move(0, 0, windowWidth, windowHeight);
    SetFont({"", 10, false});
    PlaceControls();
    JoystickIcon.SetToolTipText("Joysticksteuerung aktiv");
    JoystickIcon.SetKeepsProportions(true);
    TitleLabel.SetCaption(Caption());
    TitleLabel.SetFont({"", 11, true});
    InfoLabel.SetCaption("Gamepad / Joystick ");
    InfoLabel.SetFont({"", 14, true});
    InfoLabel.SetAlignment(forms::Alignment::center);
    Label1.SetCaption("Tastatur drücken zum Überspringen");
    Label1.SetAlignment(forms::Alignment::center);
    AOT_Enabled.SetPicture({":/pin-enabled", nullptr});
    AOT_Disabled.SetPicture({":/pin-disabled", nullptr});
    AOT_MouseMove.SetPicture({":/pin-hover", nullptr});
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove}) {
        pin->SetToolTipText("Always on top");
        pin->SetVisible(pin == &AOT_Disabled);
    }
}

void ButtonSetupForm::PlaceControls() {
    const int inner = windowWidth - 2 * margin;
    JoystickIcon.Move(margin, titleTop, iconSize, iconSize);
    TitleLabel.Move(margin + iconSize + 180, titleTop + 90, inner - iconSize - pinSize - 360, 330);
    AlwaysOnTop1.Move(windowWidth - margin - pinSize, titleTop, pinSize, pinSize);
    for (forms::Image* pin : {&AOT_Enabled, &AOT_Disabled, &AOT_MouseMove})
        pin->Move(0, 0, pinSize, pinSize);
    InfoLabel.Move(margin, infoTop, inner, infoHeight);
    CalibrateBtn.Move(windowWidth / 2 - 1500, buttonTop, 3000, 480);
    Label1.Move(margin, hintTop, inner, 480);
}

}  // namespace kivu::joystick
