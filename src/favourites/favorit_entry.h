#pragma once

#include <cstddef>
#include <string>

namespace kivu::favourites {

struct FavoritEntry {
    std::string FullPath;  // absolute
    std::string Name;      // as FavoritenListe shows it
    int Flag = 0;          // the caller's own, not stored
};

// So many are read back from the file; one more would push another out.
inline constexpr std::size_t mostEntries = 1001;

// Where they stand in the file, numbered from 0.
inline constexpr const char* favoritenSection = "Favoriten";
inline std::string NameKey(std::size_t number) {
    return "Fav" + std::to_string(number) + "_Name";
}
inline std::string PathKey(std::size_t number) {
    return "Fav" + std::to_string(number) + "_FullPath";
}

}  // namespace kivu::favourites
