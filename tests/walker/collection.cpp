#include "walker/collection.h"

#include <utility>

#include "testing/picture_files.h"

namespace kivu::walker {

namespace {

using Texts = std::vector<std::string>;
using Settings = std::vector<std::pair<std::string, std::string>>;

struct Emulator {
    std::string name;
    std::string program;  // in Emu
    bool programThere = true;
    bool cached = true;
    std::string smart = "1";
    Texts games;  // in the order of the sorted list
};

const std::vector<Emulator>& Emulators() {
    static const std::vector<Emulator> emulators{
        {"Amiga",
         "amiga",
         true,
         true,
         "1",
         {"Alpha Ant (1990)(Maker).adf", "Ant (1990)(Maker)(Disk 1 of 2).adf",
          "Ant (1990)(Maker)(Disk 2 of 2).adf", "Bee (1991)(Maker).adf",
          "Beehive (1991)(Maker).adf", "More/Bee (1991)(Maker).adf", "Yak (1992)(Other).adf",
          "Zoo (1993)(Maker)(Disk 1 of 3).adf", "Zoo (1993)(Maker)(Disk 2 of 3).adf",
          "Zoo (1993)(Maker)(Disk 3 of 3).adf"}},
        {"Arcade",
         "arcade",
         true,
         true,
         "0",
         {"amidar.zip", "mspacman.zip", "old/pacman.zip", "pacman.zip", "pacmanjr.zip",
          "puckman.zip", "puckmanb.zip", "zaxxon.zip"}},
        {"Batch", "batch.bat", true, true, "1", {"Bat (1985).tap", "Cat (1986).tap"}},
        {"Empty", "empty", true, true, "1", {}},
        {"Fresh", "fresh", true, false, "1", {"Dog (1989).rom", "Eel (1990).rom"}},
        {"Gone", "gone", false, true, "1", {"Fox (1991).bin", "Gnu (1992).bin"}},
        {"Old C64",
         "arcade",
         true,
         true,
         "0",
         {"Ant (1990)(Maker).d64", "Hen (1984).d64", "Ibis (1985).d64"}},
    };
    return emulators;
}

// As a list shows it: cut behind the second ")", or the name without its ending.
std::string ShownName(const std::string& game) {
    const std::string name = game.substr(game.rfind('/') + 1);
    const std::size_t first = name.find(')');
    if (first == std::string::npos) return name.substr(0, name.size() - 4);
    const std::size_t second = name.find(')', first + 1);
    return name.substr(0, (second == std::string::npos ? first : second) + 1);
}

std::string StoredPath(const Emulator& emulator, const std::string& game) {
    return "/Roms/" + emulator.name + "/" + game;
}

std::string ProfileOf(const std::string& section, const Settings& settings) {
    std::string text = "[" + section + "]\r\n";
    for (const auto& [key, value] : settings)
        text += key + "=" + value + "\r\n";
    return text;
}

class Layout {
 public:
    Layout(Collection& collection, Random& random) : collection(collection), random(random) {}

    void Make() {
        for (const Emulator& emulator : Emulators())
            AddEmulator(emulator);
        // One that nobody has set up yet.
        Write("Config/Bare/readme.txt", "");
        if (random.Chance(70)) AddOwnFavourites();
        if (random.Chance(70)) AddGlobalFavourites();
        AddProgramProfile();
        collection.layout.push_back(Json::array({"device", "add", "Pad", 11}));
        collection.layout.push_back(Json::array({"device", "add", "Mouse", 0}));
    }

 private:
    void Write(const std::string& path, const std::string& text) {
        collection.layout.push_back(Json::array({"file", "write", path, text}));
    }

    void AddEmulator(const Emulator& emulator) {
        const std::string directory = "Config/" + emulator.name + "/";
        Write(directory + "Kivu.ini",
              ProfileOf("Settings", {{"RomPath", "/Roms/" + emulator.name},
                                     {"EmulatorPath", "/Emu/" + emulator.program},
                                     {"WinUAE_UseMasterConfig", "0"},
                                     {"SmartRomSelection", emulator.smart},
                                     {"SplashTimer", std::to_string(random.Below(4))},
                                     {"EmulatorParameterAddDiskPath", "1"}}));
        if (emulator.programThere) Write("Emu/" + emulator.program, "");
        std::string cache;
        for (const std::string& game : emulator.games) {
            const std::string path = StoredPath(emulator, game);
            cache += path + "\r\n" + ShownName(game) + "\r\n";
            collection.games.push_back(path.substr(1));
            Write(path.substr(1), "x");
            if (random.Chance(40)) AddPicture(directory + "Pictures/", game);
        }
        if (random.Chance(50)) AddPicture(directory + "Skin/", emulator.name);
        if (random.Chance(20)) AddPicture(directory + "Pictures/", emulator.name);
        if (emulator.games.empty()) Write("Roms/" + emulator.name + "/.keep", "");
        if (emulator.cached) Write(directory + "Kivu_Cache.txt", cache);
    }

