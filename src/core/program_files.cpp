#include "core/program_files.h"

namespace kivu::core {

std::string ProgramFiles::BaseDirectory() const {
    std::string directory = AppDir;
    if (!directory.empty() && (directory.back() == '\\' || directory.back() == '/'))
        directory.pop_back();
    return directory;
}

}  // namespace kivu::core
