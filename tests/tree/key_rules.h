#pragma once

#include "tree/source_tree.h"

namespace kivu::tree {

// The table of all keys of the profiles, and the list of all its entries.
inline constexpr std::string_view keyTable = "src/profile/keys.h";
inline constexpr std::string_view keyList = "src/profile/keys.cpp";

// Routines outside the profile's room and the favourites' stores that read or write a profile past
// the table: a key of it as a literal, or a call of the store's routines that take any name.
Findings KeysPastTheTable(const SourceTree& tree);

// Entries that the list leaves out.
Findings KeysOffTheList(const SourceTree& tree);

// Entries whose owner does not use them, and entries with an owner to come that somebody uses.
Findings KeysWithoutTheirOwner(const SourceTree& tree);

}  // namespace kivu::tree
