#include "library/letter_pair.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace kivu::library {
namespace {

using std::string;

constexpr LetterPair zAndDigit = {{0, 'z', 0x20}, {3, '7', 0}};
constexpr std::size_t reach = 3;  // bytes behind a place that are looked at

bool Stands(const string& text, std::size_t place, const LetterPair::Letter& letter) {
    return static_cast<char>(text[place + letter.offset] | letter.caseBit) == letter.folded;
}

std::vector<std::size_t> PlainPlaces(const string& text, std::size_t from, const LetterPair& pair) {
    std::vector<std::size_t> places;
    for (std::size_t place = from; place + reach < text.size(); ++place) {
        if (Stands(text, place, pair.a) && Stands(text, place, pair.b)) places.push_back(place);
    }
    return places;
}

using Next = std::uint64_t (*)(const char*, std::size_t&, std::size_t, const LetterPair&);

// Those in whole steps from `from` on.
std::vector<std::size_t> Places(Next next, const string& text, std::size_t from) {
    std::vector<std::size_t> places;
    const std::size_t end = text.size() - reach;
    for (std::size_t at = from; const std::uint64_t found = next(text.data(), at, end, zAndDigit);
         at += LetterPair::step) {
        for (std::size_t i = 0; i < LetterPair::step; ++i) {
            if ((found >> i & 1) != 0) places.push_back(at + i);
        }
    }
    return places;
}

string RandomText(std::mt19937& random, std::size_t size) {
    const string letters = "zZ7yx\xFA\xDA\x1Aw";
    string text(size, ' ');
    // Now and then a long stretch without any.
    for (char& c : text)
        c = random() % 300 == 0 ? ' ' : letters[random() % letters.size()];
    if (size > 400) text.replace(100, 250, 250, 'w');
    return text;
}

TEST(LetterPair, BothWaysGiveThePlacesOfBothLetters) {
    std::mt19937 random(11);
    for (std::size_t size = reach; size < 900; size += 1 + size / 11) {
        const string text = RandomText(random, size);
        for (const std::size_t from : {std::size_t{0}, std::size_t{1}, std::size_t{77}}) {
            const std::size_t end = text.size() - reach;
            if (from > end) continue;
            const std::size_t last = from + (end - from) / LetterPair::step * LetterPair::step;
            std::vector<std::size_t> expected = PlainPlaces(text, from, zAndDigit);
            std::erase_if(expected, [&](std::size_t place) { return place >= last; });
            EXPECT_EQ(Places(NextPlaces, text, from), expected) << size;
            EXPECT_EQ(Places(NextPlacesScalar, text, from), expected) << size;
            std::size_t at = last;
            EXPECT_EQ(NextPlaces(text.data(), at, end, zAndDigit), 0U);
            EXPECT_EQ(at, last);
        }
    }
}

TEST(LetterPair, EightPlacesAtOnce) {
    EXPECT_EQ(PlacesInEight("z..7.zz.77.", zAndDigit), 0b01100001U);
    EXPECT_EQ(PlacesInEight("Zzzzzzzz777", zAndDigit), 0b11100000U);
    EXPECT_EQ(PlacesInEight("Zzz77777777", zAndDigit), 0b00000111U);
}

TEST(CountLineFeeds, CountsInBlocksOfAnyLength) {
    std::mt19937 random(3);
    for (std::size_t length = 0; length < 5000; length += 1 + length / 9) {
        string block(length, 'x');
        std::size_t count = 0;
        for (char& c : block) {
            c = static_cast<char>(random() % 4 == 0 ? '\n' : random());
            if (c == '\n') ++count;
        }
        for (const auto way : {CountLineFeeds, CountLineFeedsScalar}) {
            EXPECT_EQ(way(block), count);
            EXPECT_EQ(way(string(length, '\n')), length);
        }
    }
    const string many(70000, '\n');
    EXPECT_EQ(CountLineFeeds(many), many.size());
    EXPECT_EQ(CountLineFeedsScalar(many), many.size());
}

}  // namespace
}  // namespace kivu::library
