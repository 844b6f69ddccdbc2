// The files on the disk.

#include <algorithm>

#include "walker/invariants.h"

namespace kivu::walker {

namespace {

const Exemption nothingLoaded{"without an emulator there are no files of one",
                              [](const Moment& m) { return m.after.loaded < 0; }};

const Exemption unwritten{
    "the disk has not taken what was to be stored since the emulator was loaded",
    [](const Moment& m) { return m.memory.unwritten; }};

// A write that is refused leaves the old file.
std::string OldFileStays(const Moment& m) {
    if (!m.world.DiskIsBroken() || m.before.loaded != m.after.loaded) return {};
    if (m.hand.gesture == "disk" || m.hand.gesture == "file" || !m.Alone()) return {};
    const std::string directory = "Config/" + m.after.Loaded() + "/";
    if (m.world.Refuses(directory + "Favoriten.ini") && m.storesBefore.own != m.stores.own)
        return "Favoriten.ini is another one";
    if (m.world.Refuses("Config/Favoriten_Global.ini") && m.storesBefore.global != m.stores.global)
        return "Favoriten_Global.ini is another one";
    const bool sameCache =
        m.storesBefore.cacheThere == m.stores.cacheThere && m.storesBefore.cache == m.stores.cache;
    if (m.world.Refuses(directory + "Kivu_Cache.txt") && !sameCache)
        return "Kivu_Cache.txt is another one";
    return {};
}

std::string OwnFavourites(const Moment& m) {
    std::vector<std::string> names;
    for (const Favourite& favourite : m.stores.own)
        names.push_back(favourite.name);
    if (names == m.after.At(List::favourites).rows) return {};
    return Number(names.size()) + " in the file, " +
           Number(m.after.At(List::favourites).rows.size()) + " in the list";
}

std::string GlobalFavourites(const Moment& m) {
    if (!m.after.At(List::globalFavourites).visible) return {};
    std::vector<std::string> rows;
    for (const GlobalFavourite& favourite : m.stores.global)
        rows.push_back(favourite.Display());
    if (rows == m.after.At(List::globalFavourites).rows) return {};
    return Number(rows.size()) + " in the file, " +
           Number(m.after.At(List::globalFavourites).rows.size()) + " in the list";
}

std::string Cache(const Moment& m) {
    if (!m.stores.cacheThere) {
        const std::size_t rows = m.after.paths.rows.size();
        return rows == 0 ? "" : Number(rows) + " rows without a cache";
    }
    const auto& paths = m.after.paths.rows;
    if (m.stores.cache.size() != paths.size())
        return Number(m.stores.cache.size()) + " in the cache, " + Number(paths.size()) + " rows";
    for (std::size_t i = 0; i < paths.size(); ++i) {
        const Favourite& entry = m.stores.cache[i];
        if (entry.path != paths[i] || entry.name != m.after.At(List::complete).rows[i])
            return "row " + Number(i) + " is " + paths[i] + ", in the cache " + entry.path;
    }
    return {};
}

std::string LastEmulator(const Moment& m) {
    if (m.stores.lastEmulator == m.after.Loaded()) return {};
    return Quoted(m.stores.lastEmulator) + " is stored, " + Quoted(m.after.Loaded()) + " loaded";
}

// Another run of the program shows what the last one showed.
std::string NewStart(const Moment& m) {
    if (m.hand.gesture != "start" || m.before.loaded < 0) return {};
    if (m.before.Loaded() != m.after.Loaded())
        return Quoted(m.after.Loaded()) + " is loaded instead of " + Quoted(m.before.Loaded());
    for (const List list : {List::favourites, List::complete}) {
        if (m.before.At(list).rows == m.after.At(list).rows) continue;
        return NameOf(list) + " had " + Number(m.before.At(list).rows.size()) + " rows and has " +
               Number(m.after.At(list).rows.size());
    }
    return m.before.paths.rows == m.after.paths.rows ? "" : "the paths are others";
}

// Row 0 counts as none there.
bool IsBehindTheFirstRow(const std::vector<std::string>& paths, const std::string& file) {
    const auto row = std::find_if(paths.begin(), paths.end(),
                                  [&](const std::string& path) { return FileName(path) == file; });
    return row != paths.end() && row != paths.begin();
}

std::string RepairedPath(const Moment& m) {
    if (!m.Answered("epa", platform::Answer::Yes) || !m.Alone()) return {};
    for (const Favourite& now : m.stores.own) {
        const Favourite* wrong = nullptr;
        bool right = false;
        for (const Favourite& was : m.storesBefore.own) {
            if (was.name != now.name) continue;
            const std::string file = FileName(was.path);
            right |= FileName(now.path) == file || !IsBehindTheFirstRow(m.after.paths.rows, file);
            wrong = &was;
        }
        if (wrong && !right) return wrong->path + " has become " + now.path;
    }
    return {};
}

std::string RomCount(const Moment& m) {
    if (!m.memory.rescanned || m.stores.romCount == Number(m.stores.cache.size())) return {};
    return m.stores.romCount + " is stored for " + Number(m.stores.cache.size()) + " games";
}

}  // namespace

const std::vector<Invariant>& StoreInvariants() {
    static const std::vector<Invariant> invariants{
        {"own favourites are stored",
         "the list is made anew from the file at the next start",
         OwnFavourites,
         {nothingLoaded,
          {"a name given by hand stays in the list until the disk takes it",
           [](const Moment& m) { return m.memory.unwritten; }},
          {"a repair writes the file without reading it again",
           [](const Moment& m) { return m.memory.repaired; }}}},
        {"global favourites are stored",
         "the list is made anew from the file when it is shown",
         GlobalFavourites,
         {{"with the hits of all emulators on show the list is left alone",
           [](const Moment& m) { return m.after.At(List::globalHits).rows.size() >= 3; }}}},
        {"the cache holds the lists",
         "the next start takes them from there",
         Cache,
         {nothingLoaded, unwritten}},
        {"the loaded emulator is the last one",
         "the next start loads it",
         LastEmulator,
         {nothingLoaded, unwritten}},
        {"a new start finds the same",
         "what was added must not be gone the next day",
         NewStart,
         {nothingLoaded,
          unwritten,
          {"a repair leaves keys behind the favourites that it has kept",
           [](const Moment& m) { return m.memory.repaired; }}}},
        {"the count of games is stored",
         "the choice of emulators shows it",
         RomCount,
         {nothingLoaded, unwritten}},
        {"a repaired favourite keeps its file name",
         "another game whose name only contains it is another game",
         RepairedPath,
         {}},
        {"a file that cannot be written stays as it was",
         "half a list of favourites is worse than yesterday's",
         OldFileStays,
         {}},
    };
    return invariants;
}

}  // namespace kivu::walker
