#pragma once

#include "tree/source_tree.h"

namespace kivu::tree {

// Classes of src that stand in front of one of platform's services (they are one, and hold a
// reference to another) and leave one of its calls out. A call that has an answer of its own in the
// interface would never reach the host, and no compiler would say so.
Findings UnforwardedCalls(const SourceTree& tree);

}  // namespace kivu::tree
