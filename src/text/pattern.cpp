#include "text/pattern.h"

#include <algorithm>

#include "text/text.h"

namespace kivu::text {

namespace {

// Above all code points, so that a name cannot hold them.
constexpr char32_t kAnyText = 0x110000;
constexpr char32_t kAnyCharacter = 0x110001;

}  // namespace

Pattern::Pattern(std::string_view pattern) {
    for (std::size_t at = 0; at < pattern.size();) {
        const char32_t c = FoldCase(NextCodePoint(pattern, at));
        const char32_t element = c == U'*' ? kAnyText : c == U'?' ? kAnyCharacter : c;
        if (element == kAnyText && !elements.empty() && elements.back() == kAnyText) continue;
        elements.push_back(element);
    }
    if (elements.empty()) {
        kind = Kind::Nothing;
    } else if (pattern == "*.*" || (elements.size() == 1 && elements[0] == kAnyText)) {
        kind = Kind::Everything;
    } else if (elements[0] == kAnyText) {
        const auto isPlainAscii = [](char32_t element) { return element < 0x80; };
        if (std::all_of(elements.begin() + 1, elements.end(), isPlainAscii)) {
            kind = Kind::Ending;
            ending.assign(elements.begin() + 1, elements.end());
        }
    }
}

bool Pattern::Matches(std::string_view name) const {
    switch (kind) {
        case Kind::Nothing:
            return false;
        case Kind::Everything:
            return true;
        case Kind::Ending:
            return HasEnding(name);
        case Kind::General:
            break;
    }
    return MatchesGenerally(name);
}

// Bytes are enough: nothing but ASCII folds into ASCII, and no part of a longer sequence looks like
// it.
bool Pattern::HasEnding(std::string_view name) const {
    if (name.size() < ending.size()) return false;
    name.remove_prefix(name.size() - ending.size());
    for (std::size_t i = 0; i < ending.size(); ++i) {
        if (ToLowerAscii(name[i]) != ending[i]) return false;
    }
    return true;
}

// Only the last "*" met is ever widened: what an earlier one could take as well, it need not.
bool Pattern::MatchesGenerally(std::string_view name) const {
    std::size_t at = 0;
    std::size_t element = 0;
    bool hasStar = false;
    std::size_t behindStar = 0;  // element
    std::size_t starEnd = 0;     // place in the name up to which the "*" reaches
    while (at < name.size()) {
        std::size_t next = at;
        const char32_t c = FoldCase(NextCodePoint(name, next));
        if (element < elements.size() && elements[element] == kAnyText) {
            hasStar = true;
            behindStar = ++element;
            starEnd = at;
        } else if (element < elements.size() &&
                   (elements[element] == kAnyCharacter || elements[element] == c)) {
            ++element;
            at = next;
        } else if (hasStar) {
            NextCodePoint(name, starEnd);
            at = starEnd;
            element = behindStar;
        } else {
            return false;
        }
    }
    while (element < elements.size() && elements[element] == kAnyText)
        ++element;
    return element == elements.size();
}

}  // namespace kivu::text
