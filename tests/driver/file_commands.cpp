// What others do on the disk while the launcher runs.

#include <algorithm>
#include <system_error>

#include "driver/commands.h"

namespace kivu::driver {

namespace {

bool IsAbsolute(const std::string& path) {
    const bool drive = path.size() >= 2 && path[1] == ':';
    return drive || path.starts_with('/') || path.starts_with('\\');
}

std::string PathFrom(Session& session, const Json& value) {
    std::string path = TextFrom(value, "the path");
    if (path.empty()) throw CommandError("the path must not be empty");
    const char separator = session.files.Separator();
    std::replace(path.begin(), path.end(), '/', separator);
    return IsAbsolute(path) ? path : session.programDirectory + separator + path;
}

void Check(const std::error_code& error, const std::string& path) {
    if (error) throw CommandError(path + ": " + error.message());
}

void MakeDirectoriesAbove(platform::FileSystem& files, const std::string& path) {
    for (std::size_t i = 1; i < path.size(); ++i) {
        if (path[i] == files.Separator()) (void)files.MakeDirectory(path.substr(0, i));
    }
}

Json File(Session& session, const Json& command) {
    const std::string& action = TextFrom(command[1], "the action");
    const std::string path = PathFrom(session, command[2]);
    platform::FileSystem& files = session.files;
    if (action == "write" && command.size() == 4) {
        const std::string& text = TextFrom(command[3], "the text");
        MakeDirectoriesAbove(files, path);
        Check(files.WriteFile(path, files.EncodeText(text)), path);
    } else if (action == "remove" && command.size() == 3) {
        Check(files.DeleteFile(path), path);
    } else {
        throw CommandError("file takes \"write\", path, text or \"remove\", path");
    }
    return Json::object();
}

// A fault stays until the disk is fine again.
Json Disk(Session& session, const Json& command) {
    const std::string& state = TextFrom(command[1], "the state");
    testing::FaultyFileSystem& disk = session.disk;
    const bool fine = state == "fine";
    if ((!fine && state != "full" && state != "read-only") || (fine && command.size() > 2))
        throw CommandError(
            "disk takes \"full\" or \"read-only\", each with a part of paths, or "
            "\"fine\"");
    disk.Heal();
    disk.OnlyFor(command.size() > 2 ? TextFrom(command[2], "the part") : "");
    if (state == "full") disk.FillDisk();
    if (state == "read-only") disk.MakeReadOnly();
    return Json::object();
}

}  // namespace

const std::vector<Command>& FileCommands() {
    static const std::vector<Command> commands{{"file", 2, 3, false, File},
                                               {"disk", 1, 2, false, Disk}};
    return commands;
}

}  // namespace kivu::driver
