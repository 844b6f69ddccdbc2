// What comes from outside: the clock, processes, files, the window manager.

#include "walker/actions.h"

namespace kivu::walker {

namespace {

constexpr int watched = 4711, bystander = 4712;

bool Runs(World& world, int id) {
    for (const auto& entry : world.Host().processes.entries) {
        if (entry.id == id) return true;
    }
    return false;
}

Commands Watch(World&, const Look& look, Random& random) {
    if (!look.watching) return {};
    return {Command({"tick", "Form1.EmuActiveTimer", 1 + random.Below(4)})};
}

Commands GameComesUp(World& world, const Look&, Random&) {
    const std::string& name = world.Form().CurrentRunninApplication;
    if (name.empty() || Runs(world, watched)) return {};
    return {Command({"process", "add", name, watched})};
}

Commands GameGoes(World& world, const Look&, Random&) {
    if (!Runs(world, watched)) return {};
    return {Command({"process", "remove", watched})};
}

// An emulator that somebody else has started, or has closed.
Commands Bystander(World& world, const Look&, Random& random) {
    if (Runs(world, bystander)) return {Command({"process", "remove", bystander})};
    static const std::vector<const char*> names{"amiga", "arcade", "cmd.exe"};
    return {Command({"process", "add", random.Pick(names), bystander})};
}

// A game's file, not one of the launcher's own, which an emulator without a directory of games
// finds.
std::string SomeGame(World& world, Random& random) {
    const std::vector<std::string> paths = world.Now().paths.rows;
    if (paths.empty()) return {};
    const std::string path = random.Pick(paths);
    return path.starts_with(std::string(programDirectory) + "/Roms/") ? path : "";
}

Commands FileVanishes(World& world, const Look&, Random& random) {
    const std::string path = SomeGame(world, random);
    if (path.empty() || !world.Exists(path)) return {};
    return {Command({"file", "remove", path})};
}

// The simple list and the hits keep the row of a game that a rescan does not find any more.
Commands FileVanishesAndRescan(World& world, const Look&, Random& random) {
    const std::string path = SomeGame(world, random);
    if (path.empty() || !world.Exists(path) || !Reachable(world, "LoadBtn")) return {};
    return {Command({"file", "remove", path}), Command({"click", "Form1.LoadBtn"})};
}

Commands FileComesBack(World& world, const Look&, Random& random) {
    const std::string path = SomeGame(world, random);
    if (path.empty() || world.Exists(path)) return {};
    return {Command({"file", "write", path, "x"})};
}

// Into the directory of the emulator of the moment; the next scan finds it.
Commands NewFile(World& world, const Look&, Random& random) {
    static const std::vector<const char*> names{"Aardvark (1990)(New).adf", "manpacman.zip",
                                                "Zzz (1999).adf", "Bee (1991)(Maker)(b).adf"};
    const std::string directory = world.Form().TxtRomPath.Text();
    if (world.Now().loaded < 0 || directory.empty()) return {};
    return {Command({"file", "write", directory + random.Pick(names), "x"})};
}

// A later start of the program: with a file or without, by a whole path or not, and with what asks
// for help.
Commands HandOver(World& world, const Look&, Random& random) {
    const std::string roms = std::string(programDirectory) + "/Roms/";
    static const std::vector<const char*> others{"Arcade/puckman.zip", "Old C64/Hen (1984).d64",
                                                 "nowhere.adf", "what?.adf"};
    const std::string game = SomeGame(world, random);
    switch (random.Below(8)) {
        case 0:
            return {Command({"summon"})};
        case 1:
            return {Command({"summon", "Roms/Arcade/puckman.zip"})};
        case 2:
        case 3:
            return {Command({"summon", roms + random.Pick(others)})};
        default:
            return game.empty() ? Commands{} : Commands{Command({"summon", game})};
    }
}

// What cannot be written from now on.
Commands DiskBreaks(World& world, const Look&, Random& random) {
    if (world.DiskIsBroken()) return {};
    const char* state = random.Chance(60) ? "full" : "read-only";
    static const std::vector<const char*> parts{"Favoriten", "Cache", "Kivu.ini", "_tmp"};
    if (random.Chance(50)) return {Command({"disk", state})};
    return {Command({"disk", state, random.Pick(parts)})};
}

Commands DiskIsFine(World& world, const Look&, Random&) {
    if (!world.DiskIsBroken()) return {};
    return {Command({"disk", "fine"})};
}

Commands Resize(World&, const Look&, Random& random) {
    return {Command({"resize", "Form1", 9600 + random.Below(20000), 7200 + random.Below(12000)})};
}

Commands State(World&, const Look&, Random& random) {
    return {Command({"state", "Form1", random.Below(3)})};
}

}  // namespace

const std::vector<Action>& WorldActions() {
    static const std::vector<Action> actions{
        {"the watch looks", 14, Watch},
        {"the game comes up", 6, GameComesUp},
        {"the game goes", 6, GameGoes},
        {"a bystander comes or goes", 3, Bystander},
        {"a file vanishes", 3, FileVanishes},
        {"a file vanishes in front of a rescan", 4, FileVanishesAndRescan},
        {"a file comes back", 3, FileComesBack},
        {"a new file", 2, NewFile},
        {"a file is handed over", 4, HandOver},
        {"the disk breaks", 2, DiskBreaks},
        {"the disk is fine again", 8, DiskIsFine},
        {"resize", 2, Resize},
        {"minimise, maximise or restore", 1, State},
        {"close", 1,
         [](World&, const Look&, Random&) -> Commands {
             return {Command({"answer", "Cancel"}), Command({"close", "Form1"})};
         }},
        {"the clock ticks", 1,
         [](World&, const Look&, Random&) -> Commands {
             return {Command({"tick", "Form1.Uhrzeit"})};
         }},
    };
    return actions;
}

}  // namespace kivu::walker
