#include "library/line_blocks.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace kivu::library {
namespace {

using std::string;

// Gives its bytes in pieces of at most so many, as a slow disk may.
class PieceReader : public platform::FileSystem::Reader {
 public:
    PieceReader(string bytes, std::size_t piece) : bytes(std::move(bytes)), piece(piece) {}
    std::size_t Read(char* buffer, std::size_t size) override {
        const std::size_t count = bytes.copy(buffer, std::min(size, piece), at);
        at += count;
        return count;
    }

 private:
    string bytes;
    std::size_t piece;
    std::size_t at = 0;
};

struct Whole {
    string text;
    std::size_t lines = 0;
    bool wholeLines = true;
};

Whole ReadThrough(const string& bytes, std::size_t blockSize, std::size_t piece = 1000) {
    PieceReader reader(bytes, piece);
    LineBlocks blocks(reader, blockSize);
    Whole whole;
    while (blocks.Next()) {
        EXPECT_LE(blocks.Block().size(), blockSize);
        whole.wholeLines = whole.wholeLines && (whole.text.empty() || whole.text.back() == '\n');
        whole.text += blocks.Block();
        whole.lines += blocks.LineCount();
    }
    EXPECT_FALSE(blocks.Next());
    return whole;
}

TEST(LineBlocks, GiveTheWholeFileInWholeLines) {
    std::mt19937 random(11);
    string bytes;
    std::size_t lines = 0;
    for (; lines < 500; ++lines)
        bytes += string(random() % 30, 'x') + "\r\n";
    for (const std::size_t piece : {std::size_t{1}, std::size_t{7}, std::size_t{1000}}) {
        const Whole whole = ReadThrough(bytes, 64, piece);
        EXPECT_EQ(whole.text, bytes);
        EXPECT_EQ(whole.lines, lines);
        EXPECT_TRUE(whole.wholeLines);
    }
}

TEST(LineBlocks, TheLastLineMayLackItsEnd) {
    EXPECT_EQ(ReadThrough("a\nb", 64).text, "a\nb");
    EXPECT_EQ(ReadThrough("a\nb", 64).lines, 2U);
    EXPECT_EQ(ReadThrough("ab", 64).lines, 1U);
    EXPECT_EQ(ReadThrough("a\n", 64).lines, 1U);
    EXPECT_EQ(ReadThrough("\n", 64).lines, 1U);
    EXPECT_EQ(ReadThrough("", 64).lines, 0U);
}

TEST(LineBlocks, ALineLongerThanABlockIsCountedAndLeftOut) {
    const string giant(1000, 'g');
    for (const std::size_t piece : {std::size_t{3}, std::size_t{1000}}) {
        EXPECT_EQ(ReadThrough("a\n" + giant + "\nb\n", 64, piece).text, "a\nb\n");
        EXPECT_EQ(ReadThrough("a\n" + giant + "\nb\n", 64, piece).lines, 3U);
        EXPECT_EQ(ReadThrough(giant, 64, piece).text, "");
        EXPECT_EQ(ReadThrough(giant, 64, piece).lines, 1U);
        EXPECT_EQ(ReadThrough(giant + "\n", 64, piece).lines, 1U);
        EXPECT_EQ(ReadThrough(giant + "\n" + giant + "\nb", 64, piece).lines, 3U);
        EXPECT_EQ(ReadThrough(giant + "\n" + giant + "\nb", 64, piece).text, "b");
    }
}

TEST(LineBlocks, EveryLengthAroundABlockIsRight) {
    for (std::size_t length = 120; length < 140; ++length) {
        const string bytes = "a\n" + string(length, 'x') + "\nb\n" + string(length, 'y');
        const Whole whole = ReadThrough(bytes, 128, 50);
        EXPECT_EQ(whole.lines, 4U) << length;
        EXPECT_TRUE(whole.text.starts_with("a\n")) << length;
        EXPECT_NE(whole.text.find("b\n"), string::npos) << length;
        EXPECT_EQ(whole.text.find('x') == string::npos, length > 127) << length;
    }
}

}  // namespace
}  // namespace kivu::library
