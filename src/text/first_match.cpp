#include "text/first_match.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/text.h"

namespace kivu::text {

bool HasPictureEnding(std::string_view name) {
    static constexpr std::array<std::string_view, 7> endings{"png", "jpg", "jpeg", "gif",
                                                             "bmp", "ico", "webp"};
    const auto point = name.rfind('.');
    return point != std::string_view::npos &&
           std::any_of(endings.begin(), endings.end(), [&](std::string_view ending) {
               return EqualsNoCase(name.substr(point + 1), ending);
           });
}

std::string_view StemOf(std::string_view name) {
    const auto point = name.rfind('.');
    return point == std::string_view::npos || point == 0 ? name : name.substr(0, point);
}

bool ComesFirst(std::string_view a, std::string_view b, std::string_view prefix,
                std::string_view preferredStem) {
    const auto rank = [&](std::string_view name) {
        const std::string_view stem = StemOf(name);
        const int distance = EqualsNoCase(stem, prefix)          ? 0
                             : EqualsNoCase(stem, preferredStem) ? 1
                                                                 : 2;
        return std::pair(!HasPictureEnding(name), distance);
    };
    const auto rankA = rank(a);
    const auto rankB = rank(b);
    if (rankA != rankB) return rankA < rankB;
    const std::string foldedA = ToLower(a);
    const std::string foldedB = ToLower(b);
    return foldedA != foldedB ? foldedA < foldedB : a < b;
}

bool MatchesAround(std::string_view name, std::string_view prefix, std::string_view ending) {
    const std::string folded = ToLower(name);
    const std::string begin = ToLower(prefix);
    const std::string end = ToLower(ending);
    return folded.size() >= begin.size() + end.size() && folded.starts_with(begin) &&
           folded.ends_with(end);
}

}  // namespace kivu::text
