#include "hosts/linux/name_index.h"

#include <algorithm>

#include "text/first_match.h"
#include "text/text.h"

namespace kivu::hosts {

// All of it folded.
struct NameIndex::Wish {
    bool Fits(std::string_view key) const {
        return key.size() >= prefix.size() + ending.size() && key.starts_with(prefix) &&
               key.ends_with(ending);
    }

    std::string prefix, ending, preferredStem;
};

NameIndex::NameIndex(const platform::FileSystem::Listing& listing) {
    text.reserve(listing.names.size() * 2);
    std::size_t count = 0;
    for (const auto& item : listing.items)
        count += !item.isDirectory && text::HasPictureEnding(listing.Name(item));
    pictures.reserve(count);
    others.reserve(listing.items.size() - count);
    for (const auto& item : listing.items) {
        const std::string_view name = listing.Name(item);
        Add(name, item.isDirectory               ? directories
                  : text::HasPictureEnding(name) ? pictures
                                                 : others);
    }
    text.shrink_to_fit();
    for (Names* names : {&pictures, &others, &directories}) {
        names->shrink_to_fit();
        Sort(*names);
    }
}

void NameIndex::Add(std::string_view name, Names& names) {
    // No file system has names of 64 KiB, nor directories of 4 GiB of them.
    constexpr std::size_t longest = 0xffff, most = 0xffffffff;
    const std::string key = text::ToLower(name);
    if (name.size() > longest || key.size() > longest || text.size() + 2 * longest > most) return;
    Name added;
    added.name = static_cast<std::uint32_t>(text.size());
    added.length = static_cast<std::uint16_t>(name.size());
    text += name;
    added.key = key == name ? added.name : static_cast<std::uint32_t>(text.size());
    added.keyLength = static_cast<std::uint16_t>(key.size());
    if (key != name) text += key;
    names.push_back(added);
}

void NameIndex::Sort(Names& names) const {
    std::sort(names.begin(), names.end(), [this](const Name& a, const Name& b) {
        const int order = KeyOf(a).compare(KeyOf(b));
        return order != 0 ? order < 0 : NameOf(a) < NameOf(b);
    });
}

NameIndex::Names::const_iterator NameIndex::From(const Names& names, std::string_view key) const {
    return std::lower_bound(
        names.begin(), names.end(), key,
        [this](const Name& name, std::string_view wanted) { return KeyOf(name) < wanted; });
}

// The first whose stem is exactly this one. The prefix may go on behind the stem ("Background.").
const NameIndex::Name* NameIndex::WithStem(const Names& names, std::string_view stem,
                                           const Wish& wish) const {
    if (!stem.starts_with(wish.prefix) && !wish.prefix.starts_with(stem)) return nullptr;
    const auto fits = [&](const Name& name) {
        const std::string_view key = KeyOf(name);
        return text::StemOf(key) == stem && wish.Fits(key);
    };
    for (auto at = From(names, stem); at != names.end() && KeyOf(*at) == stem; ++at)
        if (fits(*at)) return &*at;
    const std::string pointed = std::string(stem) + '.';
    for (auto at = From(names, pointed); at != names.end() && KeyOf(*at).starts_with(pointed); ++at)
        if (fits(*at)) return &*at;
    return nullptr;
}

const NameIndex::Name* NameIndex::First(const Names& names, const Wish& wish) const {
    if (const Name* same = WithStem(names, wish.prefix, wish)) return same;
    if (const Name* own = WithStem(names, wish.preferredStem, wish)) return own;
    for (auto at = From(names, wish.prefix);
         at != names.end() && KeyOf(*at).starts_with(wish.prefix); ++at) {
        if (wish.Fits(KeyOf(*at))) return &*at;
    }
    return nullptr;
}

std::optional<std::string_view> NameIndex::FirstFile(std::string_view prefix,
                                                     std::string_view ending,
                                                     std::string_view preferredStem) const {
    const Wish wish{text::ToLower(prefix), text::ToLower(ending), text::ToLower(preferredStem)};
    const Name* found = First(pictures, wish);
    // No other file ends as a picture does.
    if (!found && !text::HasPictureEnding(ending)) found = First(others, wish);
    return found ? std::optional(NameOf(*found)) : std::nullopt;
}

std::optional<std::string_view> NameIndex::Directory(std::string_view name) const {
    const std::string key = text::ToLower(name);
    const auto found = From(directories, key);
    if (found == directories.end() || KeyOf(*found) != key) return std::nullopt;
    return NameOf(*found);
}

std::size_t NameIndex::Bytes() const {
    return sizeof(*this) + text.capacity() +
           (pictures.capacity() + others.capacity() + directories.capacity()) * sizeof(Name);
}

}  // namespace kivu::hosts
