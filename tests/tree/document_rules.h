#pragma once

#include <functional>

#include "tree/source_tree.h"

namespace kivu::tree {

// Whether a file or directory of that path, from the tree's root, is there: also one that is no
// text.
using IsThere = std::function<bool(const std::string& path)>;

// Links and pictures of the documents (*.md) that lead to no file, or to no heading of one.
Findings DeadLinks(const SourceTree& tree, const IsThere& isThere);

// Those of the pictures that no document shows.
Findings UnusedPictures(const SourceTree& tree, const std::vector<std::string>& pictures);

// Chapters of the book that have no other one with their number in each of the languages, that
// show other pictures than that one, or that the book's contents leave out.
Findings UnpairedChapters(const SourceTree& tree);

// Keys of the profiles' table that docs/profiles.md does not tell.
Findings UntoldKeys(const SourceTree& tree);

// The picture files below a directory of the tree, from the tree's root.
std::vector<std::string> PicturesBelow(const std::string& root, const std::string& directory);

}  // namespace kivu::tree
