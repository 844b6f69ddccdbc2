#pragma once

#include <optional>
#include <string_view>

namespace kivu::text {

// Stored paths of one base. Those that begin like a sample become absolute by one and the same
// start, with what is left of each behind it: so their order is told without making a single one
// absolute, as most caches hold paths that all begin alike.
class StoredPaths {
 public:
    StoredPaths(std::string_view base, std::string_view sample);

    // What is left of the text; nothing for one that begins otherwise or may become absolute in
    // another way.
    std::optional<std::string_view> Rest(std::string_view text) const;

 private:
    bool IsPlain(std::string_view rest) const;

    bool posix;
    bool drive = false;      // the sample is absolute by its drive
    std::string_view begin;  // of the sample
};

}  // namespace kivu::text
