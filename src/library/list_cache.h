#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kivu::library {

// One game image of a list cache; the views point into the cache's bytes.
struct CacheEntry {
    std::string_view path;  // as stored, relative to the program's directory
    std::string_view name;  // display name
    bool hasName = true;    // false for a path in an odd last line
};

// The pairs of lines of a list cache: a path, then its display name. Lines end in CR LF; LF alone
// is taken as well. No line is refused: what a name or a path is worth shows when it is used.
std::vector<CacheEntry> ParseCache(std::string_view bytes);

// A cache in memory with its pairs.
struct LoadedCache {
    explicit LoadedCache(std::string read) : bytes(std::move(read)), entries(ParseCache(bytes)) {}
    LoadedCache(const LoadedCache&) = delete;
    LoadedCache& operator=(const LoadedCache&) = delete;

    const std::string bytes;
    const std::vector<CacheEntry> entries;
};

// Two lines ended by CR LF for each image.
void AppendCacheEntry(std::string& cache, std::string_view path, std::string_view name);

}  // namespace kivu::library
