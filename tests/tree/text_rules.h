#pragma once

#include "tree/source_tree.h"

namespace kivu::tree {

inline constexpr std::size_t mostLines = 400;

// Code and build files of src, tests and bench with more than mostLines lines. Generated tables
// that nobody reads are passed over by name; a name that is not in the tree is a finding too.
Findings LongFiles(const SourceTree& tree, const std::vector<std::string>& generated);

// Headers without "#pragma once" as their first directive.
Findings UnguardedHeaders(const SourceTree& tree);

// Decisions in the files that join events and wishes to the routines, where none belongs: a routine
// takes them, which can be tested by itself.
Findings DecidingJoins(const SourceTree& tree);

// Mentions of papers that a reader of the tree does not have, in texts and file names. The code is
// to be understood by itself.
Findings UnreadableReferences(const SourceTree& tree);

}  // namespace kivu::tree
