#include "core/profile_paths.h"

#include "text/stored_paths.h"

namespace kivu::core {

std::string PathOfProfile(const ProgramFiles& program, const platform::FileSystem& files,
                          const std::string& stored) {
    return text::ProfilePath(program.BaseDirectory(), stored, [&](const std::string& path) {
        return files.FileExists(path) || files.IsDirectory(path);
    });
}

std::string ProgramOfProfile(const ProgramFiles& program, const platform::FileSystem& files,
                             const std::string& stored) {
    std::string path = PathOfProfile(program, files, stored);
    const bool bareName = !stored.empty() && stored.find_first_of("/\\") == std::string::npos;
    const bool posix = files.Separator() == '/';
    return bareName && posix && !files.FileExists(path) ? stored : path;
}

}  // namespace kivu::core
