#pragma once

#include "tree/source_tree.h"

namespace kivu::tree {

// Logic includes the C++ standard library and the project's own files: no window toolkit, no
// operating system, no library. Only src/view, src/app and the hosts below src/platform may.
// src/png/filters_sse2.cpp may include the header of its instruction set.
Findings ForeignIncludes(const SourceTree& tree);

// What each folder may include of the project:
// src/forms and src/png themselves; src/view itself and forms; the interfaces directly in
// src/platform each other and text.
Findings ForbiddenNeighbours(const SourceTree& tree);

// Only src/app, tests and bench pick a host: nobody else includes platform/linux, platform/windows
// or platform/qt, but for each of these itself.
Findings PickedHosts(const SourceTree& tree);

// Circles of includes between the folders of src, each with a file for every step. The hosts below
// src/platform are folders of their own.
Findings Circles(const SourceTree& tree);

}  // namespace kivu::tree
