#pragma once

#include <array>
#include <cstdint>

namespace kivu::text::detail {

// A small letter and the accents that make another one of it, as Unicode takes that one apart.
struct AccentedLetter {
    char16_t letter;
    char16_t base;
    std::array<char16_t, 2> marks;  // 0: none
};

// A character that is sorted as one or two others. `rank` sets it apart from them and from its
// fellows where all else is equal; it stands in the place of an accent.
struct Ligature {
    char16_t letter;
    std::array<char16_t, 2> parts;  // 0: none
    std::uint8_t rank;
};

// Null: the character is not in the table. Only small letters are.
const AccentedLetter* FindAccentedLetter(char32_t codePoint);
const Ligature* FindLigature(char32_t codePoint);

}  // namespace kivu::text::detail
