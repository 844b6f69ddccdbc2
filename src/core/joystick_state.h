#pragma once

#include <array>

namespace kivu::core {

// What the joystick's buttons do, and where its steps lead.
struct JoystickState {
    // List that arrow keys and joystick drive: 1 FavoritenListe, 2 WIthoutDoubles, 3 UAE_Short,
    // 4 SuchErgList, 5 EmuListbox.
    int JoystickFocus = 2;
    bool EmuListBrowsing = false;
    bool JoystickButtonSetupModus = false;  // buttons go to the window that asks for them
    std::array<int, 13> JoystickButtons{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    int ExitButtonAction = 0;
};

}  // namespace kivu::core
