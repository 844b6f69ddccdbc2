// The game controller: its switch, its steps, and what it must not do.

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption ended{"the program has ended",
                      [](const Moment& m) { return m.after.ended || m.world.Ended(); }};

bool IsPoll(const Moment& m) {
    return m.hand.gesture == "tick" && m.hand.control == "JoystickTimer";
}

std::string SteadyInGame(const Moment& m) {
    if (!IsPoll(m) || !m.Alone() || !m.before.PadIsSilent()) return {};
    for (std::size_t list = 0; list < listCount; ++list) {
        if (m.before.lists[list].row != m.after.lists[list].row)
            return NameOf(static_cast<List>(list)) + " has moved";
    }
    return m.before.pad.focus == m.after.pad.focus ? "" : "the focus has moved";
}

std::string SetUpModeOver(const Moment& m) {
    return m.world.Form().JoystickButtonSetupModus ? "the window that asks has gone" : "";
}

std::string BoxTimerOff(const Moment& m) {
    return m.world.Form().BoxButtonTimer.Enabled() ? "it goes on behind the box" : "";
}

std::string NotBrowsing(const Moment& m) {
    return m.world.Form().EmuListBrowsing ? "no emulator can be loaded" : "";
}

std::string OpenWhileOn(const Moment& m) {
    const bool on = m.world.Form().JoystickTimer.Enabled();
    const bool shown = m.world.Form().JoystickIcon.Visible();
    return on && !shown ? "the timer is on, and the picture is hidden" : "";
}

std::string FocusOfChoice(const Moment& m) {
    if (m.after.At(List::emulators).visible || m.after.pad.focus != 5) return {};
    return "the next step down would open the choice again";
}

}  // namespace

const std::vector<Invariant>& PadInvariants() {
    static const std::vector<Invariant> invariants{
        {"a silent pad moves nothing", "it is held for a game", SteadyInGame, {}},
        {"no set-up without its window", "every button would be swallowed", SetUpModeOver, {}},
        {"nobody answers boxes that have gone", "it costs time for nothing", BoxTimerOff, {ended}},
        {"no step stays half done", "SelectEmulator does nothing in it", NotBrowsing, {}},
        {"the pad's picture shows while it is on", "it is how to set it up", OpenWhileOn, {ended}},
        {"the pad leaves the choice with it",
         "it is out of sight",
         FocusOfChoice,
         {ended,
          {"a game that comes up hides the open choice, and its end leads back",
           [](const Moment& m) { return m.after.Running(); }}}},
    };
    return invariants;
}

}  // namespace kivu::walker
