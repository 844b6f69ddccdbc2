#include "png/generator/plain_inflate.h"

#include <algorithm>
#include <map>
#include <utility>

namespace kivu::png::testing {
namespace {

// Codes by length and value, as the bits come out of the stream.
struct Tree {
    std::map<std::pair<int, unsigned>, unsigned> symbols;
    int left = 1;
};

Tree BuildTree(const std::vector<int>& lengths) {
    Tree tree;
    int counts[16] = {};
    for (const int length : lengths) {
        if (length != 0) ++counts[length];
    }
    for (int length = 1; length <= 15; ++length) {
        tree.left = tree.left * 2 - counts[length];
        if (tree.left < 0) return tree;
    }
    unsigned code = 0;
    for (int length = 1; length <= 15; ++length) {
        for (unsigned symbol = 0; symbol < lengths.size(); ++symbol) {
            if (lengths[symbol] == length) tree.symbols[{length, code++}] = symbol;
        }
        code *= 2;
    }
    return tree;
}

enum class Found { Symbol, NoBits, NoCode };

class Decoder {
 public:
    Decoder(std::span<const std::uint8_t> source, std::size_t outputLimit, bool extendedLengths)
        : input(source), limit(outputLimit), extended(extendedLengths) {}

    PlainOutcome Run() {
        bool last = false;
        while (!last && !stopped) {
            last = HeaderBits(1) != 0;
            OneBlock(HeaderBits(2));
        }
        return std::move(outcome);
    }

 private:
    bool HasBits(std::size_t count) const { return bitAt + count <= input.size() * 8; }
    unsigned Bit(std::size_t at) const {
        return at / 8 < input.size() ? input[at / 8] >> at % 8 & 1U : 0;
    }
    // Past the end of the input there are only zeros, and no way on.
    unsigned HeaderBits(unsigned count) {
        unsigned value = 0;
        for (unsigned i = 0; i < count; ++i) {
            value |= Bit(bitAt + i) << i;
        }
        bitAt = std::min(bitAt + count, input.size() * 8);
        return value;
    }
    Found Find(const Tree& tree, std::size_t& at, unsigned& symbol, bool zerosBehind) const {
        unsigned code = 0;
        for (int length = 1; length <= 15; ++length) {
            if (!zerosBehind && at + static_cast<std::size_t>(length) > input.size() * 8 &&
                CouldGoOn(tree, length, code)) {
                return Found::NoBits;
            }
            code = code * 2 + Bit(at + static_cast<std::size_t>(length) - 1);
            const auto hit = tree.symbols.find({length, code});
            if (hit == tree.symbols.end()) continue;
            at += static_cast<std::size_t>(length);
            symbol = hit->second;
            return Found::Symbol;
        }
        return Found::NoCode;
    }
    // Whether zeros behind the bits so far lead to a code.
    static bool CouldGoOn(const Tree& tree, int length, unsigned code) {
        for (; length <= 15; ++length) {
            code *= 2;
            if (tree.symbols.count({length, code}) != 0) return true;
        }
        return false;
    }
    void Stop(int result) {
        outcome.result = result;
        stopped = true;
    }

    void OneBlock(unsigned type) {
        if (type == 0) return Stored();
        if (type == 3) return Stop(-1);
        if (type == 1) {
            std::vector<int> literals(288, 8);
            std::fill(literals.begin() + 144, literals.begin() + 256, 9);
            std::fill(literals.begin() + 256, literals.begin() + 280, 7);
            return Symbols(BuildTree(literals), BuildTree(std::vector<int>(32, 5)));
        }
        Dynamic();
    }

    void Stored() {
        std::size_t at = (bitAt + 7) / 8;
        if (input.size() - at < 4) return Stop(-1);
        const unsigned length = input[at] | input[at + 1] << 8U;
        const unsigned complement = input[at + 2] | input[at + 3] << 8U;
        at += 4;
        if (length + complement != 0xFFFF) outcome.result = -2;
        if (length > input.size() - at || length > limit - outcome.bytes.size()) {
            stopped = true;
            return;
        }
        const auto from = input.begin() + static_cast<std::ptrdiff_t>(at);
        outcome.bytes.insert(outcome.bytes.end(), from, from + length);
        bitAt = (at + length) * 8;
    }

    void TreeFailure() {
        ++outcome.treeFailures;
        Stop(-1);
    }

