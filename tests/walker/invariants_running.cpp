// A running game, its end, and what must not stay behind.

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};
const Exemption running{"a game runs", [](const Moment& m) { return m.after.Running(); }};

std::string Watched(const Moment& m) {
    const bool shown = m.after.picture || m.after.gameRuns;
    return shown && !m.after.watching ? "the timer is off" : "";
}

std::string NotBusy(const Moment& m) {
    if (m.after.busy) return "busy";
    return m.world.Form().EmuListLocked ? "the choice is locked" : "";
}

std::string NoBusyLabel(const Moment& m) {
    return m.after.busyLabel ? Quoted(m.world.Form().LoadingBtn.Caption()) + " is to be seen" : "";
}

// All that a hand may want, but for what the program switches off by itself.
std::string Enabled(const Moment& m) {
    core::Form1& form = m.world.Form();
    const std::vector<const forms::Control*> all{
        &form,           &form.EmuListbox,    &form.EmulatorLongListbox, &form.FavoritenListe,
        &form.UAE_Short, &form.SuchErgList,   &form.WIthoutDoubles,      &form.FavoritenListeGlobal,
        &form.DeLFav,    &form.AddToFavorit,  &form.AddToFavorit_Global, &form.GlobalSearchList,
        &form.ExitBtn,   &form.SettingsFrame, &form.SearchDblsTxt,       &form.AppRunningPicture};
    for (const forms::Control* control : all) {
        if (!control->Enabled()) return control->FullName() + " is disabled";
    }
    return m.after.loaded >= 0 && !form.LoadBtn.Enabled() ? "LoadBtn is disabled" : "";
}

std::string LettersStay(const Moment& m) {
    const bool letter = m.hand.gesture == "key" && m.hand.key.size() == 1;
    if (!letter || !m.Alone() || !m.before.Running() || m.before.searchText == m.after.searchText)
        return {};
    return Quoted(m.hand.key) + " made the search text " + Quoted(m.after.searchText);
}

std::string TabAlone(const Moment& m) {
    for (const BoxLook& shown : m.boxes) {
        const auto& tabs = shown.look.tabs;
        if (shown.look.InFront().empty() && tabs[3].visible && !tabs[1].visible)
            return Quoted(tabs[3].caption) + " stands alone behind " + Quoted(shown.box.title);
    }
    return {};
}

std::string TitleShows(const Moment& m) {
    if (m.after.titleVisible || m.before.title == m.after.title) return {};
    return Quoted(m.after.title) + " is written into a hidden line";
}

std::string Unknown(const std::string& error) {
    for (const char* part :
         {"cannot be reached", "has no row", "takes no focus", " is off", "no process", "already",
          "has ended", "No such file", "is there", "no such", "no window"}) {
        if (error.find(part) != std::string::npos) return {};
    }
    return error;
}

std::string Known(const Moment& m) {
    std::string unknown = Unknown(m.error);
    for (const Inside& one : m.inside)
        unknown += Unknown(one.error);
    return unknown;
}

}  // namespace

const std::vector<Invariant>& RunningInvariants() {
    static const std::vector<Invariant> invariants{
        {"nothing is thrown", "a command is refused in words or done", Known, {}},
        {"what runs is watched",
         "the picture and the hidden lists stay for ever otherwise",
         Watched,
         {ended,
          {"a start by the pad that leads to no game leaves the pad silent",
           [](const Moment& m) { return m.memory.startedNothing && !m.after.picture; }}}},
        {"nothing stays busy",
         "busy, the launcher takes no switch, rescan or start",
         NotBusy,
         {ended}},
        {"no busy label over the lists",
         "it says that something is under way",
         NoBusyLabel,
         {ended,
          running,
          {"without an emulator the title stands there",
           [](const Moment& m) { return m.after.loaded < 0; }},
          {"over the open choice it lies behind the list",
           [](const Moment& m) { return m.after.ChoiceOpen(); }}}},
        {"nothing stays disabled", "nobody can switch it on again", Enabled, {ended}},
        {"letters of a game stay out of the search",
         "they were meant for the game, and the search shows when it has ended",
         LettersStay,
         {ended,
          {"an emulator that was to be set up and has not come up leaves the choice open",
           [](const Moment& m) { return !m.before.gameRuns && !m.before.picture; }}}},
        {"no tab alone beside a box",
         "it is the only one of the list area that shows",
         TabAlone,
         {}},
        {"what is said is seen", "messages go into the title line", TitleShows, {ended}},
    };
    return invariants;
}

}  // namespace kivu::walker
