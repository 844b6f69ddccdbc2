#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The order of a sorted list box: without regard to case, blank before punctuation and symbols
// (which count), these before digits, digits (one by one, so 10 stands before 9) before letters. An
// accented letter stands beside its base letter, "ß" as "ss"; where two texts differ in nothing
// else, the accents decide from left to right. Latin stands before other Greek, Cyrillic and all
// further scripts, which follow in the order of their code points. The locale plays no part.
namespace kivu::text {

// Below 0, 0 or above 0. A total order; 0 exactly where EqualsNoCase is true. Does not allocate.
int CompareText(std::string_view a, std::string_view b);

// Bytes whose plain order is that of CompareText.
std::string SortKey(std::string_view text);

// The first eight bytes of the sort key as a number.
std::uint64_t SortRank(std::string_view text);

struct TextLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return CompareText(a, b) < 0; }
};

}  // namespace kivu::text
