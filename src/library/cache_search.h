#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/line_blocks.h"
#include "library/search_words.h"
#include "platform/file_system.h"

namespace kivu::library {

// A look through one list cache, which is never in memory as a whole. Several can go on at a time,
// each in the hands of one thread at a time.
class CacheSearch {
 public:
    // The title of a game that a line has led to. Lines that follow one another and lead to the
    // same title, but for its case, are one hit: the path of a game and its title mostly match
    // both, and so do the disks that lie beside it.
    struct Hit {
        std::string name;
        std::string lowerName;
    };
    // What a few lines of the cache have given.
    struct Part {
        std::vector<Hit> hits;
        std::size_t lineCount = 0;
    };

    CacheSearch(std::unique_ptr<platform::FileSystem::Reader> cache, const SearchWords& words,
                SearchWords::Decode decode)
        : reader(std::move(cache)), blocks(*reader), words(words), decode(std::move(decode)) {}

    // False: the cache is through.
    bool Next(Part& part);
    // All that is left, until there are more hits than `limit` or somebody raises `stop`.
    std::vector<Part> Rest(std::size_t limit, const std::atomic<bool>& stop);

 private:
    void Take(std::string_view line, std::vector<Hit>& hits);

    std::unique_ptr<platform::FileSystem::Reader> reader;
    LineBlocks blocks;
    const SearchWords& words;
    SearchWords::Decode decode;
    std::optional<std::string> lastName;  // lower-case title of the last hit
};

}  // namespace kivu::library
