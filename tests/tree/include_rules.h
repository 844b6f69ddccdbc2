#pragma once

#include "tree/source_tree.h"

namespace kivu::tree {

// Logic includes the C++ standard library and the project's own files: no window toolkit, no
// operating system, no library. Only src/view, src/app and src/hosts may.
// src/png/filters_sse2.cpp may include the header of its instruction set.
Findings ForeignIncludes(const SourceTree& tree);

// What each folder may include of the project:
// forms, png and text themselves; platform itself and text; view itself and forms; each host below
// hosts itself, text and platform.
Findings ForbiddenNeighbours(const SourceTree& tree);

// Only src/app, tests and bench pick a host: nobody else includes hosts/linux, hosts/windows or
// hosts/qt, but for each of these itself.
Findings PickedHosts(const SourceTree& tree);

// Circles of includes between the folders of src, each with a file for every step. The hosts are
// folders of their own.
Findings Circles(const SourceTree& tree);

// The rooms that docs/tree.md lists, in its order.
std::vector<std::string> ListedRooms(const SourceTree& tree);

// Includes that do not go to the same room or upwards in that list, rooms that it leaves out, and
// rooms in it that are not there.
Findings OutOfOrder(const SourceTree& tree);

}  // namespace kivu::tree
