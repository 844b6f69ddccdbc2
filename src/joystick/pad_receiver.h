#pragma once

namespace kivu::joystick {

// The window that a poll speaks to.
class PadReceiver {
 public:
    virtual ~PadReceiver() = default;
    virtual void Joystick_Right(int Value, int JoystickNr, int JoystickPanelNr) = 0;
    virtual void Joystick_Left(int Value, int JoystickNr, int JoystickPanelNr) = 0;
    virtual void Joystick_UP(int Value, int JoystickNr, int JoystickPanelNr) = 0;
    virtual void Joystick_Down(int Value, int JoystickNr, int JoystickPanelNr) = 0;
    virtual void Joystick_Button(int JoystickNr, int ButtonNr) = 0;
};

}  // namespace kivu::joystick
