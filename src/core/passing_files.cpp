#include "core/passing_files.h"

#include <algorithm>
#include <utility>

namespace kivu::core {

void PassingFiles::Delete(const std::string& path) {
    const auto found = std::find(noted.begin(), noted.end(), path);
    if (found == noted.end()) return;
    noted.erase(found);
    (void)files.DeleteFile(path);
}

void PassingFiles::DeleteAll() {
    for (const std::string& path : std::exchange(noted, {}))
        (void)files.DeleteFile(path);
}

}  // namespace kivu::core
