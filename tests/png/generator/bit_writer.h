#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "png/generator/png_recipe.h"

namespace kivu::png::testing {

// DEFLATE streams written bit by bit, right ones and wrong ones.
class BitWriter {
 public:
    // Numbers enter with their low bit first, and zeros behind 32 bits.
    BitWriter& Bits(unsigned value, unsigned count) {
        for (unsigned i = 0; i < count; ++i) {
            if (bitCount % 8 == 0) bytes.push_back(0);
            const unsigned bit = i < 32 ? value >> i & 1U : 0;
            bytes.back() = static_cast<std::uint8_t>(bytes.back() | bit << bitCount % 8);
            ++bitCount;
        }
        return *this;
    }
    // Codes enter with their high bit first.
    BitWriter& Code(unsigned code, unsigned length) {
        while (length-- > 0) {
            Bits(code >> length & 1U, 1);
        }
        return *this;
    }
    BitWriter& Align() { return Bits(0, (8 - bitCount % 8) % 8); }
    BitWriter& Byte(unsigned value) { return Bits(value, 8); }

    BitWriter& BlockHead(bool last, unsigned type) { return Bits(last ? 1 : 0, 1).Bits(type, 2); }
    BitWriter& Stored(bool last, const Bytes& data, unsigned complementFault = 0) {
        BlockHead(last, 0).Align();
        const auto length = static_cast<unsigned>(data.size());
        Bits(length, 16).Bits((~length ^ complementFault) & 0xFFFF, 16);
        for (const std::uint8_t byte : data) {
            Byte(byte);
        }
        return *this;
    }

    // The static trees.
    BitWriter& StaticSymbol(unsigned symbol) {
        if (symbol < 144) return Code(0x30 + symbol, 8);
        if (symbol < 256) return Code(0x190 + symbol - 144, 9);
        if (symbol < 280) return Code(symbol - 256, 7);
        return Code(0xC0 + symbol - 280, 8);
    }
    BitWriter& StaticDistance(unsigned symbol) { return Code(symbol, 5); }

    // Head of a dynamic block with the given code lengths, each written out.
    BitWriter& DynamicHead(bool last, const std::vector<int>& literals,
                           const std::vector<int>& distances) {
        BeginDynamic(last, static_cast<unsigned>(literals.size()),
                     static_cast<unsigned>(distances.size()));
        for (const int length : literals) {
            CodeLength(static_cast<unsigned>(length));
        }
        for (const int length : distances) {
            CodeLength(static_cast<unsigned>(length));
        }
        return *this;
    }
    // Code lengths 0 to 12 have codes of 4 bits, 13 to 18 of 5 bits: a complete set.
    BitWriter& BeginDynamic(bool last, unsigned literalCount, unsigned distanceCount) {
        constexpr unsigned order[19] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                        11, 4,  12, 3, 13, 2, 14, 1, 15};
        BlockHead(last, 2).Bits(literalCount - 257, 5).Bits(distanceCount - 1, 5).Bits(15, 4);
        for (const unsigned symbol : order) {
            Bits(symbol < 13 ? 4 : 5, 3);
        }
        return *this;
    }
    BitWriter& CodeLength(unsigned symbol) {
        return symbol < 13 ? Code(symbol, 4) : Code(26 + symbol - 13, 5);
    }

    const Bytes& Done() const { return bytes; }

 private:
    Bytes bytes;
    std::size_t bitCount = 0;
};

}  // namespace kivu::png::testing
