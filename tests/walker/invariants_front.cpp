// The list in front, its tab, the drop-down, the focus, the buttons around them.

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption running{
    "while a game runs no list is in front, but the global favourites after a "
    "start out of them",
    [](const Moment& m) { return m.after.Running(); }};
const Exemption nothingLoaded{"without an emulator there is nothing to show",
                              [](const Moment& m) { return m.after.loaded < 0; }};
const Exemption choosing{"the choice is open: the rows there are not loaded yet",
                         [](const Moment& m) { return m.after.ChoiceOpen(); }};
const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};
const Exemption notStarted{"the program has not been started yet",
                           [](const Moment& m) { return m.after.dropDown.rows.empty(); }};

bool Reachable(const Moment& m, const char* control) {
    const forms::Control* found = m.world.Form().Find(control);
    return found && found->IsReachable();
}

std::string DropDown(const Moment& m) {
    if (m.after.dropDown.row == m.after.loaded) return {};
    return "the drop-down stands on " + Quoted(m.after.dropDown.Marked()) + ", loaded is " +
           Quoted(m.after.Loaded());
}

std::string OneList(const Moment& m) {
    const auto front = m.after.InFront();
    if (front.size() == 1) return {};
    std::string names;
    for (const List list : front)
        names += " " + NameOf(list);
    return Number(front.size()) + " lists are to be seen:" + names;
}

// The search box counts as the list of its tab.
std::string MarkedTab(const Moment& m) {
    const auto front = m.after.InFront();
    if (front.size() != 1) return {};
    const std::string mode = m.after.mode == "7" ? "4" : m.after.mode == "10" ? "5" : m.after.mode;
    const std::string wanted = listNames[static_cast<std::size_t>(front[0])].mode;
    if (mode == wanted) return {};
    return NameOf(front[0]) + " is in front in mode " + m.after.mode;
}

std::string TabsToBeSeen(const Moment& m) {
    for (std::size_t i = 0; i < 3; ++i) {
        if (!m.after.tabs[i].visible) return "Label" + Number(i + 1) + " is hidden";
    }
    return {};
}

std::string Focus(const Moment& m) {
    const forms::Control* focus = m.world.Form().Focus();
    if (!focus) return "nothing has the focus";
    return focus->IsReachable() ? "" : m.after.focus + " has it and cannot be reached";
}

std::string DropDownReachable(const Moment& m) {
    return Reachable(m, "EmuListbox") ? "" : "the drop-down cannot be reached";
}

std::string RemoveButton(const Moment& m) {
    if (!Reachable(m, "DeLFav")) return {};
    const bool favourites =
        m.after.At(List::favourites).visible || m.after.At(List::globalFavourites).visible;
    return favourites ? "" : "the button to remove a favourite shows without a list of them";
}

std::string SettingsButtons(const Moment& m) {
    const bool wide = m.world.Form().SettingsBtn.Visible();
    const bool narrow = m.world.Form().SettingsShortBtn.Visible();
    if (wide != narrow) return {};
    return wide ? "both settings buttons show" : "no settings button shows";
}

std::string LongListFont(const Moment& m) {
    const double size = m.world.Form().Label4.FontSize();
    const double shown = m.after.At(List::emulators).fontSize;
    if (!m.after.At(List::emulators).visible || shown == size) return {};
    return "the long list has size " + std::to_string(shown) + " beside tabs of " +
           std::to_string(size);
}

std::string Escape(const Moment& m) {
    if (m.hand.gesture != "key" || m.hand.key != "Escape") return {};
    if (m.world.Ended()) return "the program has ended";
    const auto front = m.after.InFront();
    return front.empty() ? "no list is to be seen" : "";
}

}  // namespace

const std::vector<Invariant>& FrontInvariants() {
    static const std::vector<Invariant> invariants{
        {"drop-down on the loaded emulator",
         "the next global favourite is stored under the emulator that the drop-down stands on",
         DropDown,
         {ended,
          choosing,
          {"a game that comes up hides the open choice, and its end leads back",
           [](const Moment& m) { return m.after.Running(); }}}},
        {"one list in front",
         "the lists lie over one another",
         OneList,
         {ended,
          running,
          nothingLoaded,
          {"the global favourites come up over the open choice",
           [](const Moment& m) {
               return m.after.InFront() ==
                      std::vector<List>{List::globalFavourites, List::emulators};
           }}}},
        {"the tab of the list in front is marked",
         "keys, sizes and Escape act by the mode, and the user reads it off the tabs",
         MarkedTab,
         {ended,
          running,
          nothingLoaded,
          {"a double click on a global favourite loads its emulator and shows the list again; a "
           "Tab "
           "meanwhile comes to the search box",
           [](const Moment& m) {
               return m.after.At(List::globalFavourites).visible &&
                      (m.after.mode == "2" || m.after.mode == "7");
           }},
          {"a search typed over the open choice goes through all emulators, which stay in front",
           [](const Moment& m) {
               return m.after.mode == "7" && m.after.At(List::emulators).visible;
           }}}},
        {"tabs to be seen",
         "without them nobody gets to another list",
         TabsToBeSeen,
         {ended,
          running,
          nothingLoaded,
          choosing,
          {"the caption of a search of all emulators covers them",
           [](const Moment& m) { return m.after.At(List::globalHits).visible; }}}},
        {"focus on something",
         "without it no key does anything",
         Focus,
         {ended, running, nothingLoaded, notStarted}},
        {"drop-down to be reached",
         "without it no other emulator can be chosen",
         DropDownReachable,
         {ended, running, notStarted}},
        {"no removal without favourites",
         "there it beeps and hides the drop-down, as nothing leads there",
         RemoveButton,
         {ended}},
        {"one settings button", "they take one place in turns", SettingsButtons, {ended}},
        {"font of the long list",
         "the list is as large as the tabs, however it was opened",
         LongListFont,
         {ended}},
        {"Escape leads to a usable window",
         "it is what people press when they are lost",
         Escape,
         {running, nothingLoaded}},
    };
    return invariants;
}

}  // namespace kivu::walker
