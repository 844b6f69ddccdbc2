#include "png/inflate.h"

#include <gtest/gtest.h>
#include <random>

#include "png/generator/bit_writer.h"
#include "png/inflate_outcome.h"

namespace kivu::png {
namespace {

using testing::BitWriter;
using testing::Bytes;
using testing::Deflated;
using testing::ExpectLikePlain;
using testing::InflateTo;
using testing::Mixture;
using testing::Outcome;

TEST(Inflate, GivesBackWhatEveryLevelAndStrategyOfZlibPacked) {
    for (int level = 0; level <= 9; ++level) {
        for (int strategy = 0; strategy <= 4; ++strategy) {
            for (const std::size_t size : {0UL, 1UL, 300UL, 70000UL, 300000UL}) {
                const Bytes raw = Mixture(size, static_cast<std::uint32_t>(level * 5 + strategy));
                const Outcome run = InflateTo(Deflated(raw, level, strategy), size);
                EXPECT_EQ(run.result, InflateResult::Good);
                EXPECT_EQ(run.bytes, raw) << level << ' ' << strategy << ' ' << size;
            }
        }
    }
}

TEST(Inflate, CopiesMatchesOfEveryLengthAndShortDistanceRight) {
    for (unsigned distance = 1; distance <= 40; ++distance) {
        Bytes raw;
        std::mt19937 random(distance);
        for (unsigned length = 3; length <= 258; ++length) {
            for (unsigned i = 0; i < distance; ++i) {
                raw.push_back(static_cast<std::uint8_t>(random()));
            }
            for (unsigned i = 0; i < length; ++i) {
                raw.push_back(raw[raw.size() - distance]);
            }
        }
        EXPECT_EQ(InflateTo(Deflated(raw, 9, 0), raw.size()).bytes, raw) << distance;
    }
}

TEST(Inflate, EmptyStoredBlockGivesEmptyOutputAndReleasesTheBuffer) {
    Inflater inflater;
    const Bytes input = BitWriter().Stored(true, {}).Done();
    const Inflater::Inflated inflated = inflater.Inflate(input, 1000);
    EXPECT_EQ(inflated.result, InflateResult::Good);
    EXPECT_TRUE(inflated.bytes.Empty());
    EXPECT_EQ(inflated.bytes.Data(), nullptr);
}

TEST(Inflate, StreamLongerThanExpectedEndsAHundredBytesBeyond) {
    const Bytes raw(5000, 42);
    const Outcome run = InflateTo(Deflated(raw, 6, 0), 1000);
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, Bytes(1100, 42));
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, LiteralsBeyondTheLimitAreLostAndDecodingGoesOn) {
    BitWriter writer;
    writer.BlockHead(false, 1);
    for (unsigned i = 0; i < 150; ++i) {
        writer.StaticSymbol(i % 100);
    }
    writer.StaticSymbol(256).BlockHead(true, 3);
    const Outcome run = InflateTo(writer.Done(), 10);
    EXPECT_EQ(run.bytes.size(), 110U);
    EXPECT_EQ(run.result, InflateResult::Malformed);
}

TEST(Inflate, WrongComplementIsToldButTheDataAreCopied) {
    const Bytes data = {1, 2, 3, 4, 5};
    const Outcome run = InflateTo(BitWriter().Stored(true, data, 0x10).Done(), 5);
    EXPECT_EQ(run.result, InflateResult::BadComplement);
    EXPECT_EQ(run.bytes, data);
}

TEST(Inflate, WrongComplementIsKeptUntilALaterFailureReplacesIt) {
    BitWriter good;
    good.Stored(false, {9}, 1).Stored(true, {8});
    EXPECT_EQ(InflateTo(good.Done(), 2).result, InflateResult::BadComplement);
    BitWriter bad;
    bad.Stored(false, {9}, 1).BlockHead(true, 3);
    EXPECT_EQ(InflateTo(bad.Done(), 2).result, InflateResult::Malformed);
}

TEST(Inflate, StoredBlockWithoutItsLengthsIsMalformed) {
    for (std::size_t bytes = 0; bytes < 4; ++bytes) {
        EXPECT_EQ(InflateTo(Bytes(1 + bytes, 0), 10).result, InflateResult::Malformed) << bytes;
    }
}

TEST(Inflate, StoredBlockBeyondInputOrOutputStopsSilentlyAndCopiesNothing) {
    BitWriter writer;
    writer.Stored(false, {1, 2}).Stored(true, Bytes(300, 3));
    Outcome run = InflateTo(writer.Done(), 2);
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, (Bytes{1, 2}));
    Bytes cut = writer.Done();
    cut.pop_back();
    run = InflateTo(cut, 1000);
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, (Bytes{1, 2}));
}