    void Dynamic() {
        constexpr unsigned order[19] = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                        11, 4,  12, 3, 13, 2, 14, 1, 15};
        const unsigned literalCount = HeaderBits(5) + 257;
        const unsigned distanceCount = HeaderBits(5) + 1;
        const unsigned lengthCount = HeaderBits(4) + 4;
        std::vector<int> lengthLengths(19);
        for (unsigned i = 0; i < lengthCount; ++i) {
            lengthLengths[order[i]] = static_cast<int>(HeaderBits(3));
        }
        const Tree lengthTree = BuildTree(lengthLengths);
        if (lengthTree.left != 0) return TreeFailure();
        std::vector<int> lengths;
        while (lengths.size() < literalCount + distanceCount) {
            unsigned symbol = 0;
            Find(lengthTree, bitAt, symbol, true);
            bitAt = std::min(bitAt, input.size() * 8);
            if (symbol < 16) {
                lengths.push_back(static_cast<int>(symbol));
                continue;
            }
            if (symbol == 16 && lengths.empty()) return Stop(-5);
            const int value = symbol == 16 ? lengths.back() : 0;
            const unsigned times = symbol == 16   ? 3 + HeaderBits(2)
                                   : symbol == 17 ? 3 + HeaderBits(3)
                                                  : 11 + HeaderBits(7);
            if (lengths.size() + times > literalCount + distanceCount) return Stop(-6);
            lengths.insert(lengths.end(), times, value);
        }
        const auto middle = lengths.begin() + literalCount;
        const Tree literals = BuildTree({lengths.begin(), middle});
        if (literals.left != 0) return TreeFailure();
        const Tree distances = BuildTree({middle, lengths.end()});
        if (distances.left < 0) return TreeFailure();
        Symbols(literals, distances);
    }

    // False if the input ends before the extra bits do.
    bool Extra(std::size_t& at, unsigned bits, unsigned& value) const {
        if (at + bits > input.size() * 8) return false;
        for (unsigned i = 0; i < bits; ++i) {
            value += Bit(at + i) << i;
        }
        at += bits;
        return true;
    }

    void Symbols(const Tree& literals, const Tree& distances) {
        constexpr unsigned lengthBase[31] = {3,  4,  5,  6,   7,   8,   9,   10,  11, 13,
                                             15, 17, 19, 23,  27,  31,  35,  43,  51, 59,
                                             67, 83, 99, 115, 131, 163, 195, 227, 258};
        constexpr unsigned lengthExtra[31] = {0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2,
                                              2, 3, 3, 3, 3, 4, 4, 4, 4, 5, 5, 5, 5, 0};
        constexpr unsigned distanceBase[32] = {
            1,   2,   3,   4,   5,   7,    9,    13,   17,   25,   33,   49,   65,    97,    129,
            193, 257, 385, 513, 769, 1025, 1537, 2049, 3073, 4097, 6145, 8193, 12289, 16385, 24577};
        constexpr unsigned distanceExtra[32] = {0, 0, 0,  0,  1,  1,  2,  2,  3,  3,
                                                4, 4, 5,  5,  6,  6,  7,  7,  8,  8,
                                                9, 9, 10, 10, 11, 11, 12, 12, 13, 13};
        for (;;) {
            std::size_t at = bitAt;
            unsigned symbol = 0;
            if (Find(literals, at, symbol, false) != Found::Symbol) return Stop(-1);
            if (symbol < 256) {
                if (outcome.bytes.size() < limit) {
                    outcome.bytes.push_back(static_cast<std::uint8_t>(symbol));
                }
                bitAt = at;
                continue;
            }
            if (symbol == 256) {
                bitAt = at;
                return;
            }
            unsigned length = lengthBase[symbol - 257];
            if (!Extra(at, lengthExtra[symbol - 257], length)) return Stop(-1);
            if (extended && length == 258) {
                length = 3;
                if (!Extra(at, 16, length)) return Stop(-1);
            }
            const Found found = Find(distances, at, symbol, false);
            if (found == Found::NoBits) return Stop(-1);
            if (found == Found::NoCode) {
                stopped = true;
                return;
            }
            unsigned distance = distanceBase[symbol];
            if (!Extra(at, distanceExtra[symbol], distance)) return Stop(-1);
            bitAt = at;
            if (!Copy(length, distance)) {
                stopped = true;
                return;
            }
        }
    }

    bool Copy(unsigned length, unsigned distance) {
        for (; length != 0; --length) {
            if (outcome.bytes.size() >= limit) return false;
            const std::size_t at = outcome.bytes.size();
            const bool exists = distance != 0 && distance <= at;
            outcome.bytes.push_back(exists ? outcome.bytes[at - distance] : std::uint8_t{0});
        }
        return true;
    }

    std::span<const std::uint8_t> input;
    std::size_t limit;
    bool extended;
    std::size_t bitAt = 0;
    bool stopped = false;
    PlainOutcome outcome;
};

}  // namespace

PlainOutcome PlainInflate(std::span<const std::uint8_t> input, std::size_t limit, bool extended) {
    return Decoder(input, limit, extended).Run();
}

}  // namespace kivu::png::testing
