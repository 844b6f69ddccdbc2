// What starts, is stored and is loaded.

#include <algorithm>

#include "text/text.h"
#include "walker/invariants.h"

namespace kivu::walker {

namespace {

using Act = Expected::Act;
using Kind = Meaning::Kind;

const Exemption untold{"the file after a repair holds more than the list, until it is loaded again",
                       [](const Moment& m) { return m.expected.meant.kind == Kind::untold; }};
const Exemption repairedJustNow{
    "the question of a missing favourite was answered with a repair, which moves the rows",
    [](const Moment& m) { return m.Answered("epa", platform::Answer::Yes); }};

std::string StoredProgram(const Moment& m, const std::string& emulator) {
    const std::string profile = m.world.Read("Config/" + emulator + "/Kivu.ini");
    return StoredValue(profile, "Settings", "EmulatorPath");
}

std::string EmulatorProgram(const Moment& m, const std::string& emulator) {
    return AbsolutePath(StoredProgram(m, emulator));
}

bool HandsPathOver(const Moment& m, const std::string& emulator) {
    const std::string profile = m.world.Read("Config/" + emulator + "/Kivu.ini");
    return StoredValue(profile, "Settings", "EmulatorParameterAddDiskPath") == "1";
}

// The whole path, not one that goes on.
bool Names(const std::string& text, const std::string& path) {
    for (std::size_t at = text.find(path); at != std::string::npos; at = text.find(path, at + 1)) {
        const std::size_t end = at + path.size();
        if (end == text.size() || std::string_view("'\" \r\n").find(text[end]) != std::string::npos)
            return true;
    }
    return false;
}

// Without a start file, which the disk did not take, its program is started itself.
bool IsOf(const Moment& m, const Started& started, const std::string& emulator) {
    if (!started.emulator.empty()) return started.emulator == emulator;
    if (m.refusals == 0) return false;
    // One that nobody has set up has no program to compare with.
    const std::string stored = StoredProgram(m, emulator);
    return stored.empty() || stored == "(none)" || stored == "*.exe" ||
           started.program == AbsolutePath(stored);
}

std::string WrongGame(const Moment& m, const Started& started, const Expected& expected) {
    const Meaning& meant = expected.meant;
    if (expected.act != Act::start) return "a game was started by " + m.command.dump();
    if (meant.kind != Kind::game)
        return "a row without a game started " + Quoted(m.after.started) + ": " + started.text;
    if (!IsOf(m, started, meant.emulator))
        return "started under " + Quoted(started.emulator) + " instead of " +
               Quoted(meant.emulator);
    if (HandsPathOver(m, meant.emulator) && !Names(started.text, meant.path))
        return "the row means " + meant.path + ", started was " + started.text;
    const std::string file = FileName(meant.path);
    const std::string title = file.size() > 4 ? file.substr(0, file.size() - 4) : file;
    // Of two that start in turn the last one is called.
    if (!m.Alone() || m.after.started.starts_with(title)) return {};
    return "the row means " + Quoted(title) + ", called was " + Quoted(m.after.started);
}

std::string WrongStart(const Moment& m, const Started& started, const Expected& expected) {
    if (started.game) return WrongGame(m, started, expected);
    if (expected.act != Act::setUp) return started.program + " was started by " + m.command.dump();
    const std::string wanted = EmulatorProgram(m, expected.setUp);
    return started.program == wanted ? "" : started.program + " was started to set up " + wanted;
}

// Each is what the command asked for, or one that came in its middle.
std::string Starts(const Moment& m) {
    if (m.starts.size() > 1 + m.inner.size())
        return Number(m.starts.size()) + " programs were started";
    for (const Started& started : m.starts) {
        std::string wrong;
        for (const Expected& expected : m.AllExpected()) {
            const std::string here = WrongStart(m, started, expected);
            if (here.empty() || expected.meant.kind == Kind::untold) {
                wrong.clear();
                break;
            }
            // What the command itself was to do says most.
            if (wrong.empty()) wrong = here;
        }
        if (!wrong.empty()) return wrong;
    }
    return {};
}

// Where its file and its emulator are there, a game that is asked for starts.
std::string StartsAtAll(const Moment& m) {
    const Meaning& meant = m.expected.meant;
    if (m.expected.act != Act::start || meant.kind != Kind::game || !m.Taken()) return {};
    if (!m.starts.empty() || !m.world.Exists(meant.path) || !m.Alone()) return {};
    return meant.path + " was not started";
}

std::string TellsOfMissing(const Moment& m) {
    const Meaning& meant = m.expected.meant;
    if (m.expected.act != Act::start || !m.Taken()) return {};
    const bool missing = (meant.kind == Kind::game && !m.world.Exists(meant.path)) ||
                         (meant.kind == Kind::gone && meant.emulator == m.before.Loaded());
    return missing && m.Alone() && m.boxes.empty() ? "nothing was said of the missing game" : "";
}

template <typename Entry>
std::vector<Entry> NewOnes(const std::vector<Entry>& before, const std::vector<Entry>& after) {
    std::vector<Entry> added = after;
    for (const Entry& entry : before) {
        const auto found = std::find(added.begin(), added.end(), entry);
        if (found != added.end()) added.erase(found);
    }
    return added;
}

// The game that the command, or one in its middle, was to store.
std::vector<Meaning> Wanted(const Moment& m, Act act) {
    std::vector<Meaning> wanted;
    for (const Expected& expected : m.AllExpected()) {
        if (expected.act == act && expected.meant.kind == Kind::game)
            wanted.push_back(expected.meant);
    }
    return wanted;
}

std::string StoresOwn(const Moment& m) {
    if (m.before.loaded != m.after.loaded) return {};
    const std::vector<Meaning> wanted = Wanted(m, Act::storeOwn);
    for (const Favourite& added : NewOnes(m.storesBefore.own, m.stores.own)) {
        const bool known =
            std::any_of(m.storesBefore.own.begin(), m.storesBefore.own.end(),
                        [&](const Favourite& one) { return one.path == added.path; });
        // Another name for a path that was there is a favourite that was renamed. Keys behind the
        // last live favourite stay, and live again once the ones in front of them reach them.
        if (known || m.storesBefore.ownPaths.contains(added.path)) continue;
        if (wanted.empty()) return added.path + " was stored by " + m.command.dump();
        const bool meant = std::any_of(wanted.begin(), wanted.end(), [&](const Meaning& one) {
            return added.path == one.path && added.name == one.name;
        });
        if (!meant) return "the row means " + wanted[0].path + ", stored was " + added.path;
    }
    return {};
}

bool HasOwn(const Stores& stores, const std::string& path) {
    return std::any_of(stores.own.begin(), stores.own.end(),
                       [&](const Favourite& one) { return one.path == path; });
}

// A disk that does not take it, or 1,001 that are there, are the only reasons.
std::string StoresAtAll(const Moment& m) {
    if (!m.Taken() || !m.Alone() || m.refusals > 0 || m.expected.meant.kind != Kind::game)
        return {};
    const std::string& path = m.expected.meant.path;
    if (m.expected.act == Act::storeOwn && !HasOwn(m.stores, path)) return path + " was not stored";
    const auto added = NewOnes(m.storesBefore.global, m.stores.global);
    if (m.expected.act == Act::storeGlobal && added.size() != 1)
        return Number(added.size()) + " entries were stored";
    return {};
}

bool Says(const Moment& m, const char* english, const char* german) {
    const std::string& title = m.after.title;
    return title != m.before.title && (title.starts_with(english) || title.starts_with(german));
}

// What the title line says was added is in the file; what is not there is told by a beep.
std::string SaysWhatIsStored(const Moment& m) {
    if (!m.Taken() || !m.Alone() || m.expected.meant.kind != Kind::game) return {};
    bool stored = false, said = false;
    if (m.expected.act == Act::storeOwn) {
        stored = HasOwn(m.stores, m.expected.meant.path);
        said = Says(m, "Favorite add: ", "Neuer Favorit: ");
    } else if (m.expected.act == Act::storeGlobal) {
        stored = !NewOnes(m.storesBefore.global, m.stores.global).empty();
        said = Says(m, "Add global Favorite: ", "Globaler Favorit: ");
    } else {
        return {};
    }
    if (said && !stored) return Quoted(m.after.title) + " is said, and it is not in the file";
    return !stored && m.beeps == 0 ? "nothing tells that it was not stored" : "";
}

std::string StoresGlobal(const Moment& m) {
    const std::vector<Meaning> wanted = Wanted(m, Act::storeGlobal);
    for (const GlobalFavourite& one : NewOnes(m.storesBefore.global, m.stores.global)) {
        if (wanted.empty()) return one.path + " was stored by " + m.command.dump();
        const bool meant = std::any_of(wanted.begin(), wanted.end(), [&](const Meaning& game) {
            return one.path == game.path && one.name == game.name && one.system == game.emulator;
        });
        if (!meant)
            return "the row means " + wanted[0].path + " of " + wanted[0].emulator +
                   ", stored was " + one.path + " of " + one.system;
    }
    return {};
}

std::string Loads(const Moment& m) {
    const std::string was = m.before.Loaded(), is = m.after.Loaded();
    if (!m.Alone()) {
        const auto all = m.AllExpected();
        const bool asked = std::any_of(all.begin(), all.end(),
                                       [&](const Expected& one) { return one.loads == is; });
        return asked || is == was ? "" : Quoted(is) + " was loaded by " + m.command.dump();
    }
    const std::string& wanted = m.expected.loads;
    if (is == was && (wanted.empty() || wanted == was || !m.Taken())) return {};
    if (is == wanted) return {};
    if (wanted.empty()) return Quoted(is) + " was loaded by " + m.command.dump();
    return Quoted(is) + " is loaded instead of " + Quoted(wanted);
}

const Exemption nameOfRunning{
    "while a game runs its name is no way to start another one", [](const Moment& m) {
        return m.before.Running() && m.hand.control == "Current_ProgramNameFull";
    }};

}  // namespace

const std::vector<Invariant>& StartInvariants() {
    static const std::vector<Invariant> invariants{
        {"what starts is the marked game",
         "another game is what nobody asked for",
         Starts,
         {untold, repairedJustNow}},
        {"a marked game starts",
         "a double click that does nothing looks broken",
         StartsAtAll,
         {untold,
          repairedJustNow,
          nameOfRunning,
          {"a batch emulator is handed its game in a file of its own, and a box tells where the "
           "disk "
           "does not take it",
           [](const Moment& m) { return m.refusals > 0 && !m.boxes.empty(); }}}},
        {"a missing game is told of",
         "a double click that does nothing looks broken",
         TellsOfMissing,
         {untold, repairedJustNow, nameOfRunning}},
        {"what is stored as a favourite is the marked game",
         "the wrong one shows only when it is started, weeks later",
         StoresOwn,
         {untold,
          repairedJustNow,
          {"a repair writes paths anew", [](const Moment& m) { return m.memory.repaired; }}}},
        {"what is stored as a global favourite is the marked game",
         "the wrong one shows only when it is started, weeks later",
         StoresGlobal,
         {untold}},
        {"what is to be stored is stored",
         "nobody looks whether it has come about",
         StoresAtAll,
         {untold, repairedJustNow}},
        {"what is not stored is told of",
         "it would be gone the next day",
         SaysWhatIsStored,
         {untold, repairedJustNow}},
        {"what is loaded is the chosen emulator",
         "everything else is done under the loaded emulator",
         Loads,
         {{"the program has just been started",
           [](const Moment& m) { return m.hand.gesture == "start"; }}}},
    };
    return invariants;
}

}  // namespace kivu::walker