    // Named like the whole file or like its title; now and then damaged.
    void AddPicture(const std::string& directory, const std::string& file) {
        const std::size_t end = file.find(random.Chance(50) ? '(' : '.');
        Write(directory + file.substr(0, end) + ".jpg",
              random.Chance(90) ? testing::BmpHead(32, 24) : "damaged");
    }

    // Each a name and a path; some of games that have moved or gone.
    void AddOwnFavourites() {
        const Settings amiga{
            {"Bee (1991)(Maker)", "/Roms/Amiga/Bee (1991)(Maker).adf"},
            {"Lost", "/Roms/Amiga/Lost (1999).adf"},
            {"Yak (1992)(Other)", "/Elsewhere/Yak (1992)(Other).adf"},
            {"Zoo by hand", "/Roms/Amiga/Zoo (1993)(Maker)(Disk 2 of 3).adf"},
        };
        // A repair finds a favourite by a part of its path.
        const Settings arcade{{"pacman", "/Roms/Arcade/pacman.zip"},
                              {"pacman moved", "/Moved/pacman moved/pacman.zip"},
                              {"puckman", "/Moved/puckman.zip"}};
        WriteOwn("Amiga", Some(amiga));
        WriteOwn("Arcade", Some(arcade));
    }

    Settings Some(const Settings& all) {
        Settings some;
        for (const auto& entry : all) {
            if (random.Chance(60)) some.push_back(entry);
        }
        return some;
    }

    // Now and then a number is missing, a game stands there twice, or old keys lie behind.
    void WriteOwn(const std::string& emulator, const Settings& entries) {
        Settings lines;
        int number = 0;
        const auto add = [&](const std::string& name, const std::string& path) {
            const std::string key = "Fav" + std::to_string(number++);
            lines.emplace_back(key + "_Name", name);
            lines.emplace_back(key + "_FullPath", path);
        };
        for (const auto& [name, path] : entries) {
            add(name, path);
            if (random.Chance(15)) ++number;
            if (random.Chance(15)) add(name + " again", path);
        }
        if (random.Chance(20)) {
            number += 3;
            add("Behind", "/Roms/Amiga/Behind.adf");
        }
        Write("Config/" + emulator + "/Favoriten.ini", ProfileOf("Favoriten", lines));
    }

    void AddGlobalFavourites() {
        struct Entry {
            const char* name;
            const char* system;
            const char* path;  // in Roms
        };
        const std::vector<Entry> all{
            {"Bee (1991)(Maker)", "Amiga", "Amiga/Bee (1991)(Maker).adf"},
            {"Bee (1991)(Maker)", "Amiga", "Amiga/More/Bee (1991)(Maker).adf"},
            {"pacman", "Arcade", "Arcade/pacman.zip"},
            {"Lost", "Arcade", "Arcade/lost.zip"},
            {"Stray", "Nobody", "Amiga/Bee (1991)(Maker).adf"},
            {"Cat (1986)", "Batch", "Batch/Cat (1986).tap"},
        };
        Settings lines{{"Fav0_Name", ""}, {"Fav0_System", ""}, {"Fav0_FullPath", ""}};
        int number = 0;
        for (const Entry& entry : all) {
            if (!random.Chance(60)) continue;
            const std::string key = "Fav" + std::to_string(++number);
            lines.emplace_back(key + "_Name", entry.name);
            lines.emplace_back(key + "_System", random.Chance(8) ? "" : entry.system);
            std::string path = programDirectory;
            path.append("/Roms/").append(entry.path);
            lines.emplace_back(key + "_FullPath", std::move(path));
        }
        Write("Config/Favoriten_Global.ini", ProfileOf("Favoriten_Global", lines));
    }

    // Without a controller nobody is to be asked about one.
    void AddProgramProfile() {
        Settings settings{{"UseJoystick", random.Chance(70) ? "1" : "0"}};
        if (random.Chance(30))
            settings.emplace_back("UseJoystickExitbutton", std::to_string(1 + random.Below(2)));
        const int last = random.Below(10);
        if (last == 0) {
            settings.emplace_back("LastEmulator", "Sold");
        } else if (last > 1) {
            settings.emplace_back("LastEmulator", random.Pick(Emulators()).name);
        }
        Write("Config/Kivu.ini", ProfileOf("Settings", settings));
    }

    Collection& collection;
    Random& random;
};

}  // namespace

Collection MakeCollection(Random& random) {
    Collection collection;
    collection.options.programDirectory = programDirectory;
    collection.options.language = random.Chance(50) ? "English" : "German";
    Layout(collection, random).Make();
    return collection;
}

}  // namespace kivu::walker
