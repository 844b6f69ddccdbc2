#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

// What a search passes over a text by, many bytes in one step.
namespace kivu::library {

// Two letters that stand at fixed distances behind a place in a text, without regard to case.
struct LetterPair {
    struct Letter {
        std::size_t offset = 0;  // bytes behind the place
        char folded = 0;
        char caseBit = 0;  // what a byte of the text is joined with before it is compared
    };
    Letter a, b;

    // Places looked at in one step.
    static constexpr std::size_t step = 64;
};

// Goes on from place `at` in steps until one has places with both letters, and gives these: a bit
// each, the step's first place lowest; `at` is then the step's first place. Only steps that end at
// or before `end` are taken; 0: they have no such place, and `at` is behind the last of them.
// `text` has all bytes at the letters' distances behind the places before `end`.
std::uint64_t NextPlaces(const char* text, std::size_t& at, std::size_t end,
                         const LetterPair& pair);

// The same by plain arithmetic: what NextPlaces is where the target has no SSE2.
std::uint64_t NextPlacesScalar(const char* text, std::size_t& at, std::size_t end,
                               const LetterPair& pair);

// Those of the eight places from `place` on.
unsigned PlacesInEight(const char* place, const LetterPair& pair);

// Line feeds in a block.
std::size_t CountLineFeeds(std::string_view block);
std::size_t CountLineFeedsScalar(std::string_view block);

}  // namespace kivu::library
