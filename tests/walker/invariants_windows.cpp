// The windows beside the main one.

#include <algorithm>

#include "launch/loading_form.h"
#include "walker/invariants.h"

namespace kivu::walker {

namespace {

bool IsHand(const std::string& gesture) {
    static const std::set<std::string> hands{"click", "dblclick", "rightclick", "select",
                                             "type",  "key",      "focus",      "close"};
    return hands.contains(gesture);
}

bool IsOfMainWindow(const Json& command) {
    return command.size() > 1 && command[1].is_string() &&
           command[1].get<std::string>().starts_with("Form1");
}

std::string CoversTheMainOne(const Moment& m) {
    for (const Inside& one : m.inside) {
        if (IsHand(one.command[0]) && IsOfMainWindow(one.command) && one.error.empty())
            return one.command.dump() + " was taken";
    }
    return {};
}

std::string LeavesTheMainOne(const Moment& m) {
    if (m.hand.gesture != "call") return {};
    if (!m.starts.empty()) return "something was started";
    if (!m.boxes.empty()) return "a box came up: " + m.boxes.front().box.title;
    for (std::size_t i = 0; i < listCount; ++i) {
        const ListLook &before = m.before.lists[i], &after = m.after.lists[i];
        if (before.rows != after.rows || before.row != after.row || before.visible != after.visible)
            return NameOf(static_cast<List>(i)) + " is another one";
    }
    if (m.before.focus != m.after.focus)
        return "the focus went from " + m.before.focus + " to " + m.after.focus;
    if (m.before.mode != m.after.mode) return "the mode is " + m.after.mode;
    if (m.before.searchText != m.after.searchText) return "the search box is another one";
    if (m.before.Running() != m.after.Running()) return "the watch has gone on";
    return {};
}

std::string Closes(const Moment& m) {
    const bool open = m.world.ModalIsOpen();
    return open ? "it is still there" : "";
}

// Saved or not, what is in front of the user stays there.
std::string KeepsTheLists(const Moment& m) {
    const bool settings = m.hand.control == "SettingsBtn" || m.hand.control == "SettingsShortBtn";
    if (m.hand.gesture != "click" || !settings) return {};
    for (std::size_t i = 0; i < listCount; ++i) {
        const ListLook &before = m.before.lists[i], &after = m.after.lists[i];
        if (before.rows != after.rows || before.row != after.row || before.visible != after.visible)
            return NameOf(static_cast<List>(i)) + " is another one";
    }
    if (m.before.mode != m.after.mode) return "the mode is " + m.after.mode;
    return m.before.Running() != m.after.Running() ? "the watch has gone on" : "";
}

const forms::Form* LoadingScreen(const Moment& m) {
    return m.world.Form().GetToolkit().windows->Find("LoadingInfo");
}

std::string GoesByItself(const Moment& m) {
    const forms::Form* screen = LoadingScreen(m);
    if (!screen) return {};
    const auto& form = dynamic_cast<const launch::LoadingForm&>(*screen);
    if (!form.Visible()) return "it is loaded and hidden";
    if (!form.Timer1.Enabled()) return "its timer is off";
    const bool late = form.SecondsPassed > 0 && form.SecondsPassed >= form.Seconds;
    return late ? std::to_string(form.SecondsPassed) + " seconds have passed" : "";
}

std::string StandsAbove(const Moment& m) {
    const forms::Form* screen = LoadingScreen(m);
    return screen && !screen->IsAboveAll() ? "a game would cover it" : "";
}

std::string ComesWithAGame(const Moment& m) {
    const bool came = m.after.splash && !m.before.splash;
    return came && m.starts.empty() ? "nothing was started" : "";
}

// Clicks on it, its ticks and the keys that skip it.
std::string OnlyGoes(const Moment& m) {
    const bool key = m.hand.gesture == "key" &&
                     (m.hand.key == "Escape" || m.hand.key == "Enter" || m.hand.key == "Space");
    const bool meant = m.hand.control.starts_with("LoadingInfo") || key;
    if (!m.before.splash || !meant || !m.Alone()) return {};
    if (!m.starts.empty()) return "something was started";
    return m.boxes.empty() ? "" : "a box came up: " + m.boxes.front().box.title;
}

const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};

}  // namespace

const std::vector<Invariant>& WindowInvariants() {
    static const std::vector<Invariant> invariants{
        {"no hand reaches behind a modal window",
         "what it asks would be about something else by then",
         CoversTheMainOne,
         {}},
        {"a window that has been asked leaves the main one as it was",
         "what to do with the answer is for whoever has asked",
         LeavesTheMainOne,
         {ended}},
        {"a window that has been asked is gone", "the next question starts fresh", Closes, {}},
        {"the settings leave the lists as they were",
         "the user goes on where they were opened",
         KeepsTheLists,
         {ended}},
        {"the loading screen goes by itself", "nobody need click it", GoesByItself, {ended}},
        {"the loading screen stands above all", "it is meant to be seen", StandsAbove, {ended}},
        {"the loading screen comes with a game", "else it tells of nothing", ComesWithAGame, {}},
        {"hands at the loading screen start and ask nothing",
         "it is in the way of a game that has just been started",
         OnlyGoes,
         {}},
    };
    return invariants;
}

}  // namespace kivu::walker
