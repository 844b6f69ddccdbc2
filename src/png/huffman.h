#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace kivu::png {

// An entry of a decode table:
//   bits 0 to 7    bits of the stream that the entry takes: its code and its extra bits
//   bits 8 to 11   bits of its code alone (for a pointer: index bits of the sub-table)
//   bits 12 to 15  what the entry is
//   bits 16 to 31  literal, base of a length or distance, or start of a sub-table
using DecodeEntry = std::uint32_t;

inline constexpr DecodeEntry literalFlag = 1U << 12;
// End of block, sub-table or hole: everything that leaves the straight road of the symbol loop.
inline constexpr DecodeEntry specialFlag = 1U << 13;
inline constexpr DecodeEntry pointerFlag = 1U << 14;

inline constexpr int longestCode = 15;
inline constexpr std::size_t literalSymbols = 288;
inline constexpr std::size_t distanceSymbols = 32;
inline constexpr std::size_t codeLengthSymbols = 19;

inline constexpr DecodeEntry endOfBlockFlag = 1U << 15;
// At an index that no code leads to.
inline constexpr DecodeEntry holeEntry = specialFlag;

inline constexpr unsigned EntryBits(DecodeEntry entry) {
    return entry & 0x3F;
}
inline constexpr unsigned EntryCodeBits(DecodeEntry entry) {
    return entry >> 8 & 0xF;
}
inline constexpr std::uint32_t EntryValue(DecodeEntry entry) {
    return entry >> 16;
}

// What each symbol of the three alphabets stands for: flags, value and extra bits, without the
// code's length. By RFC 1951, 3.2.5; symbols beyond its tables have base 0 and no extra bits.
std::span<const DecodeEntry> LiteralMeanings();
std::span<const DecodeEntry> DistanceMeanings();
std::span<const DecodeEntry> CodeLengthMeanings();

// A table that is indexed with the low bits of the stream: one look for codes of up to rootBits
// bits, a second one in a sub-table for longer ones.
class DecodeTable {
 public:
    // maxSymbols bounds the sub-tables: at worst each long code has one of its own.
    DecodeTable(unsigned maxRootBits, std::size_t maxSymbols)
        : rootLimit(maxRootBits),
          entries(std::make_unique_for_overwrite<DecodeEntry[]>(
              (std::size_t{1} << maxRootBits) +
              (maxSymbols << (longestCode - static_cast<int>(maxRootBits))))) {}

    // Builds the table from the code lengths (0 to 15) of the symbols 0 to lengths.size() - 1.
    // Returns what is left of the code space, in units of the longest code: 0 for a complete
    // set, above 0 for one with holes, below 0 for one with too many codes, which leaves the
    // table unusable.
    int Build(std::span<const std::uint8_t> lengths, std::span<const DecodeEntry> meanings);

    const DecodeEntry* Entries() const { return entries.get(); }
    // Index bits of the first look; at most the maxRootBits of the constructor.
    unsigned RootBits() const { return rootBits; }

    // The entry for the code at the low end of bits; a code longer than the root has its entry in
    // a sub-table, whose code bits count from the root on.
    DecodeEntry Root(std::uint64_t bits) const {
        return entries[bits & ((std::uint64_t{1} << rootBits) - 1)];
    }
    DecodeEntry Sub(DecodeEntry pointer, std::uint64_t bitsBehindRoot) const {
        return entries[EntryValue(pointer) +
                       (bitsBehindRoot & ((1U << EntryCodeBits(pointer)) - 1))];
    }

 private:
    struct Code {
        std::uint16_t symbol;
        std::uint16_t reversed;
        std::uint8_t length;
    };
    void FillRoot(std::span<const Code> codes, std::span<const DecodeEntry> meanings);
    void FillSubTables(std::span<const Code> codes, std::span<const DecodeEntry> meanings);

    unsigned rootLimit;
    unsigned rootBits = 0;
    std::unique_ptr<DecodeEntry[]> entries;
};

}  // namespace kivu::png
