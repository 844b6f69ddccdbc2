#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kivu::text {

// png, jpg, jpeg, gif, bmp, ico or webp, without regard to case.
bool HasPictureEnding(std::string_view name);

// The name without what follows its last point; one that only begins with a point is whole.
std::string_view StemOf(std::string_view name);

// Whether `a` is shown rather than `b`: pictures come first, then a name whose stem is `prefix`,
// then one whose stem is `preferredStem`, both without regard to case, then the order of the folded
// bytes.
bool ComesFirst(std::string_view a, std::string_view b, std::string_view prefix,
                std::string_view preferredStem);

// Begins and ends so, without regard to case; the two do not overlap.
bool MatchesAround(std::string_view name, std::string_view prefix, std::string_view ending);

}  // namespace kivu::text
