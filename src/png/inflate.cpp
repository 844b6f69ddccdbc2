#include "png/inflate.h"

#include <algorithm>
#include <array>

#include "png/inflate_stream.h"

namespace kivu::png {
namespace {

// Bytes that a stream may hold beyond the size that is expected of it.
constexpr std::uint64_t outputReserve = 100;

// The most that one byte of input can stand for: four matches of 258 bytes at two bits each.
constexpr std::uint64_t greatestRatio = 1032;

constexpr std::array<std::uint8_t, codeLengthSymbols> codeLengthOrder = {
    16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};

constexpr unsigned codeLengthRootBits = 7;
constexpr unsigned literalRootBits = 11;
constexpr unsigned distanceRootBits = 8;

}  // namespace

struct Inflater::Stream : BitStream {
    bool extended;
    InflateResult result;
};

Inflater::Trees::Trees()
    : literals(literalRootBits, literalSymbols), distances(distanceRootBits, distanceSymbols) {
}

Inflater::Inflater(std::function<void()> onTreeFailure, std::function<bool()> isGivenUp)
    : treeFailed(std::move(onTreeFailure)),
      givenUp(std::move(isGivenUp)),
      codeLengths(codeLengthRootBits, 0) {
}

Inflater::Outcome Inflater::Inflate(std::span<const std::uint8_t> input,
                                    std::span<std::uint8_t> output, bool extended) {
    Stream stream{{input.data(), input.data() + input.size(), 0, 0, output.data(), output.data(),
                   output.data() + output.size()},
                  extended,
                  InflateResult::Good};
    for (bool finalBlock = false; !finalBlock && !(givenUp && givenUp());) {
        finalBlock = stream.Get(1) != 0;
        if (OneBlock(stream, stream.Get(2)) == Next::Stop) break;
    }
    return {stream.result, stream.Written()};
}

Inflater::Inflated Inflater::Inflate(std::span<const std::uint8_t> input,
                                     std::uint64_t expectedSize, bool extended) {
    std::uint64_t limit = expectedSize + outputReserve;
    if (!extended) limit = std::min(limit, greatestRatio * input.size());
    ByteBuffer bytes(limit);
    const Outcome outcome = Inflate(input, bytes.Span(), extended);
    bytes.CutTo(outcome.written);
    return {outcome.result, std::move(bytes)};
}

Inflater::Next Inflater::OneBlock(Stream& stream, unsigned type) {
    switch (type) {
        case 0:
            return StoredBlock(stream);
        case 1:
            return CompressedBlock(stream, StaticTrees());
        case 2:
            if (ReadTrees(stream) == Next::Stop) return Next::Stop;
            return CompressedBlock(stream, dynamicTrees);
        default:
            stream.result = InflateResult::Malformed;
            return Next::Stop;
    }
}

Inflater::Next Inflater::StoredBlock(Stream& stream) {
    stream.AlignToByte();
    if (stream.InputLeft() < 4) {
        stream.result = InflateResult::Malformed;
        return Next::Stop;
    }
    const auto length = LoadWord<std::uint16_t>(stream.in);
    const auto complement = LoadWord<std::uint16_t>(stream.in + 2);
    stream.in += 4;
    if ((length ^ complement) != 0xFFFF) stream.result = InflateResult::BadComplement;
    if (length > stream.InputLeft() || length > stream.OutputLeft()) return Next::Stop;
    stream.out = std::copy_n(stream.in, length, stream.out);
    stream.in += length;
    return Next::Block;
}

Inflater::Next Inflater::CompressedBlock(Stream& stream, const Trees& trees) {
    SymbolsEnd end = SymbolsEnd::Margin;
    if (!stream.extended) end = DecodeSymbolsWide(stream, trees.literals, trees.distances);
    if (end == SymbolsEnd::Margin) {
        end = DecodeSymbolsCareful(stream, trees.literals, trees.distances, stream.extended);
    }
    if (end == SymbolsEnd::Block) return Next::Block;
    if (end == SymbolsEnd::InputOut) stream.result = InflateResult::Malformed;
    return Next::Stop;
}

Inflater::Next Inflater::ReadTrees(Stream& stream) {
    const std::size_t literalCount = stream.Get(5) + 257;
    const std::size_t distanceCount = stream.Get(5) + 1;
    const std::size_t codeLengthCount = stream.Get(4) + 4;
    std::array<std::uint8_t, codeLengthSymbols> lengthsOfLengths{};
    for (std::size_t i = 0; i < codeLengthCount; ++i) {
        lengthsOfLengths[codeLengthOrder[i]] = static_cast<std::uint8_t>(stream.Get(3));
    }
    if (codeLengths.Build(lengthsOfLengths, CodeLengthMeanings()) != 0) return TreeFailure(stream);

    std::array<std::uint8_t, literalSymbols + distanceSymbols> lengths;
    const std::span used(lengths.data(), literalCount + distanceCount);
    if (ReadCodeLengths(stream, used) == Next::Stop) return Next::Stop;
    if (dynamicTrees.literals.Build(used.first(literalCount), LiteralMeanings()) != 0) {
        return TreeFailure(stream);
    }
    // One distance code, or none where there are only literals, leaves holes in the tree.
    if (dynamicTrees.distances.Build(used.subspan(literalCount), DistanceMeanings()) < 0) {
        return TreeFailure(stream);
    }
    return Next::Block;
}

// Literal and distance lengths are one list: a repetition may reach from one into the other.
Inflater::Next Inflater::ReadCodeLengths(Stream& stream, std::span<std::uint8_t> lengths) {
    std::size_t at = 0;
    while (at < lengths.size()) {
        if (stream.count < 16) stream.Refill();
        const DecodeEntry entry = codeLengths.Root(stream.bits);
        stream.Drop(std::min(EntryBits(entry), stream.count));
        const std::uint32_t symbol = EntryValue(entry);
        if (symbol < 16) {
            lengths[at++] = static_cast<std::uint8_t>(symbol);
            continue;
        }
        if (symbol == 16 && at == 0) {
            stream.result = InflateResult::NoPreviousLength;
            return Next::Stop;
        }
        const std::size_t times = symbol == 16   ? 3 + stream.Get(2)
                                  : symbol == 17 ? 3 + stream.Get(3)
                                                 : 11 + stream.Get(7);
        if (times > lengths.size() - at) {
            stream.result = InflateResult::TooManyLengths;
            return Next::Stop;
        }
        const std::uint8_t repeated = symbol == 16 ? lengths[at - 1] : std::uint8_t{0};
        std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(at), times, repeated);
        at += times;
    }
    return Next::Block;
}

Inflater::Next Inflater::TreeFailure(Stream& stream) {
    stream.result = InflateResult::Malformed;
    if (treeFailed) treeFailed();
    return Next::Stop;
}

const Inflater::Trees& Inflater::StaticTrees() {
    if (!staticTreesBuilt) {
        std::array<std::uint8_t, literalSymbols> literalLengths;
        std::fill_n(literalLengths.begin(), 144, 8);
        std::fill_n(literalLengths.begin() + 144, 112, 9);
        std::fill_n(literalLengths.begin() + 256, 24, 7);
        std::fill_n(literalLengths.begin() + 280, 8, 8);
        std::array<std::uint8_t, distanceSymbols> distanceLengths;
        distanceLengths.fill(5);
        staticTrees.literals.Build(literalLengths, LiteralMeanings());
        staticTrees.distances.Build(distanceLengths, DistanceMeanings());
        staticTreesBuilt = true;
    }
    return staticTrees;
}

}  // namespace kivu::png