TEST(Inflate, BlockTypeThreeIsMalformedAndKeepsWhatCameBefore) {
    const Outcome run = InflateTo(BitWriter().Stored(false, {7, 7}).BlockHead(true, 3).Done(), 10);
    EXPECT_EQ(run.result, InflateResult::Malformed);
    EXPECT_EQ(run.bytes, (Bytes{7, 7}));
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, InputThatEndsAtABlockBoundaryIsMalformed) {
    EXPECT_EQ(InflateTo({}, 10).result, InflateResult::Malformed);
    const Outcome run = InflateTo(BitWriter().Stored(false, {1, 2, 3}).Done(), 10);
    EXPECT_EQ(run.result, InflateResult::Malformed);
    EXPECT_EQ(run.bytes, (Bytes{1, 2, 3}));
}

TEST(Inflate, InputThatEndsInsideASymbolStopsBeforeIt) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('a').StaticSymbol('b').StaticSymbol(260);
    // The match has its length, but of its distance twelve bits are cut.
    writer.StaticDistance(29).Align();
    const Outcome run = InflateTo(writer.Done(), 100);
    EXPECT_EQ(run.result, InflateResult::Malformed);
    EXPECT_EQ(run.bytes, (Bytes{'a', 'b'}));
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, DistanceBeforeTheStartGivesZerosAndMovesOn) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('x').StaticSymbol(258).StaticDistance(3);
    writer.StaticSymbol('y').StaticSymbol(256);
    // Length 4, distance 4: three bytes before the start, then the first one.
    EXPECT_EQ(InflateTo(writer.Done(), 10).bytes, (Bytes{'x', 0, 0, 0, 'x', 'y'}));
}

TEST(Inflate, DistanceBeforeTheStartIsTheSameFarFromBothEnds) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('x').StaticSymbol(258).StaticDistance(3);
    for (unsigned i = 0; i < 200; ++i) {
        writer.StaticSymbol('y');
    }
    writer.StaticSymbol(256);
    Bytes expected = {'x', 0, 0, 0, 'x'};
    expected.resize(205, 'y');
    EXPECT_EQ(InflateTo(writer.Done(), 5000).bytes, expected);
}

TEST(Inflate, SymbolsBeyondTheTablesHaveBaseZero) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('x');
    // No length at all; then a length of 3 at no distance.
    writer.StaticSymbol(286).StaticDistance(0).StaticSymbol(257).StaticDistance(30);
    writer.StaticSymbol(287).StaticDistance(31).StaticSymbol('z').StaticSymbol(256);
    EXPECT_EQ(InflateTo(writer.Done(), 10).bytes, (Bytes{'x', 0, 0, 0, 'z'}));
    EXPECT_EQ(InflateTo(writer.Done(), 10).result, InflateResult::Good);
}

TEST(Inflate, NoDistanceGivesZerosWhateverTheBufferHeld) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('x').StaticSymbol(257).StaticDistance(30);
    for (int i = 0; i < 40; ++i) {
        writer.StaticSymbol('y');
    }
    writer.StaticSymbol(256);
    for (const std::size_t size : {60U, 1000U}) {
        Bytes output(size, 0xAA);
        Inflater inflater;
        ASSERT_EQ(inflater.Inflate(writer.Done(), output).written, 44U);
        EXPECT_EQ(Bytes(output.begin(), output.begin() + 5), (Bytes{'x', 0, 0, 0, 'y'}));
    }
}

