#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

#include "library/letter_pair.h"

namespace kivu::library {

namespace {

using Lanes = std::uint64_t;  // eight bytes side by side
constexpr Lanes ones = 0x0101010101010101;
constexpr Lanes low7 = 0x7F7F7F7F7F7F7F7F;
constexpr std::size_t laneCount = sizeof(Lanes);

Lanes Fill(char byte) {
    return ones * static_cast<unsigned char>(byte);
}

// Eight bytes, the first of them in the lowest lane.
Lanes Load(const char* place) {
    if constexpr (std::endian::native == std::endian::little) {
        Lanes lanes;
        std::memcpy(&lanes, place, sizeof(lanes));
        return lanes;
    } else {
        Lanes lanes = 0;
        for (std::size_t i = laneCount; i-- > 0;)
            lanes = lanes << 8 | static_cast<unsigned char>(place[i]);
        return lanes;
    }
}

// The highest bit of each lane that is 0, exactly.
Lanes ZeroLanes(Lanes lanes) {
    return ~(((lanes & low7) + low7) | lanes | low7);
}

// A bit for each lane that has its highest bit.
unsigned BitsOf(Lanes highest) {
    return static_cast<unsigned>(((highest >> 7) * 0x0102040810204080) >> 56);
}

// Nothing but 0 where the letter stands.
Lanes Difference(const char* place, const LetterPair::Letter& letter) {
    return (Load(place + letter.offset) | Fill(letter.caseBit)) ^ Fill(letter.folded);
}

}  // namespace

unsigned PlacesInEight(const char* place, const LetterPair& pair) {
    return BitsOf(ZeroLanes(Difference(place, pair.a) | Difference(place, pair.b)));
}

std::uint64_t NextPlacesScalar(const char* text, std::size_t& at, std::size_t end,
                               const LetterPair& pair) {
    for (; at + LetterPair::step <= end; at += LetterPair::step) {
        std::uint64_t places = 0;
        for (std::size_t i = 0; i < LetterPair::step; i += laneCount)
            places |= std::uint64_t{PlacesInEight(text + at + i, pair)} << i;
        if (places != 0) return places;
    }
    return 0;
}

std::size_t CountLineFeedsScalar(std::string_view block) {
    // Each of the columns counts for itself, which goes well for 255 rows.
    constexpr std::size_t columns = 64;
    std::size_t count = 0;
    std::size_t at = 0;
    while (at + columns <= block.size()) {
        const std::size_t rows = std::min<std::size_t>((block.size() - at) / columns, 255);
        std::array<unsigned char, columns> sums{};
        for (std::size_t row = 0; row < rows; ++row, at += columns) {
            const char* place = block.data() + at;
            for (std::size_t i = 0; i < columns; ++i)
                sums[i] = static_cast<unsigned char>(sums[i] + (place[i] == '\n' ? 1 : 0));
        }
        for (const unsigned char sum : sums)
            count += sum;
    }
    return count + static_cast<std::size_t>(std::count(
                       block.begin() + static_cast<std::ptrdiff_t>(at), block.end(), '\n'));
}

#ifndef __SSE2__
std::uint64_t NextPlaces(const char* text, std::size_t& at, std::size_t end,
                         const LetterPair& pair) {
    return NextPlacesScalar(text, at, end, pair);
}

std::size_t CountLineFeeds(std::string_view block) {
    return CountLineFeedsScalar(block);
}
#endif

}  // namespace kivu::library
