#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace kivu::library {

// Many texts looked for at once: for each, the first row that contains it, -1 for none. The cost is
// that of two passes over the rows, however many the texts are: each text waits at its own rarest
// four bytes, which most rows do not hold.
//
// `row` is asked for rows in order; `turn` is called now and then with what is asked next, and
// stops the search with false: the answer is then empty.
std::vector<int> FirstRowsWith(const std::vector<std::string>& texts, int rowCount,
                               const std::function<const std::string&(int row)>& row,
                               const std::function<bool(int row)>& turn);

}  // namespace kivu::library
