#include "joystick/button_setup_texts.h"

#include <gmock/gmock.h>

namespace kivu::joystick {
namespace {

TEST(SetupTexts, AskForEachActionInBothLanguages) {
    const char* const english[] = {" Quit Kivu",
                                   " Select",
                                   " Start",
                                   " Switch Emulator",
                                   " switch fullscreen / window",
                                   " scroll down (+10)",
                                   "  scroll up (-10)",
                                   "  scroll down (+100)\"",
                                   " scroll up (-100)",
                                   " scroll to top",
                                   " scroll to end",
                                   " add favorite"};
    const char* const german[] = {" Kivu beenden",
                                  " Auswählen / Selektieren",
                                  " Starten ",
                                  " Emulator wechseln",
                                  " Umschalten: Vollbild / Fenster",
                                  " +10 nach unten scrollen",
                                  " -10 nach oben scrollen",
                                  " +100 nach unten scrollen",
                                  " -100 nach oben scrollen",
                                  "Zum Anfang springen",
                                  " Zum Ende springen",
                                  "Favoriten hinzufügen"};
    for (int action = 0; action < 12; ++action) {
        const std::string number = std::to_string(action + 1);
        EXPECT_EQ(SetupText(action, false, "Kivu"),
                  "Press Button " + number + "\r\r" + english[action]);
        EXPECT_EQ(SetupText(action, true, "Kivu"),
                  "Drücke Button Nr." + number + "\r\r" + german[action]);
    }
    EXPECT_EQ(SetupText(12, false, "Kivu"), "");
    EXPECT_EQ(SetupText(-1, true, "Kivu"), "");
}

}  // namespace
}  // namespace kivu::joystick
