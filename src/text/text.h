#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Text as the launcher holds it: UTF-8 by intention, any bytes in fact, because a file name keeps
// its bytes. Nothing here fails, throws (but for memory), looks at the locale or stops at a NUL.
namespace kivu::text {

struct DecodedCodePoint {
    char32_t codePoint = 0;
    std::uint8_t length = 1;  // bytes taken, 1 to 4
    bool isUtf8 = true;       // false: one byte that is not UTF-8, read as Windows-1252
};

// The code point that begins at byte `at`, which must lie inside the text.
DecodedCodePoint DecodeAt(std::string_view text, std::size_t at);

// The code point at byte `at`, which must lie inside the text; moves `at` behind it.
char32_t NextCodePoint(std::string_view text, std::size_t& at);

// A surrogate or a value above U+10FFFF is appended as U+FFFD.
void AppendUtf8(std::string& text, char32_t codePoint);

// No overlong forms, no surrogates, nothing above U+10FFFF. The empty text is UTF-8.
bool IsUtf8(std::string_view text);

// Every byte as its Windows-1252 character. The five bytes without one stand for U+0081 and so on.
[[nodiscard]] std::string FromWindows1252(std::string_view bytes);

// Characters outside of Windows-1252 become `replacement`; bytes that are not UTF-8 stay as they
// are.
[[nodiscard]] std::string ToWindows1252(std::string_view text, char replacement = '?');

// A byte that is not UTF-8 counts as one.
std::size_t CodePointCount(std::string_view text);

// The byte position of the code point number `index` (from 0), or the size of a shorter text.
std::size_t CodePointOffset(std::string_view text, std::size_t index);

namespace detail {
char32_t FoldCaseBeyondAscii(char32_t codePoint);
}

// The lower-case letter of a Latin, Greek, Cyrillic, Armenian or full-width capital, any other code
// point unchanged. One to one: no letter becomes two, and none outside of ASCII becomes one of
// ASCII.
inline char32_t FoldCase(char32_t codePoint) {
    if (codePoint < 0x80) return codePoint - U'A' < 26 ? codePoint + 32 : codePoint;
    return detail::FoldCaseBeyondAscii(codePoint);
}

inline char ToLowerAscii(char c) {
    return static_cast<unsigned char>(c - 'A') < 26 ? static_cast<char>(c + 32) : c;
}

// Each code point folded; bytes that are not UTF-8 pass through unchanged.
[[nodiscard]] std::string ToLower(std::string_view text);

// Only a to z; every other byte stays.
[[nodiscard]] std::string ToUpperAscii(std::string_view text);

// Code point by code point, each folded; a byte that is not UTF-8 counts as its Windows-1252
// letter.
bool EqualsNoCase(std::string_view a, std::string_view b);

// Every text contains the empty one. For one needle in many rows use NoCaseNeedle.
bool ContainsNoCase(std::string_view text, std::string_view needle);

// A text to be looked for in many others without regard to case; folds the needle once and does not
// allocate in the search.
class NoCaseNeedle {
 public:
    explicit NoCaseNeedle(std::string_view needle);
    bool IsIn(std::string_view text) const;

 private:
    std::vector<char32_t> needle;
    bool startsInAscii = false;
};

// Takes away blanks (the character 32) at both ends, and nothing else: tabs and line ends stay, as
// they do in the source language's Trim.
[[nodiscard]] std::string_view Trim(std::string_view text);
[[nodiscard]] std::string_view TrimLeft(std::string_view text);
[[nodiscard]] std::string_view TrimRight(std::string_view text);

// The decimal number that a profile value begins with, blanks and tabs in front of it passed over;
// what follows the number does not matter. A fraction behind "." or "," is rounded, halves to the
// even neighbour. Empty: the text does not begin with a number, or the number does not fit 16 bits.
std::optional<std::int16_t> ToNumber(std::string_view text);

// The same for 32 bits: window and layout measures in twips outgrow 16.
std::optional<std::int32_t> ToWideNumber(std::string_view text);

// The text's lines without their CR LF or LF, as views into it. A lone CR does not end a line; an
// end of line at the end of the text begins no further line.
std::vector<std::string_view> SplitLines(std::string_view text);

// The parts between separators, empty ones included, as views; none for the empty text.
std::vector<std::string_view> Split(std::string_view text, char separator);

}  // namespace kivu::text
