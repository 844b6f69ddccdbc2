#include "png/huffman.h"

#include <algorithm>
#include <array>

namespace kivu::png {
namespace {

constexpr DecodeEntry Meaning(unsigned value, unsigned extraBits, DecodeEntry flags = 0) {
    return value << 16 | flags | extraBits;
}

// Lengths and distances grow alike: a group of codes shares a number of extra bits, and the base
// of a code is the base of the one before it plus what that one's extra bits reach.
template <std::size_t Size>
constexpr void FillBases(std::array<DecodeEntry, Size>& meanings, std::size_t first,
                         std::size_t count, unsigned base, unsigned plainCodes,
                         unsigned groupSize) {
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned extraBits =
            i < plainCodes ? 0 : static_cast<unsigned>((i - plainCodes) / groupSize) + 1;
        meanings[first + i] = Meaning(base, extraBits);
        base += 1U << extraBits;
    }
}

constexpr auto literalMeanings = [] {
    std::array<DecodeEntry, literalSymbols> meanings{};
    for (unsigned i = 0; i < 256; ++i) {
        meanings[i] = Meaning(i, 0, literalFlag);
    }
    meanings[256] = Meaning(0, 0, specialFlag | endOfBlockFlag);
    FillBases(meanings, 257, 28, 3, 8, 4);
    meanings[285] = Meaning(258, 0);
    return meanings;
}();

constexpr auto distanceMeanings = [] {
    std::array<DecodeEntry, distanceSymbols> meanings{};
    FillBases(meanings, 0, 30, 1, 4, 2);
    return meanings;
}();

constexpr auto codeLengthMeanings = [] {
    std::array<DecodeEntry, codeLengthSymbols> meanings{};
    for (unsigned i = 0; i < codeLengthSymbols; ++i) {
        meanings[i] = Meaning(i, 0);
    }
    return meanings;
}();

static_assert(EntryValue(literalMeanings[284]) == 227 && EntryBits(literalMeanings[284]) == 5);
static_assert(EntryValue(distanceMeanings[29]) == 24577 && EntryBits(distanceMeanings[29]) == 13);

constexpr DecodeEntry Entry(DecodeEntry meaning, unsigned codeBits) {
    return meaning + codeBits * 0x101;
}

// The code after this one, both with their bits in reversed order.
constexpr unsigned NextReversed(unsigned reversed, unsigned length) {
    unsigned bit = 1U << (length - 1);
    while (reversed & bit) {
        bit >>= 1;
    }
    return bit == 0 ? 0 : (reversed & (bit - 1)) | bit;
}

}  // namespace

std::span<const DecodeEntry> LiteralMeanings() {
    return literalMeanings;
}
std::span<const DecodeEntry> DistanceMeanings() {
    return distanceMeanings;
}
std::span<const DecodeEntry> CodeLengthMeanings() {
    return codeLengthMeanings;
}

int DecodeTable::Build(std::span<const std::uint8_t> lengths,
                       std::span<const DecodeEntry> meanings) {
    std::array<std::uint16_t, longestCode + 1> counts{};
    for (const std::uint8_t length : lengths) {
        ++counts[length];
    }
    counts[0] = 0;
    int left = 1;
    unsigned longest = 0;
    std::array<std::uint16_t, longestCode + 2> starts{};
    for (unsigned length = 1; length <= longestCode; ++length) {
        left = left * 2 - counts[length];
        if (left < 0) return left;
        if (counts[length] != 0) longest = length;
        starts[length + 1] = static_cast<std::uint16_t>(starts[length] + counts[length]);
    }
    const std::size_t codeCount = starts[longestCode + 1];

    std::array<Code, literalSymbols> codes;
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
        const std::uint8_t length = lengths[symbol];
        if (length != 0) codes[starts[length]++] = {static_cast<std::uint16_t>(symbol), 0, length};
    }
    unsigned reversed = 0;
    for (std::size_t i = 0; i < codeCount; ++i) {
        codes[i].reversed = static_cast<std::uint16_t>(reversed);
        reversed = NextReversed(reversed, codes[i].length);
    }
    rootBits = longest < rootLimit ? longest : rootLimit;
    FillRoot({codes.data(), codeCount}, meanings);
    return left;
}

// The codes come with the short ones first. For each length the table doubles, which repeats the
// shorter codes at every index that ends in them.
void DecodeTable::FillRoot(std::span<const Code> codes, std::span<const DecodeEntry> meanings) {
    entries[0] = holeEntry;
    std::size_t next = 0;
    for (unsigned length = 1; length <= rootBits; ++length) {
        const std::size_t half = std::size_t{1} << (length - 1);
        std::copy_n(entries.get(), half, entries.get() + half);
        for (; next < codes.size() && codes[next].length == length; ++next) {
            entries[codes[next].reversed] = Entry(meanings[codes[next].symbol], length);
        }
    }
    FillSubTables(codes.subspan(next), meanings);
}

// Codes with the same root bits follow one another, the longest last: it gives the size of their
// sub-table.
void DecodeTable::FillSubTables(std::span<const Code> codes,
                                std::span<const DecodeEntry> meanings) {
    const unsigned rootMask = (1U << rootBits) - 1;
    std::size_t tableStart = std::size_t{1} << rootBits;
    std::size_t first = 0;
    while (first < codes.size()) {
        const unsigned root = codes[first].reversed & rootMask;
        std::size_t end = first + 1;
        while (end < codes.size() && (codes[end].reversed & rootMask) == root) {
            ++end;
        }
        const unsigned indexBits = codes[end - 1].length - rootBits;
        const std::size_t tableSize = std::size_t{1} << indexBits;
        DecodeEntry* table = entries.get() + tableStart;
        std::fill_n(table, tableSize, holeEntry);
        for (std::size_t i = first; i < end; ++i) {
            const unsigned codeBits = codes[i].length - rootBits;
            const DecodeEntry entry = Entry(meanings[codes[i].symbol], codeBits);
            for (std::size_t at = codes[i].reversed >> rootBits; at < tableSize;
                 at += std::size_t{1} << codeBits) {
                table[at] = entry;
            }
        }
        entries[root] = static_cast<DecodeEntry>(tableStart) << 16 | specialFlag | pointerFlag |
                        indexBits << 8 | rootBits;
        tableStart += tableSize;
        first = end;
    }
}

}  // namespace kivu::png
