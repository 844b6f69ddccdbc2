#include "collection.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>

#include "library/list_cache.h"
#include "library/short_names.h"
#include "text/collation.h"

namespace kivu::bench {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t filesInDirectory = 100;
// A directory of the first level and its subdirectories.
constexpr std::size_t directoriesInGroup = 15;

constexpr std::array titles{"Super",  "Turbo",  "Dragon",  "Castle", "of",    "the",   "Lost",
                            "Island", "Racing", "Wizard",  "Über",   "Robo",  "Space", "Return",
                            "Jungle", "Quest",  "Pinball", "Gold",   "Night", "Chess", "Hockey"};
constexpr std::array makers{"Sample Soft", "Nordlicht", "Acme Games", "Bit & Byte", "Kleine Köpfe",
                            "Red Sector",  "O'Hara",    "Twilight",   "Hobbyists"};
constexpr std::array groups{"Action",  "Adventure",  "Board Games",  "Demos",     "Education",
                            "Fantasy", "Jump'n'Run", "Music Disks",  "Pinball",   "Platform",
                            "Puzzle",  "Racing",     "Rollenspiele", "Shooter",   "Simulation",
                            "Sports",  "Strategy",   "Tools",        "Utilities", "Word Games"};

// Names of images that do not meet: each game has a number of its own.
class Names {
 public:
    std::string Next() {
        if (disk > disks) NextGame();
        std::string name = game;
        if (disks > 1) {
            name += "(Disk " + std::to_string(disk) + " of " + std::to_string(disks) + ")";
        }
        ++disk;
        return name + ".adf";
    }

 private:
    void NextGame() {
        disk = 1;
        disks = 1 + static_cast<int>(random() % 3);
        game = Any(titles);
        for (auto words = random() % 3; words > 0; --words)
            game += ' ' + Any(titles);
        game += ' ' + std::to_string(++number) + " (19" + std::to_string(80 + random() % 20) +
                ")(" + Any(makers) + ")";
    }
    template <typename Words>
    std::string Any(const Words& words) {
        return words[random() % words.size()];
    }

    std::mt19937 random{1985};
    std::string game;
    int number = 0;
    int disk = 1;
    int disks = 0;
};

std::string DirectoryName(std::size_t number) {
    const std::size_t group = number / directoriesInGroup;
    const std::size_t place = number % directoriesInGroup;
    std::string name = groups[group % groups.size()];
    if (group >= groups.size()) name += ' ' + std::to_string(group / groups.size() + 1);
    if (place == 0) return name + '/';
    return name + "/Collection " + std::to_string(place) + '/';
}

void WriteFile(const fs::path& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

// As a rescan writes it: in the order of the list, paths relative to the program's directory.
std::string CacheText(int games) {
    std::vector<std::string> paths = CollectionPaths(games);
    for (std::string& path : paths)
        path.insert(0, "../Roms/");
    std::sort(paths.begin(), paths.end(), text::TextLess{});
    std::string cache;
    for (const std::string& path : paths)
        library::AppendCacheEntry(cache, path, library::CutShortName(path, ")", true));
    return cache;
}

}  // namespace

TemporaryDirectory::TemporaryDirectory() {
    std::string name = (fs::temp_directory_path() / "kivu-bench-XXXXXX").string();
    if (!::mkdtemp(name.data())) throw std::runtime_error("cannot make a temporary directory");
    path = name;
}

TemporaryDirectory::~TemporaryDirectory() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
}

std::vector<std::string> CollectionPaths(int count) {
    Names names;
    std::vector<std::string> paths;
    paths.reserve(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        paths.push_back(DirectoryName(i / filesInDirectory) + names.Next());
    std::shuffle(paths.begin(), paths.end(), std::mt19937(7));
    return paths;
}

void MakeFiles(const fs::path& directory, const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        fs::create_directories((directory / path).parent_path());
        WriteFile(directory / path, {});
    }
}

std::string EmulatorName(int number) {
    char name[32];
    std::snprintf(name, sizeof name, "Emulator %03d", number + 1);
    return name;
}

fs::path CachePath(const fs::path& programDirectory, int emulator) {
    return programDirectory / "Config" / EmulatorName(emulator) / "Kivu_Cache.txt";
}

void MakeProgramDirectory(const fs::path& directory, int emulators, int games) {
    const std::string cache = CacheText(games);
    for (int i = 0; i < emulators; ++i)
        fs::create_directories(directory / "Config" / EmulatorName(i));
    for (int i = 0; i < std::min(emulators, 2); ++i)
        WriteFile(CachePath(directory, i), cache);
    WriteProfiles(directory, emulators);
}

void WriteProfiles(const fs::path& directory, int emulators) {
    for (int i = 0; i < emulators; ++i) {
        WriteFile(directory / "Config" / EmulatorName(i) / "Kivu.ini",
                  "[Settings]\r\nRomPath=../Roms\r\nEmulatorPath=/bin/true\r\n");
    }
    WriteFile(directory / "Config" / "Kivu.ini",
              "[Settings]\r\nLastEmulator=" + EmulatorName(0) + "\r\n");
}

}  // namespace kivu::bench
