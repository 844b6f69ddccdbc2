#include "walker/stores.h"

#include <map>
#include <set>
#include <sstream>

namespace kivu::walker {

namespace {

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(std::move(line));
    }
    return lines;
}

// The keys of one section; the first of two equal ones counts.
std::map<std::string, std::string> Section(const std::string& profile, const std::string& section) {
    std::map<std::string, std::string> values;
    bool inside = false;
    for (const std::string& line : Lines(profile)) {
        if (line.starts_with('[')) inside = line == "[" + section + "]";
        const std::size_t equals = line.find('=');
        if (inside && equals != std::string::npos)
            values.emplace(Trimmed(line.substr(0, equals)), Trimmed(line.substr(equals + 1)));
    }
    return values;
}

using Values = std::map<std::string, std::string>;

std::string Value(const Values& values, const std::string& key) {
    const auto found = values.find(key);
    return found == values.end() ? "" : found->second;
}

std::string Key(int number, const char* field) {
    return "Fav" + std::to_string(number) + "_" + field;
}

// One missing number is stepped over, two in a row are the end; a path counts once.
std::vector<Favourite> ReadOwn(const Values& values) {
    std::vector<Favourite> found;
    std::set<std::string> known;
    for (int i = 0; i < 1001; ++i) {
        const std::string name = Value(values, Key(i, "Name"));
        if (name.empty()) {
            if (Value(values, Key(i + 1, "Name")).empty()) break;
            continue;
        }
        const std::string path = Value(values, Key(i, "FullPath"));
        if (path.empty() || !known.insert(AbsolutePath(path)).second) continue;
        found.push_back({name, AbsolutePath(path)});
    }
    return found;
}

// An entry with an empty key is a miss; 51 misses are the end.
std::vector<GlobalFavourite> ReadGlobal(const Values& values) {
    std::vector<GlobalFavourite> found;
    int misses = 0;
    for (int i = 0; i <= 1000 && misses <= 50; ++i) {
        GlobalFavourite entry{Value(values, Key(i, "Name")), Value(values, Key(i, "System")),
                              Value(values, Key(i, "FullPath"))};
        if (entry.name.empty() || entry.system.empty() || entry.path.empty()) {
            ++misses;
        } else {
            found.push_back(std::move(entry));
        }
    }
    return found;
}

std::vector<Favourite> ReadCache(const std::string& text) {
    std::vector<Favourite> entries;
    const std::vector<std::string> lines = Lines(text);
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2)
        entries.push_back({lines[i + 1], AbsolutePath(lines[i])});
    return entries;
}

}  // namespace

std::string AbsolutePath(const std::string& stored) {
    const std::string base = programDirectory;
    if (stored.starts_with(base + "/")) return stored;
    return base + (stored.starts_with('/') ? "" : "/") + stored;
}

std::string StoredValue(const std::string& profile, const std::string& section,
                        const std::string& key) {
    const auto values = Section(profile, section);
    const auto found = values.find(key);
    return found == values.end() ? "(none)" : found->second;
}

Stores ReadStores(const World& world, const Look& look) {
    Stores stores;
    const std::string program = world.Read("Config/Kivu.ini");
    stores.lastEmulator = StoredValue(program, "Settings", "LastEmulator");
    stores.global =
        ReadGlobal(Section(world.Read("Config/Favoriten_Global.ini"), "Favoriten_Global"));
    if (look.loaded < 0) return stores;
    const std::string directory = "Config/" + look.Loaded() + "/";
    const Values own = Section(world.Read(directory + "Favoriten.ini"), "Favoriten");
    stores.own = ReadOwn(own);
    for (const auto& [key, value] : own) {
        if (key.ends_with("_FullPath") && !value.empty())
            stores.ownPaths.insert(AbsolutePath(value));
    }
    const std::string cache = directory + "Kivu_Cache.txt";
    stores.cacheThere = world.Exists(std::string(programDirectory) + "/" + cache);
    stores.cache = ReadCache(world.Read(cache));
    stores.romCount = StoredValue(world.Read(directory + "Kivu.ini"), "Settings", "RomCount");
    return stores;
}

}  // namespace kivu::walker