TEST(Inflate, TwoStaticBlocksShareTheirTables) {
    BitWriter writer;
    writer.BlockHead(false, 1).StaticSymbol('a').StaticSymbol(256);
    writer.Stored(false, {'b'});
    writer.BlockHead(true, 1).StaticSymbol('c').StaticSymbol(256);
    EXPECT_EQ(InflateTo(writer.Done(), 10).bytes, (Bytes{'a', 'b', 'c'}));
}

std::vector<int> LiteralLengths(std::initializer_list<std::pair<unsigned, int>> given,
                                std::size_t count = 257) {
    std::vector<int> lengths(count);
    for (const auto& [symbol, length] : given) {
        lengths[symbol] = length;
    }
    return lengths;
}

TEST(Inflate, LiteralTreeThatIsNotCompleteFails) {
    const auto under = LiteralLengths({{'a', 2}, {256, 2}});
    const auto over = LiteralLengths({{'a', 1}, {'b', 1}, {256, 1}});
    for (const auto& lengths : {under, over}) {
        const Outcome run = InflateTo(BitWriter().DynamicHead(true, lengths, {1}).Done(), 10);
        EXPECT_EQ(run.result, InflateResult::Malformed);
        EXPECT_EQ(run.treeFailures, 1);
    }
}

TEST(Inflate, DistanceTreeWithOneCodeOrNoneIsRight) {
    const auto literals = LiteralLengths({{'a', 2}, {'b', 2}, {256, 2}, {257, 2}}, 258);
    BitWriter one;
    one.DynamicHead(true, literals, {1}).Code(0, 2).Code(3, 2).Code(0, 1).Code(2, 2);
    EXPECT_EQ(InflateTo(one.Done(), 10).bytes, (Bytes{'a', 'a', 'a', 'a'}));
    EXPECT_EQ(InflateTo(one.Done(), 10).result, InflateResult::Good);
    BitWriter none;
    none.DynamicHead(true, literals, {0}).Code(0, 2).Code(1, 2).Code(2, 2);
    EXPECT_EQ(InflateTo(none.Done(), 10).bytes, (Bytes{'a', 'b'}));
    EXPECT_EQ(InflateTo(none.Done(), 10).result, InflateResult::Good);
}

TEST(Inflate, DistanceCodeThatNoEntryHoldsStopsSilently) {
    const auto literals = LiteralLengths({{'a', 2}, {'b', 2}, {256, 2}, {257, 2}}, 258);
    BitWriter writer;
    writer.DynamicHead(true, literals, {1}).Code(1, 2).Code(3, 2).Code(1, 1).Code(0, 2);
    writer.Bits(0, 64);
    const Outcome run = InflateTo(writer.Done(), 1000);
    EXPECT_EQ(run.bytes, (Bytes{'b'}));
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, OversubscribedDistanceTreeFails) {
    const auto literals = LiteralLengths({{'a', 1}, {256, 1}});
    const Outcome run = InflateTo(BitWriter().DynamicHead(true, literals, {1, 1, 1}).Done(), 10);
    EXPECT_EQ(run.result, InflateResult::Malformed);
    EXPECT_EQ(run.treeFailures, 1);
}

TEST(Inflate, IncompleteCodeLengthTreeFails) {
    BitWriter writer;
    writer.BlockHead(true, 2).Bits(0, 5).Bits(0, 5).Bits(0, 4).Bits(1, 3).Bits(0, 60);
    const Outcome run = InflateTo(writer.Done(), 10);
    EXPECT_EQ(run.result, InflateResult::Malformed);
    EXPECT_EQ(run.treeFailures, 1);
}

