#pragma once

namespace kivu::hosts {

// Windows may be transparent in part: somebody lays them over one another.
bool IsComposited();

}  // namespace kivu::hosts
