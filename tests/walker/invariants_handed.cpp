// A later start of the program, which hands its file over.

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

bool HandsOver(const Moment& m) {
    return m.hand.gesture == "summon" && IsFileToStart(m.hand.control) && m.Alone();
}

std::string StaysOpen(const Moment& m) {
    return HandsOver(m) && m.world.Ended() ? "the program has ended" : "";
}

std::string BeepsWhereNotFree(const Moment& m) {
    const bool refused = HandsOver(m) && m.expected.act == Expected::Act::nothing;
    return refused && m.beeps == 0 ? "no beep for " + m.hand.control : "";
}

// Behind an open box nothing starts.
std::string NotBehindABox(const Moment& m) {
    for (const Intrusion& intrusion : m.inner) {
        const bool handsOver =
            intrusion.hand.gesture == "summon" && IsFileToStart(intrusion.hand.control);
        if (!intrusion.atBox || !handsOver) continue;
        for (const Started& started : m.starts) {
            if (started.text.find(intrusion.hand.control) != std::string::npos &&
                m.expected.meant.path != intrusion.hand.control)
                return intrusion.hand.control + " was started behind a box";
        }
    }
    return {};
}

}  // namespace

const std::vector<Invariant>& HandedInvariants() {
    static const std::vector<Invariant> invariants{
        {"a file handed over leaves the launcher open",
         "the first one was there before it",
         StaysOpen,
         {}},
        {"a file that is not taken is answered by a beep",
         "whoever opened it waits for a game",
         BeepsWhereNotFree,
         {}},
        {"nothing is handed over behind a box",
         "the box belongs to something else that goes on",
         NotBehindABox,
         {}},
    };
    return invariants;
}

}  // namespace kivu::walker
