#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace kivu::library {

// Text of a row of a list; called only for rows in range.
using RowText = std::function<std::string_view(int row)>;

// The first row at or behind `StartRow` that contains `findstring` anywhere, without regard to
// case, or -1. With `UseProbe`, for a sorted list of 61 rows or more, the search first jumps ahead
// by the first letters alone; it can jump past a row that only contains the text further on.
// `StartRow` comes back as the row that the search really began at, 0 or more.
int FindListItem(std::string_view findstring, int rowCount, const RowText& row, bool UseProbe,
                 int& StartRow);
int FindListItem(std::string_view findstring, std::span<const std::string> rows, bool UseProbe,
                 int& StartRow);

}  // namespace kivu::library
