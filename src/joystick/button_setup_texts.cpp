#include "joystick/button_setup_texts.h"

#include <array>

#include "joystick/button_actions.h"

namespace kivu::joystick {

namespace {

struct Wording {
    const char* english;
    const char* german;
};

// As users have known them: blanks, the stray quote, and a "top" that leads to the end and an "end"
// that leads to the top.
constexpr std::array<Wording, actionCount> wordings{{
    {" Quit ", " "},
    {" Select", " Auswählen / Selektieren"},
    {" Start", " Starten "},
    {" Switch Emulator", " Emulator wechseln"},
    {" switch fullscreen / window", " Umschalten: Vollbild / Fenster"},
    {" scroll down (+10)", " +10 nach unten scrollen"},
    {"  scroll up (-10)", " -10 nach oben scrollen"},
    {"  scroll down (+100)\"", " +100 nach unten scrollen"},
    {" scroll up (-100)", " -100 nach oben scrollen"},
    {" scroll to top", "Zum Anfang springen"},
    {" scroll to end", " Zum Ende springen"},
    {" add favorite", "Favoriten hinzufügen"},
}};

}  // namespace

std::string SetupText(int action, bool german, const std::string& title) {
    if (action < 0 || action >= actionCount) return {};
    const Wording& wording = wordings[static_cast<std::size_t>(action)];
    std::string text = german ? "Drücke Button Nr." : "Press Button ";
    text += std::to_string(action + 1) + "\r\r" + (german ? wording.german : wording.english);
    if (static_cast<Action>(action) == Action::quit) text += title + (german ? " beenden" : "");
    return text;
}

}  // namespace kivu::joystick
