// Mounts, start scripts, display modes.

#include <algorithm>

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

using Act = Expected::Act;
using Kind = Meaning::Kind;

// On a disk that takes everything back, too.
std::string NothingIsLeft(const Moment& m) {
    if (m.world.DiskHasRefused()) return {};
    for (const std::string& emulator : m.after.dropDown.rows) {
        const std::string directory = std::string(programDirectory) + "/Config/" + emulator + "/";
        for (const char* name : {"MountDeamon.bat", "Startscript.vbs.bat"}) {
            if (m.world.Exists(directory + name)) return directory + name + " is left";
        }
    }
    return {};
}

bool GivenUp(const Moment& m) {
    return std::any_of(m.inner.begin(), m.inner.end(),
                       [](const Intrusion& intrusion) { return intrusion.stopsStart; });
}

// A file that was handed over waits, and is started behind it.
std::string GivenUpStartsNothing(const Moment& m) {
    const bool another = std::any_of(m.inner.begin(), m.inner.end(), [](const Intrusion& one) {
        return one.hand.gesture == "summon" || one.expected.act == Act::start;
    });
    if (!GivenUp(m) || another) return {};
    for (const Started& started : m.starts) {
        if (started.game) return "the start was called off, and started was " + started.text;
    }
    if (!m.before.Running() && m.after.Running())
        return "the start was called off, and something is watched";
    return {};
}

// The image of the game that starts, before it does.
std::string MountsTheGame(const Moment& m) {
    for (const HelperRun& helper : m.world.TakeHelpers()) {
        if (!helper.mounts) continue;
        const auto all = m.AllExpected();
        const bool meant = std::any_of(all.begin(), all.end(), [&](const Expected& expected) {
            if (expected.meant.kind == Kind::untold) return true;
            return expected.act == Act::start && helper.text.find("unmount") != std::string::npos &&
                   helper.text.find(FileName(expected.meant.path)) != std::string::npos;
        });
        // Written directly, each of the two commands is one of its own.
        if (!meant && !m.world.DiskHasRefused()) return "mounted by " + helper.text;
        if (m.Alone() && helper.startsBefore > 0) return "mounted behind the start";
    }
    return {};
}

bool IsFixed(const platform::DisplayMode& mode) {
    return mode == platform::DisplayMode{800, 600, 16, 60};
}

// One mode is set by itself, with a change of the emulator; any other one is put back by a kill.
std::string AsksForModes(const Moment& m) {
    const auto modes = m.world.TakeModes();
    const std::size_t kills = m.world.TakeKills();
    const auto others = static_cast<std::size_t>(
        std::count_if(modes.begin(), modes.end(), [](const auto& mode) { return !IsFixed(mode); }));
    if (others > kills)
        return Number(others) + " modes were put back with " + Number(kills) + " kills";
    const std::string profile = m.world.Read("Config/Kivu.ini");
    const bool kept = StoredValue(profile, "Settings", "ResetScreenResolution") == "1";
    if (!kept && m.Alone() && !modes.empty()) return "a mode was asked for, and none is to be kept";
    return {};
}

}  // namespace

const std::vector<Invariant>& HelperInvariants() {
    static const std::vector<Invariant> invariants{
        {"nothing is left of a start",
         "small files go with the routine that wrote them, or with the program",
         NothingIsLeft,
         {}},
        {"a start that is called off starts nothing",
         "Escape and the loading screen's button end the wait and the start",
         GivenUpStartsNothing,
         {}},
        {"what is mounted is the game that starts",
         "the tool gets the path of the launch",
         MountsTheGame,
         {}},
        {"display modes are put back by a kill alone",
         "a game's own end and the program's leave the screen alone",
         AsksForModes,
         {}},
    };
    return invariants;
}

}  // namespace kivu::walker
