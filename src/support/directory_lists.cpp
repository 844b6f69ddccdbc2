#include "support/directory_lists.h"

#include <utility>

namespace kivu::support {

bool DirectoryLists::Read(const std::string& path, std::vector<std::string_view>* directories,
                          std::vector<std::string_view>* names) {
    auto listing = files.ReadDirectory(path);
    if (!listing) return false;
    last = *std::move(listing);
    Show(last, directories, names);
    return true;
}

void DirectoryLists::Show(const Listing& listing, std::vector<std::string_view>* directories,
                          std::vector<std::string_view>* names) {
    for (std::vector<std::string_view>* list : {directories, names}) {
        if (!list) continue;
        list->clear();
        list->reserve(listing.items.size());
        for (const Listing::Item& item : listing.items) {
            if (item.isDirectory == (list == directories)) list->push_back(listing.Name(item));
        }
    }
}

bool DirectoryLists::Matches(const std::string& text, std::string_view name) {
    if (text != patternText) {
        patternText = text;
        pattern = text::Pattern(text);
    }
    return pattern.Matches(name);
}

}  // namespace kivu::support