TEST(Inflate, RepetitionWithoutALengthBeforeItIsNamedAndSilent) {
    BitWriter writer;
    writer.BeginDynamic(true, 257, 1).CodeLength(16).Bits(0, 60);
    const Outcome run = InflateTo(writer.Done(), 10);
    EXPECT_EQ(run.result, InflateResult::NoPreviousLength);
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, RepetitionBeyondTheLengthsIsNamedAndSilent) {
    BitWriter writer;
    writer.BeginDynamic(true, 257, 1).CodeLength(18).Bits(127, 7).CodeLength(18).Bits(127, 7);
    const Outcome run = InflateTo(writer.Done(), 10);
    EXPECT_EQ(run.result, InflateResult::TooManyLengths);
    EXPECT_EQ(run.treeFailures, 0);
}

TEST(Inflate, RepetitionMayReachFromLiteralsIntoDistances) {
    // 1 for the first literal, 2 for the last two and, by a repetition, for three distances.
    const auto head = [](unsigned distanceCount) {
        BitWriter begun;
        begun.BeginDynamic(true, 257, distanceCount).CodeLength(1).CodeLength(18).Bits(127, 7);
        begun.CodeLength(18).Bits(254 - 138 - 11, 7).CodeLength(2).CodeLength(2);
        begun.CodeLength(16).Bits(0, 2);
        return begun;
    };
    BitWriter fits = head(3);
    const Outcome good = InflateTo(fits.Code(2, 2).Code(0, 1).Code(3, 2).Done(), 10);
    EXPECT_EQ(good.result, InflateResult::Good);
    EXPECT_EQ(good.bytes, (Bytes{255, 0}));
    EXPECT_EQ(InflateTo(head(2).Done(), 10).result, InflateResult::TooManyLengths);
}

TEST(Inflate, AllLiteralCodesMayBeUsed) {
    std::vector<int> literals(288, 9);
    std::fill(literals.begin(), literals.begin() + 224, 8);
    BitWriter writer;
    writer.DynamicHead(true, literals, {1}).Code('q', 8).Code(448 + 256 - 224, 9);
    const Outcome run = InflateTo(writer.Done(), 10);
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, (Bytes{'q'}));
}

TEST(Inflate, FifteenBitCodesGoThroughTheSubTables) {
    // Lengths 1 to 14 and two of 15.
    auto literals = LiteralLengths({{256, 15}});
    for (int i = 1; i <= 14; ++i) {
        literals[static_cast<std::size_t>(i)] = i;
    }
    literals[15] = 15;
    BitWriter writer;
    writer.DynamicHead(true, literals, {0});
    Bytes expected;
    for (unsigned round = 0; round < 50; ++round) {
        for (unsigned i = 1; i <= 14; ++i) {
            writer.Code((1U << i) - 2, i);
            expected.push_back(static_cast<std::uint8_t>(i));
        }
        writer.Code(0x7FFE, 15);
        expected.push_back(15);
    }
    writer.Code(0x7FFF, 15);
    const Outcome run = InflateTo(writer.Done(), expected.size());
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, expected);
}

TEST(Inflate, ExtendedMatchTakesItsLengthFromSixteenBits) {
    BitWriter writer;
    writer.BlockHead(true, 1).StaticSymbol('q').StaticSymbol(285).Bits(20000, 16);
    writer.StaticDistance(0).StaticSymbol(256);
    const Outcome run = InflateTo(writer.Done(), 30000, true);
    EXPECT_EQ(run.result, InflateResult::Good);
    EXPECT_EQ(run.bytes, Bytes(20004, 'q'));
    ExpectLikePlain(writer.Done(), 30000, true);
    ExpectLikePlain(writer.Done(), 1000, true);
}

TEST(Inflate, NeverReservesMoreThanTheInputCanFill) {
    Inflater inflater;
    const Bytes input = BitWriter().Stored(true, {1}).Done();
    // Two exbibytes would not be granted.
    const Inflater::Inflated inflated = inflater.Inflate(input, std::uint64_t{1} << 61);
    EXPECT_EQ(inflated.bytes.Size(), 1U);
}

TEST(Inflate, GreatestPossibleRatioFitsTheReservedBuffer) {
    const Bytes raw(3000000, 0);
    EXPECT_EQ(InflateTo(Deflated(raw, 9, 0), raw.size()).bytes, raw);
}

}  // namespace
}  // namespace kivu::png
