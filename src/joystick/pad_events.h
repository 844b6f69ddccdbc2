#pragma once

#include "forms/window_host.h"
#include "joystick/pad_receiver.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::joystick {

class ButtonActions;
class ListNavigation;

// What a poll calls, handed on to the lists. Behind a box or a modal window nothing moves or
// starts; the window that asks for the buttons gets them all the same.
class PadEvents : public PadReceiver {
 public:
    PadEvents(core::Form1& form, ListNavigation& navigation, ButtonActions& actions,
              const forms::WindowHost& windows)
        : form(form), navigation(navigation), actions(actions), windows(windows) {}

    void Joystick_Right(int Value, int JoystickNr, int JoystickPanelNr) override;
    void Joystick_Left(int Value, int JoystickNr, int JoystickPanelNr) override;
    void Joystick_UP(int Value, int JoystickNr, int JoystickPanelNr) override;
    void Joystick_Down(int Value, int JoystickNr, int JoystickPanelNr) override;
    void Joystick_Button(int JoystickNr, int ButtonNr) override;
    void SetJoystickButtonSetupModus(bool NewValue);

 private:
    bool Rests() const;
    void Turn(int key);

    core::Form1& form;
    ListNavigation& navigation;
    ButtonActions& actions;
    const forms::WindowHost& windows;
};

}  // namespace kivu::joystick
