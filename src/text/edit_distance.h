#pragma once

#include <string_view>

namespace kivu::text {

// The least number of insertions, deletions, substitutions and swaps of two neighbours that turn
// one text into the other, no part being changed twice (optimal string alignment); by code points,
// with regard to case. A distance above `limit` comes back as `limit`, and is not worked out to its
// end: a small limit makes it much cheaper. A limit below 0 counts as 0.
int EditDistance(std::string_view a, std::string_view b, int limit);

// With no more limit than the sum of both lengths.
int EditDistance(std::string_view a, std::string_view b);

}  // namespace kivu::text
