#include "joystick/pad_events.h"

#include "core/form1.h"
#include "joystick/button_actions.h"
#include "joystick/list_navigation.h"

namespace kivu::joystick {

namespace keys = forms::keys;

bool PadEvents::Rests() const {
    return windows.Questions() > 0;
}

void PadEvents::Turn(int key) {
    if (!Rests()) navigation.JoystickDirection(key);
}

void PadEvents::Joystick_Right(int, int, int) {
    Turn(keys::right);
}

void PadEvents::Joystick_Left(int, int, int) {
    Turn(keys::left);
}

void PadEvents::Joystick_UP(int, int, int) {
    Turn(keys::up);
}

void PadEvents::Joystick_Down(int, int, int) {
    Turn(keys::down);
}

void PadEvents::Joystick_Button(int, int ButtonNr) {
    if (form.JoystickButtonSetupModus || !Rests()) actions.JoystickButtonClick(ButtonNr);
}

void PadEvents::SetJoystickButtonSetupModus(bool NewValue) {
    form.JoystickButtonSetupModus = NewValue;
}

}  // namespace kivu::joystick
