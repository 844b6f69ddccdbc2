#include "text/collation.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "text/collation_table.h"
#include "text/text.h"

namespace kivu::text {

namespace {

// First byte of a primary weight. 0 is no weight at all, 1 ends a level of a sort key.
constexpr std::uint8_t kControls = 2;      // U+0000 to U+001F and U+007F, in their order
constexpr std::uint8_t kPunctuation = 35;  // blank and the 32 marks of ASCII, in their order
constexpr std::uint8_t kOtherSymbols = 68;
constexpr std::uint8_t kDigits = 69;
constexpr std::uint8_t kLatin = 79;
constexpr std::uint8_t kOtherLetters = 105;

// Second weights: a plain character, an accent (U+0300 and on), a ligature's rank above both.
constexpr std::uint8_t kPlain = 2;
constexpr std::uint8_t kFirstMark = 3;

constexpr std::array<std::uint8_t, 256> MakeAsciiWeights() {
    std::array<std::uint8_t, 256> weights{};
    std::uint8_t punctuation = kPunctuation;
    for (unsigned c = 0; c < 0x80; ++c) {
        const unsigned lower = c >= 'A' && c <= 'Z' ? c + 32 : c;
        if (c < 0x20) {
            weights[c] = static_cast<std::uint8_t>(kControls + c);
        } else if (c == 0x7F) {
            weights[c] = kControls + 32;
        } else if (c >= '0' && c <= '9') {
            weights[c] = static_cast<std::uint8_t>(kDigits + c - '0');
        } else if (lower >= 'a' && lower <= 'z') {
            weights[c] = static_cast<std::uint8_t>(kLatin + lower - 'a');
        } else {
            weights[c] = punctuation++;
        }
    }
    return weights;
}

constexpr auto kAsciiWeights = MakeAsciiWeights();

std::uint8_t AsciiWeight(char c) {
    return kAsciiWeights[static_cast<unsigned char>(c)];
}

// A primary weight of 0 is passed over on the first level.
struct Element {
    std::uint32_t primary = 0;  // first byte on top; the code point below it where it has no byte
    std::uint8_t secondary = kPlain;
};

bool IsCombiningMark(char32_t c) {
    return c >= 0x300 && c < 0x370;
}

bool IsSymbol(char32_t c) {
    if (c < 0x100) return c < 0xC0 || c == 0xD7 || c == 0xF7;
    return (c >= 0x2B0 && c < 0x300) || (c >= 0x2000 && c < 0x2C00) ||
           (c >= 0x2E00 && c < 0x2E80) || (c >= 0x3000 && c < 0x3040) ||
           (c >= 0xE000 && c < 0xF900) || (c >= 0xFE10 && c < 0xFE70) ||
           (c >= 0xFF00 && c < 0xFF66) || (c >= 0xFFE0 && c < 0x10000) ||
           (c >= 0x1F000 && c < 0x1FC00);
}

// The elements of one code point, at most four ("æ" with two accents).
class Expansion {
 public:
    void Start(char32_t codePoint) {
        count = 0;
        next = 0;
        Add(codePoint);
    }

    bool Take(Element& element) {
        if (next == count) return false;
        element = elements[next++];
        return true;
    }

 private:
    void Add(char32_t c) {
        if (c < 0x80) {
            Put({std::uint32_t{kAsciiWeights[c]} << 24, kPlain});
        } else if (IsCombiningMark(c)) {
            Put({0, static_cast<std::uint8_t>(kFirstMark + (c - 0x300))});
        } else if (const auto* letter = detail::FindAccentedLetter(c)) {
            Add(letter->base);
            for (const char16_t mark : letter->marks) {
                if (mark != 0) Add(mark);
            }
        } else if (const auto* ligature = detail::FindLigature(c)) {
            Add(ligature->parts[0]);
            if (ligature->parts[1] != 0) Add(ligature->parts[1]);
            Put({0, ligature->rank});
        } else if (c >= 0xFF10 && c < 0xFF1A) {
            Add(c - 0xFF10 + '0');
            Put({0, kWide});
        } else if (c >= 0xFF41 && c < 0xFF5B) {
            Add(c - 0xFF41 + 'a');
            Put({0, kWide});
        } else {
            const std::uint32_t lead = IsSymbol(c) ? kOtherSymbols : kOtherLetters;
            Put({lead << 24 | static_cast<std::uint32_t>(c), kPlain});
        }
    }

    void Put(Element element) {
        if (count < elements.size()) elements[count++] = element;
    }

    static constexpr std::uint8_t kWide = 0xF0;

    std::array<Element, 6> elements;
    std::size_t count = 0;
    std::size_t next = 0;
};

class ElementReader {
 public:
    explicit ElementReader(std::string_view text) : text(text) {}

    bool Next(Element& element) {
        while (!expansion.Take(element)) {
            if (at == text.size()) return false;
            expansion.Start(FoldCase(NextCodePoint(text, at)));
        }
        return true;
    }

    // 0 at the end of the text.
    std::uint32_t NextPrimary() {
        Element element;
        while (Next(element)) {
            if (element.primary != 0) return element.primary;
        }
        return 0;
    }

    // 0 at the end of the text.
    std::uint8_t NextSecondary() {
        Element element;
        return Next(element) ? element.secondary : std::uint8_t{0};
    }

