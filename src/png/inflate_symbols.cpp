#include <algorithm>
#include <array>
#include <cstring>

#include "png/inflate_stream.h"

namespace kivu::png {
namespace {

// One round of the wide loop loads two words, and writes up to four literals, or three and the
// longest match, whose last stores overshoot by less than 64 bytes.
constexpr std::size_t inputMargin = 16;
constexpr std::size_t outputMargin = 4 + 258 + 64;

// For a distance below 8 the 8 bytes of a store repeat the pattern, and the step between stores is
// the greatest multiple of the distance that fits into them.
constexpr std::uint8_t patternStep[8] = {8, 8, 8, 6, 8, 5, 6, 7};

inline std::uint64_t LowBits(std::uint64_t bits, unsigned number) {
    return bits & ((std::uint64_t{1} << number) - 1);
}

// The lowest bits, for up to 31; a code and its extra bits are at most 28. To look a mask up takes
// fewer instructions than to make it.
constexpr auto lowMasks = [] {
    std::array<std::uint32_t, 32> masks{};
    for (unsigned number = 0; number < masks.size(); ++number) {
        masks[number] = (1U << number) - 1;
    }
    return masks;
}();

// Repeats the distance (1 to 8) bytes at from.
inline void CopyPattern(std::uint8_t* out, const std::uint8_t* end, const std::uint8_t* from,
                        std::size_t distance) {
    const unsigned period = static_cast<unsigned>(distance) * 8;
    std::uint64_t pattern = LoadWord<std::uint64_t>(from) << (64 - period) >> (64 - period);
    for (unsigned filled = period; filled < 64; filled *= 2) {
        pattern |= pattern << filled;
    }
    if (64 % period == 0) {
        const std::uint64_t patterns[2] = {pattern, pattern};
        do {
            std::memcpy(out, patterns, 16);
            std::memcpy(out + 16, patterns, 16);
            out += 32;
        } while (out < end);
        return;
    }
    const unsigned step = patternStep[distance];
    do {
        StoreWord(out, pattern);
        StoreWord(out + step, pattern);
        out += 2 * step;
    } while (out < end);
}

// Copies the match to out up to end at least, and up to 63 bytes beyond.
inline void CopyMatch(std::uint8_t* out, const std::uint8_t* end, std::size_t distance) {
    const std::uint8_t* from = out - distance;
    if (distance >= 16) {
        std::memcpy(out, from, 16);
        std::memcpy(out + 16, from + 16, 16);
        for (out += 32, from += 32; out < end; out += 64, from += 64) {
            std::memcpy(out, from, 16);
            std::memcpy(out + 16, from + 16, 16);
            std::memcpy(out + 32, from + 32, 16);
            std::memcpy(out + 48, from + 48, 16);
        }
    } else if (distance > 8) {
        do {
            StoreWord(out, LoadWord<std::uint64_t>(from));
            out += 8;
            from += 8;
        } while (out < end);
    } else {
        CopyPattern(out, end, from, distance);
    }
}

// The match may reach before the start of the output, or have a distance of 0: what was never
// written is 0.
void CopyByBytes(BitStream& stream, std::size_t length, std::size_t distance) {
    for (; length != 0; --length) {
        const bool exists = distance != 0 && distance <= stream.Written();
        *stream.out = exists ? *(stream.out - distance) : std::uint8_t{0};
        ++stream.out;
    }
}

// The entry for the next code; false if the input ends within the code or its extra bits. The code
// itself is not taken yet.
bool FindCode(BitStream& stream, const DecodeTable& table, DecodeEntry& entry) {
    stream.Refill();
    entry = table.Root(stream.bits);
    if (entry & pointerFlag) {
        if (EntryBits(entry) > stream.count) return false;
        stream.Drop(EntryBits(entry));
        entry = table.Sub(entry, stream.bits);
    }
    return EntryBits(entry) <= stream.count;
}

// Takes the code and its extra bits; gives the base and what they add.
std::size_t TakeNumber(BitStream& stream, DecodeEntry entry) {
    const std::uint64_t extra = LowBits(stream.bits, EntryBits(entry)) >> EntryCodeBits(entry);
    stream.Drop(EntryBits(entry));
    return EntryValue(entry) + static_cast<std::size_t>(extra);
}

}  // namespace

// One routine, so that the whole state stays in registers.
SymbolsEnd DecodeSymbolsWide(BitStream& stream, const DecodeTable& literals,
                             const DecodeTable& distances) {
    if (stream.InputLeft() < inputMargin || stream.OutputLeft() < outputMargin) {
        return SymbolsEnd::Margin;
    }
    const DecodeEntry* const literalTable = literals.Entries();
    const DecodeEntry* const distanceTable = distances.Entries();
    const std::uint64_t literalMask = lowMasks[literals.RootBits()];
    const std::uint64_t distanceMask = lowMasks[distances.RootBits()];
    const std::uint8_t* const inLast = stream.inEnd - inputMargin;
    std::uint8_t* const outLast = stream.outEnd - outputMargin;
    const std::uint8_t* in = stream.in;
    std::uint8_t* out = stream.out;
    std::uint64_t bits = stream.bits;
    unsigned count = stream.count;
    SymbolsEnd end = SymbolsEnd::Margin;

    // Only the low six bits of count count: an entry is subtracted whole, without its mask.
    const auto refill = [&] {
        bits |= LoadWord<std::uint64_t>(in) << (count & 63);
        in += 7 - (count >> 3 & 7);
        count |= 56;
    };
    const auto take = [&](DecodeEntry entry) {
        bits >>= entry & 63;
        count -= entry;
    };
    const auto inSubTable = [&](const DecodeEntry* table, DecodeEntry pointer) {
        return table[EntryValue(pointer) + (bits & lowMasks[EntryCodeBits(pointer)])];
    };

    refill();
    DecodeEntry entry = literalTable[bits & literalMask];
    // Stores the literal of the entry and looks the next one up.
    const auto literal = [&] {
        take(entry);
        *out++ = static_cast<std::uint8_t>(EntryValue(entry));
        entry = literalTable[bits & literalMask];
    };
    while (in <= inLast && out <= outLast) {
        refill();
        // Three literals of the root table leave at least 23 of the 56 bits, enough for a length.
        if (entry & literalFlag) {
            literal();
            if (entry & literalFlag) {
                literal();
                if (entry & literalFlag) {
                    literal();
                    if (entry & literalFlag) {
                        literal();
                        continue;
                    }
                }
            }
        }
        if (entry & specialFlag) {
            if (entry & pointerFlag) {
                take(entry);
                entry = inSubTable(literalTable, entry);
                if (entry & literalFlag) {
                    literal();
                    continue;
                }
            }
            if (entry & endOfBlockFlag) {
                take(entry);
                end = SymbolsEnd::Block;
                break;
            }
        }
        const std::size_t length =
            EntryValue(entry) + ((bits & lowMasks[EntryBits(entry)]) >> EntryCodeBits(entry));
        take(entry);
        // A distance takes up to 28 bits. They are nearly always there, and not to wait for the
        // refill shortens the longest chain of the loop.
        if ((count & 63) < 28) [[unlikely]]
            refill();
        entry = distanceTable[bits & distanceMask];
        if (entry & specialFlag) {
            if (entry & pointerFlag) {
                take(entry);
                entry = inSubTable(distanceTable, entry);
            }
            if (entry & specialFlag) {
                end = SymbolsEnd::Silent;
                break;
            }
        }
        const std::size_t distance =
            EntryValue(entry) + ((bits & lowMasks[EntryBits(entry)]) >> EntryCodeBits(entry));
        take(entry);
        entry = literalTable[bits & literalMask];
        // A distance of 0 wraps round, so that one comparison finds it too.
        if (distance - 1 >= static_cast<std::size_t>(out - stream.outStart)) {
            stream.out = out;
            CopyByBytes(stream, length, distance);
            out = stream.out;
            continue;
        }
        CopyMatch(out, out + length, distance);
        out += length;
    }
    stream.in = in;
    stream.out = out;
    stream.bits = bits;
    stream.count = count & 63;
    return end;
}

SymbolsEnd DecodeSymbolsCareful(BitStream& stream, const DecodeTable& literals,
                                const DecodeTable& distances, bool extended) {
    for (;;) {
        // A symbol that lacks bits must leave no trace: it is taken from a copy.
        BitStream ahead = stream;
        DecodeEntry entry = 0;
        if (!FindCode(ahead, literals, entry)) return SymbolsEnd::InputOut;
        if (entry & literalFlag) {
            ahead.Drop(EntryBits(entry));
            if (ahead.out != ahead.outEnd)
                *ahead.out++ = static_cast<std::uint8_t>(EntryValue(entry));
            stream = ahead;
            continue;
        }
        if (entry & endOfBlockFlag) {
            ahead.Drop(EntryBits(entry));
            stream = ahead;
            return SymbolsEnd::Block;
        }
        std::size_t length = TakeNumber(ahead, entry);
        if (extended && length == 258) {
            ahead.Refill();
            if (ahead.count < 16) return SymbolsEnd::InputOut;
            length = ahead.Get(16) + 3;
        }
        if (!FindCode(ahead, distances, entry)) return SymbolsEnd::InputOut;
        if (entry & specialFlag) return SymbolsEnd::Silent;
        const std::size_t distance = TakeNumber(ahead, entry);
        stream = ahead;
        CopyByBytes(stream, std::min(length, stream.OutputLeft()), distance);
        if (length > ahead.OutputLeft()) return SymbolsEnd::Silent;
    }
}

}  // namespace kivu::png
