#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace kivu::hosts {

// The names of one directory in the order of their folded bytes, for look-ups by how they begin.
// Never changes, so threads may share it.
class NameIndex {
 public:
    explicit NameIndex(const platform::FileSystem::Listing& listing);

    // As platform::FileSystem::FirstMatch. The answer is valid as long as the index.
    std::optional<std::string_view> FirstFile(std::string_view prefix, std::string_view ending,
                                              std::string_view preferredStem) const;
    // Without regard to case.
    std::optional<std::string_view> Directory(std::string_view name) const;

    std::size_t Bytes() const;

 private:
    struct Name {
        std::uint32_t key = 0, name = 0;  // where they begin in `text`
        std::uint16_t keyLength = 0, length = 0;
    };
    using Names = std::vector<Name>;
    struct Wish;

    void Add(std::string_view name, Names& names);
    void Sort(Names& names) const;
    std::string_view KeyOf(const Name& name) const {
        return std::string_view(text).substr(name.key, name.keyLength);
    }
    std::string_view NameOf(const Name& name) const {
        return std::string_view(text).substr(name.name, name.length);
    }
    Names::const_iterator From(const Names& names, std::string_view key) const;
    const Name* WithStem(const Names& names, std::string_view stem, const Wish& wish) const;
    const Name* First(const Names& names, const Wish& wish) const;

    std::string text;  // names and, where they differ, their folded forms
    Names pictures, others, directories;
};

}  // namespace kivu::hosts