 private:
    std::string_view text;
    std::size_t at = 0;
    Expansion expansion;
};

template <typename Weight>
int CompareWeights(std::string_view a, std::string_view b, Weight (ElementReader::*next)()) {
    ElementReader readA(a);
    ElementReader readB(b);
    for (;;) {
        const Weight weightA = (readA.*next)();
        const Weight weightB = (readB.*next)();
        if (weightA != weightB) return weightA < weightB ? -1 : 1;
        if (weightA == 0) return 0;
    }
}

int CompareFolded(std::string_view a, std::string_view b) {
    std::size_t atA = 0;
    std::size_t atB = 0;
    while (atA < a.size() && atB < b.size()) {
        const char32_t foldedA = FoldCase(NextCodePoint(a, atA));
        const char32_t foldedB = FoldCase(NextCodePoint(b, atB));
        if (foldedA != foldedB) return foldedA < foldedB ? -1 : 1;
    }
    return static_cast<int>(atA < a.size()) - static_cast<int>(atB < b.size());
}

int CompareBeyondAscii(std::string_view a, std::string_view b) {
    int order = CompareWeights(a, b, &ElementReader::NextPrimary);
    if (order == 0) order = CompareWeights(a, b, &ElementReader::NextSecondary);
    return order == 0 ? CompareFolded(a, b) : order;
}

// Place of the first byte in which two words from memory differ.
std::size_t FirstDifference(std::uint64_t a, std::uint64_t b) {
    const int bits = std::endian::native == std::endian::little ? std::countr_zero(a ^ b)
                                                                : std::countl_zero(a ^ b);
    return static_cast<std::size_t>(bits) / 8;
}

// Place of the first byte in which two texts differ, eight bytes at a step: paths begin alike.
std::size_t FirstDifference(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t at = 0;
    for (; shorter - at >= 8; at += 8) {
        std::uint64_t wordA = 0;
        std::uint64_t wordB = 0;
        std::memcpy(&wordA, a.data() + at, 8);
        std::memcpy(&wordB, b.data() + at, 8);
        if (wordA != wordB) return at + FirstDifference(wordA, wordB);
    }
    while (at < shorter && a[at] == b[at])
        ++at;
    return at;
}

}  // namespace

int CompareText(std::string_view a, std::string_view b) {
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t at = FirstDifference(a, b);
    // Behind an ASCII character another one begins.
    while (at > 0 && AsciiWeight(a[at - 1]) == 0)
        --at;
    for (; at < shorter; ++at) {
        const std::uint8_t weightA = AsciiWeight(a[at]);
        const std::uint8_t weightB = AsciiWeight(b[at]);
        // What is behind here decides alone: all before it is equal on every level.
        if (weightA == 0 || weightB == 0) return CompareBeyondAscii(a.substr(at), b.substr(at));
        // A combining mark may follow, but it never outweighs a difference on the first level.
        if (weightA != weightB) return weightA < weightB ? -1 : 1;
    }
    return static_cast<int>(a.size() > shorter) - static_cast<int>(b.size() > shorter);
}

std::string SortKey(std::string_view text) {
    std::string key;
    key.reserve(text.size() + 8);
    bool onlyAscii = true;
    for (const char c : text) {
        const std::uint8_t weight = AsciiWeight(c);
        if (weight == 0) {
            onlyAscii = false;
            break;
        }
        key += static_cast<char>(weight);
    }
    // The key of an ASCII text ends with its first level: its further levels would be the lowest
    // ones.
    if (onlyAscii) return key;

    key.clear();
    ElementReader primaries(text);
    while (const std::uint32_t primary = primaries.NextPrimary()) {
        key += static_cast<char>(primary >> 24);
        if ((primary & 0xFFFFFF) == 0) continue;
        key += static_cast<char>(primary >> 16 & 0xFF);
        key += static_cast<char>(primary >> 8 & 0xFF);
        key += static_cast<char>(primary & 0xFF);
    }
    key += '\1';
    ElementReader secondaries(text);
    while (const std::uint8_t secondary = secondaries.NextSecondary()) {
        key += static_cast<char>(secondary);
    }
    key += '\1';
    for (std::size_t at = 0; at < text.size();)
        AppendUtf8(key, FoldCase(NextCodePoint(text, at)));
    return key;
}

namespace {

constexpr std::size_t rankBytes = sizeof(std::uint64_t);

// Mostly the first level of the key is longer, and the rest of it is not wanted.
std::uint64_t RankBeyondAscii(std::string_view text) {
    std::uint64_t rank = 0;
    std::size_t count = 0;
    ElementReader primaries(text);
    while (const std::uint32_t primary = primaries.NextPrimary()) {
        const int bytes = (primary & 0xFFFFFF) == 0 ? 1 : 4;
        for (int i = 0; i < bytes; ++i) {
            rank = rank << 8 | (primary >> (24 - 8 * i) & 0xFF);
            if (++count == rankBytes) return rank;
        }
    }
    rank = 0;
    const std::string key = SortKey(text);
    for (std::size_t i = 0; i < rankBytes; ++i)
        rank = rank << 8 | (i < key.size() ? static_cast<unsigned char>(key[i]) : 0U);
    return rank;
}

}  // namespace

std::uint64_t SortRank(std::string_view text) {
    std::uint64_t rank = 0;
    for (std::size_t at = 0; at < rankBytes; ++at) {
        const std::uint8_t weight = at < text.size() ? AsciiWeight(text[at]) : std::uint8_t{0};
        if (weight == 0 && at < text.size()) return RankBeyondAscii(text);
        rank = rank << 8 | weight;
    }
    return rank;
}

}  // namespace kivu::text
