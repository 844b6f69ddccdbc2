#include "launch/handed_file.h"

#include "text/paths.h"

namespace kivu::launch {

namespace {

bool IsAbsolute(const std::string& path) {
    const bool drive = path.size() > 2 && path[1] == ':' && (path[2] == '\\' || path[2] == '/');
    return drive || path.starts_with('/') || path.starts_with("\\\\");
}

}  // namespace

std::string FileToHandOver(const std::string& commandLine, const platform::FileSystem& files) {
    if (commandLine.find('?') != std::string::npos) return {};
    const std::string path = text::RemoveQuotes(commandLine);
    if (path.empty() || IsAbsolute(path)) return path;
    std::string directory = files.CurrentDirectory();
    if (directory.empty()) return {};
    if (directory.back() != files.Separator()) directory += files.Separator();
    return directory + path;
}

void HandedFile::StartHandedFile(const std::string& path) {
    if (!IsAbsolute(path) || path.find('?') != std::string::npos) {
        log.Write("refused, handed over: " + path);
        return;
    }
    if (!IsFree()) {
        log.Write("not started, no time for it, handed over: " + path);
        beeper.Beep();
        return;
    }
    log.Write("handed over: " + path);
    hooks.LeaveEmulatorBox();
    hooks.SetToNormal();
    form.EmuListbox.SetVisible(false);
    hooks.StartGame(path);
    form.EmuListbox.SetVisible(true);
}

bool HandedFile::IsFree() const {
    return form.WindowReady && form.CurrentEmuIndex >= 0 && !form.EmulatorRuns() && !form.Busy &&
           !hooks.BoxIsOpen();
}

}  // namespace kivu::launch
