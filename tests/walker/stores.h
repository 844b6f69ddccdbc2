#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "walker/world.h"

namespace kivu::walker {

struct Favourite {
    std::string name, path;
    bool operator==(const Favourite&) const = default;
};

struct GlobalFavourite {
    std::string name, system, path;
    std::string Display() const { return name + "  :  " + system; }
    bool operator==(const GlobalFavourite&) const = default;
};

// What stands in the files, read by the walker's own reader.
struct Stores {
    std::vector<Favourite> own;      // of the loaded emulator
    std::set<std::string> ownPaths;  // of all keys of its file, also behind the last that is read
    std::vector<GlobalFavourite> global;
    bool cacheThere = false;
    std::vector<Favourite> cache;  // each image's path and the name that is shown for it
    std::string lastEmulator, romCount;
};

Stores ReadStores(const World& world, const Look& look);

// "(none)" where there is no such key.
std::string StoredValue(const std::string& profile, const std::string& section,
                        const std::string& key);
// A path as it is stored, from the root of the disk.
std::string AbsolutePath(const std::string& stored);

}  // namespace kivu::walker
