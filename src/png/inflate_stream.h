#pragma once

#include <cstddef>
#include <cstdint>

#include "png/bytes.h"
#include "png/huffman.h"

namespace kivu::png {

// The place in a DEFLATE stream: bits enter the 64-bit buffer from the low end of each byte, at
// its high end. Bits above count may be set already; they are those of the bytes that follow.
struct BitStream {
    const std::uint8_t* in;
    const std::uint8_t* inEnd;
    std::uint64_t bits;
    unsigned count;

    std::uint8_t* outStart;
    std::uint8_t* out;
    std::uint8_t* outEnd;

    std::size_t Written() const { return static_cast<std::size_t>(out - outStart); }
    std::size_t InputLeft() const { return static_cast<std::size_t>(inEnd - in); }
    std::size_t OutputLeft() const { return static_cast<std::size_t>(outEnd - out); }

    // To between 56 and 63 bits, or to all that are left.
    void Refill() {
        if (InputLeft() >= 8) {
            bits |= LoadWord<std::uint64_t>(in) << count;
            in += (63 - count) / 8;
            count |= 56;
            return;
        }
        while (count < 56 && in < inEnd) {
            bits |= std::uint64_t{*in++} << count;
            count += 8;
        }
    }
    // number up to the count.
    void Drop(unsigned number) {
        bits >>= number;
        count -= number;
    }
    // Up to 32 bits; those behind the end of the input read as 0.
    std::uint32_t Get(unsigned number) {
        if (count < number) Refill();
        const auto value = static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << number) - 1));
        Drop(number < count ? number : count);
        return value;
    }
    // Back to the byte behind the last one of which a bit was taken.
    void AlignToByte() {
        in -= count / 8;
        bits = 0;
        count = 0;
    }
};

enum class SymbolsEnd {
    // The end-of-block code was taken.
    Block,
    // Input or output comes too near to its end for the wide loop; nothing is wrong.
    Margin,
    // The input ends within the next symbol.
    InputOut,
    // The output is full or the next distance means nothing.
    Silent,
};

// Symbols as long as both ends are far enough away to read and write whole words.
SymbolsEnd DecodeSymbolsWide(BitStream& stream, const DecodeTable& literals,
                             const DecodeTable& distances);

// The same one symbol at a time, up to the last bit and byte. Never ends in Margin.
SymbolsEnd DecodeSymbolsCareful(BitStream& stream, const DecodeTable& literals,
                                const DecodeTable& distances, bool extended);

}  // namespace kivu::png
