#include "support/writable.h"

namespace kivu::support {

bool CanWriteIn(platform::FileSystem& files, const std::string& directory) {
    constexpr int mostNames = 100;
    const bool closed = directory.ends_with('/') || directory.ends_with(files.Separator());
    const std::string inside = closed ? directory : directory + files.Separator();
    for (int number = 0; number < mostNames; ++number) {
        const std::string probe = inside + "Kivu" + std::to_string(number) + ".tmp";
        if (files.FileExists(probe) || files.IsDirectory(probe) || files.IsLink(probe)) continue;
        // Appending waits for no disk, and every start asks.
        const bool written = !files.AppendFile(probe, "-");
        // Also where it is there and empty: a full disk makes it and takes no byte.
        (void)files.DeleteFile(probe);
        return written;
    }
    return false;
}

}  // namespace kivu::support
