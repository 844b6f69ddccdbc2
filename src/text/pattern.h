#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kivu::text {

// A file pattern such as "*.adf": "*" stands for any text, the empty one too, "?" for exactly one
// character, and every other character for itself without regard to case. "*.*" means every file,
// also one without a point; the empty pattern matches nothing. The whole name has to match.
class Pattern {
 public:
    explicit Pattern(std::string_view pattern);

    // `name` is a file name without its directory. Does not allocate; at worst the time grows with
    // length of name times length of pattern.
    bool Matches(std::string_view name) const;

 private:
    enum class Kind { Nothing, Everything, Ending, General };

    bool MatchesGenerally(std::string_view name) const;
    bool HasEnding(std::string_view name) const;

    Kind kind = Kind::General;
    std::string ending;              // lower-case ASCII, for Kind::Ending
    std::vector<char32_t> elements;  // folded code points and the two wildcards
};

}  // namespace kivu::text
