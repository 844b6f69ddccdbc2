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
    [](const Moment& m) { return m.Answered("epar", platform::Answer::Yes); }};

std::string EmulatorProgram(const Moment& m, const std::string& emulator) {
    const std::string profile = m.world.Read("Config/" + emulator + "/Kivu.ini");
    return AbsolutePath(StoredValue(profile, "Settings", "EmulatorPath"));
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

std::string WrongGame(const Moment& m, const Started& started) {
    const Meaning& meant = m.expected.meant;
    if (m.expected.act != Act::start) return "a game was started by " + m.command.dump();
    if (meant.kind != Kind::game)
        return "a row without a game started " + Quoted(m.after.started) + ": " + started.text;
    if (started.emulator != meant.emulator)
        return "started under " + Quoted(started.emulator) + " instead of " +
               Quoted(meant.emulator);
    if (HandsPathOver(m, meant.emulator) && !Names(started.text, meant.path))
        return "the row means " + meant.path + ", started was " + started.text;
    const std::string file = FileName(meant.path);
    const std::string title = file.size() > 4 ? file.substr(0, file.size() - 4) : file;
    if (m.after.started.starts_with(title)) return {};
    return "the row means " + Quoted(title) + ", called was " + Quoted(m.after.started);
}

std::string Starts(const Moment& m) {
    if (m.starts.size() > 1) return Number(m.starts.size()) + " programs were started";
    for (const Started& started : m.starts) {
        if (started.game) {
            const std::string wrong = WrongGame(m, started);
            if (!wrong.empty()) return wrong;
            continue;
        }
        if (m.expected.act != Act::setUp)
            return started.program + " was started by " + m.command.dump();
        const std::string wanted = EmulatorProgram(m, m.expected.setUp);
        if (started.program != wanted) return started.program + " was started to set up " + wanted;
    }
    return {};
}

// Where its file and its emulator are there, a game that is asked for starts.
std::string StartsAtAll(const Moment& m) {
    const Meaning& meant = m.expected.meant;
    if (m.expected.act != Act::start || meant.kind != Kind::game || !m.Taken()) return {};
    if (!m.starts.empty() || !m.world.Exists(meant.path)) return {};
    return meant.path + " was not started";
}

std::string TellsOfMissing(const Moment& m) {
    const Meaning& meant = m.expected.meant;
    if (m.expected.act != Act::start || !m.Taken()) return {};
    const bool missing = (meant.kind == Kind::game && !m.world.Exists(meant.path)) ||
                         (meant.kind == Kind::gone && meant.emulator == m.before.Loaded());
    return missing && m.boxes.empty() ? "nothing was said of the missing game" : "";
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

std::string StoresOwn(const Moment& m) {
    if (m.before.loaded != m.after.loaded) return {};
    const Meaning& meant = m.expected.meant;
    const auto has = [&](const std::vector<Favourite>& all) {
        return std::any_of(all.begin(), all.end(),
                           [&](const Favourite& one) { return one.path == meant.path; });
    };
    const bool wanted = m.expected.act == Act::storeOwn && meant.kind == Kind::game && m.Taken();
    for (const Favourite& added : NewOnes(m.storesBefore.own, m.stores.own)) {
        const bool known =
            std::any_of(m.storesBefore.own.begin(), m.storesBefore.own.end(),
                        [&](const Favourite& one) { return one.path == added.path; });
        // Another name for a path that was there is a favourite that was renamed.
        if (known) continue;
        if (!wanted) return added.path + " was stored by " + m.command.dump();
        if (added.path != meant.path || added.name != meant.name)
            return "the row means " + meant.path + ", stored was " + added.path;
    }
    if (wanted && !has(m.stores.own)) return meant.path + " was not stored";
    return {};
}

std::string StoresGlobal(const Moment& m) {
    const Meaning& meant = m.expected.meant;
    const bool wanted = m.expected.act == Act::storeGlobal && meant.kind == Kind::game && m.Taken();
    const auto added = NewOnes(m.storesBefore.global, m.stores.global);
    for (const GlobalFavourite& one : added) {
        if (!wanted) return one.path + " was stored by " + m.command.dump();
        if (one.path != meant.path || one.name != meant.name || one.system != meant.emulator)
            return "the row means " + meant.path + " of " + meant.emulator + ", stored was " +
                   one.path + " of " + one.system;
    }
    if (wanted && added.size() != 1) return Number(added.size()) + " entries were stored";
    return {};
}

std::string Loads(const Moment& m) {
    const std::string was = m.before.Loaded(), is = m.after.Loaded();
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
         {untold, repairedJustNow, nameOfRunning}},
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
        {"what is loaded is the chosen emulator",
         "everything else is done under the loaded emulator",
         Loads,
         {{"the program has just been started",
           [](const Moment& m) { return m.hand.gesture == "start"; }}}},
    };
    return invariants;
}

}  // namespace kivu::walker
