// Keys, which go to whatever has the focus.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

Commands Key(const char* name) {
    return {Command({"key", "Form1", name})};
}

Commands Answered(const char* answer, const char* name) {
    return {Command({"answer", answer}), Command({"key", "Form1", name})};
}

Commands Letter(World&, const Look&, Random& random) {
    static const std::vector<const char*> letters{"a", "m", "p", "z", "Space", "4"};
    return Key(random.Pick(letters));
}

Commands Move(World&, const Look&, Random& random) {
    static const std::vector<const char*> moves{"Down",     "Up",     "Down", "Up",
                                                "PageDown", "PageUp", "Home", "End"};
    return Key(random.Pick(moves));
}

Commands AltArrow(World&, const Look&, Random& random) {
    static const std::vector<const char*> arrows{"Alt+Left", "Alt+Right", "Alt+Up", "Alt+Down"};
    return Key(random.Pick(arrows));
}

}  // namespace

const std::vector<Action>& KeyActions() {
    static const std::vector<Action> actions{
        {"Enter", 14, [](World&, const Look&, Random&) { return Key("Enter"); }},
        {"a letter", 5, Letter},
        {"move in the list", 10, Move},
        {"Left", 4, [](World&, const Look&, Random&) { return Key("Left"); }},
        {"Right", 4, [](World&, const Look&, Random&) { return Key("Right"); }},
        {"Escape", 6, [](World&, const Look&, Random&) { return Answered("Cancel", "Escape"); }},
        {"Backspace", 4, [](World&, const Look&, Random&) { return Key("Backspace"); }},
        {"Tab", 4, [](World&, const Look&, Random&) { return Key("Tab"); }},
        {"Shift+Tab", 2, [](World&, const Look&, Random&) { return Key("Shift+Tab"); }},
        {"Delete", 3,
         [](World&, const Look&, Random& random) {
             return Answered(random.Chance(60) ? "Yes" : "No", "Delete");
         }},
        {"F3", 3, [](World&, const Look&, Random&) { return Key("F3"); }},
        {"Ctrl+Enter", 3, [](World&, const Look&, Random&) { return Key("Ctrl+Enter"); }},
        {"Ctrl+F", 3, [](World&, const Look&, Random&) { return Key("Ctrl+F"); }},
        {"Alt+F4", 1, [](World&, const Look&, Random&) { return Key("Alt+F4"); }},
        {"Alt and an arrow", 1, AltArrow},
    };
    return actions;
}

}  // namespace kivu::walker
