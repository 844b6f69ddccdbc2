#include "launch/handed_file.h"

#include "core/form1.h"
#include "core/shut_down.h"
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

bool HandedFile::HandOver() {
    const std::string file = FileToHandOver(commandLine, services.files);
    if (!services.instance.HandOver(form.Caption(), file)) return false;
    routines.shutDown.EndProgram();
    return true;
}

void HandedFile::StartHandedFile(const std::string& path) {
    if (!IsAbsolute(path) || path.find('?') != std::string::npos) {
        services.log.Write("refused, handed over: " + path);
        return;
    }
    if (!IsFree()) {
        services.log.Write("not started, no time for it, handed over: " + path);
        services.beeper.Beep();
        return;
    }
    services.log.Write("handed over: " + path);
    // The loaded emulator starts it, whatever row of the choice has been looked at.
    routines.choice.LeaveChoice();
    routines.alwaysOnTop.SetToNormal();
    form.EmuListbox.SetVisible(false);
    routines.launching.StartGame(path);
    form.EmuListbox.SetVisible(true);
}

bool HandedFile::IsFree() const {
    return form.WindowReady && form.CurrentEmuIndex >= 0 && !form.EmulatorRuns() && !form.Busy &&
           !hooks.BoxIsOpen();
}

}  // namespace kivu::launch
