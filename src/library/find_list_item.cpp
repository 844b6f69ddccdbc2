#include "library/find_list_item.h"

#include <cstdint>

#include "library/search_words.h"
#include "text/text.h"

namespace kivu::library {

namespace {

constexpr int kProbedRows = 61;  // below, the probe costs more than it saves
constexpr int kProbeRounds = 8;

// Rounds to the nearest whole number, halves to the even neighbour.
std::int64_t DivideRounded(std::int64_t number, std::int64_t divisor) {
    std::int64_t quotient = number / divisor;
    std::int64_t rest = number % divisor;
    if (rest < 0) {
        rest += divisor;
        --quotient;
    }
    const bool up = rest * 2 > divisor || (rest * 2 == divisor && quotient % 2 != 0);
    return up ? quotient + 1 : quotient;
}

// Folded; 0 for the empty text.
char32_t FirstCharacter(std::string_view text) {
    if (text.empty()) return 0;
    std::size_t at = 0;
    return text::FoldCase(text::NextCodePoint(text, at));
}

// The row to begin at: far enough ahead to save time, by the first letters alone.
std::int64_t Probe(char32_t wanted, int rowCount, const RowText& row, std::int64_t start) {
    const auto firstOf = [&](std::int64_t index) {
        return index < rowCount ? FirstCharacter(row(static_cast<int>(index))) : 0;
    };
    std::int64_t low = start;
    for (int round = 0; round < kProbeRounds; ++round) {
        if (wanted > firstOf(start)) {
            low = start;
            start += DivideRounded(rowCount - start, 2);
            continue;
        }
        start = DivideRounded(start, 2) + low;
        const std::int64_t nearer = DivideRounded(start, 4) + low;
        if (firstOf(nearer) <= wanted) break;
        start = nearer;
        low = nearer;
    }
    return low;
}

}  // namespace

int FindListItem(std::string_view findstring, int rowCount, const RowText& row, bool UseProbe,
                 int& StartRow) {
    if (StartRow < 0) StartRow = 0;
    if (UseProbe && rowCount >= kProbedRows) {
        const char32_t wanted = FirstCharacter(findstring);
        StartRow = static_cast<int>(Probe(wanted, rowCount, row, StartRow));
    }
    const SearchWord needle(findstring);
    for (int index = StartRow; index < rowCount; ++index) {
        if (needle.IsIn(row(index))) return index;
    }
    return -1;
}

int FindListItem(std::string_view findstring, std::span<const std::string> rows, bool UseProbe,
                 int& StartRow) {
    const auto text = [rows](int row) -> std::string_view {
        return rows[static_cast<std::size_t>(row)];
    };
    return FindListItem(findstring, static_cast<int>(rows.size()), text, UseProbe, StartRow);
}

}  // namespace kivu::library
