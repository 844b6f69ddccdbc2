#pragma once

namespace kivu::platform {

// Windows may be transparent in part: somebody lays them over one another.
bool IsComposited();

}  // namespace kivu::platform
