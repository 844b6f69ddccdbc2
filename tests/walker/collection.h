#pragma once

#include <string>
#include <vector>

#include "driver/json.h"
#include "driver/session.h"
#include "walker/random.h"

namespace kivu::walker {

using driver::Json;

// Where every session's program lies, in memory here and on the disk when it is replayed: global
// favourites hold absolute paths.
inline constexpr const char* programDirectory = "/tmp/kivu-walk";

// What a session starts with.
struct Collection {
    driver::Options options;
    std::vector<Json> layout;        // "file" commands that make it
    std::vector<std::string> games;  // below the program directory; they may vanish and come back
};

// Emulators with many games, with none, without a cache, without their program and with a batch
// file; names that are part of others, games of several disks, equal names, favourites of games
// that are not there and of emulators that nobody has, and now and then an odd store.
Collection MakeCollection(Random& random);

}  // namespace kivu::walker
