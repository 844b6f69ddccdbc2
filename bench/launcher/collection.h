#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kivu::bench {

// A directory that goes away with the object.
class TemporaryDirectory {
 public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& Path() const { return path; }

 private:
    std::filesystem::path path;
};

// Paths of game images below a directory of their own, named as collections name them: title, year,
// maker, disk. Directories lie two levels deep and hold a hundred files each; the same count gives
// the same paths, in no order.
std::vector<std::string> CollectionPaths(int count);

// Empty files of these paths below `directory`.
void MakeFiles(const std::filesystem::path& directory, const std::vector<std::string>& paths);

// A data directory as the launcher finds it: Config with so many emulators, of which the first two
// have a list cache of `games` images each.
void MakeProgramDirectory(const std::filesystem::path& directory, int emulators, int games);
// The profiles of such a directory, as before a first start.
void WriteProfiles(const std::filesystem::path& directory, int emulators);
std::string EmulatorName(int number);
// The list cache of an emulator of `MakeProgramDirectory`.
std::filesystem::path CachePath(const std::filesystem::path& programDirectory, int emulator);

}  // namespace kivu::bench
