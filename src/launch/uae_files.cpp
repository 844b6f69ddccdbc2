#include "launch/uae_files.h"

#include "core/form1.h"
#include "launch/uae_configuration.h"
#include "support/path_forms.h"
#include "text/command_line.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::launch {

std::string UaeFiles::GetMasterConfig() {
    const std::string path = form.MasterConfigName;
    if (!path.empty() && !files.FileExists(path))
        (void)files.WriteFile(path, DefaultMasterConfiguration());
    return path;
}

void UaeFiles::LogOddPath(const std::string& path) const {
    if (!FitsOneLine(path)) log.Write("refused in the start configuration: " + path);
}

void UaeFiles::WriteStartConfiguration(bool windowsPaths) {
    const auto forEmulator = [windowsPaths](const std::string& path) {
        return windowsPaths ? text::ToWinePath(path) : path;
    };
    UaeStart start;
    std::string master;
    if (!form.MasterConfigName.empty() && files.FileExists(form.MasterConfigName))
        master = files.ReadFile(form.MasterConfigName).value_or("");
    start.master = master;
    start.fullscreen = form.FullscreenCheck.Value() == 1;
    const std::string& rom = form.TxtKickstartRomFile.Text();
    // Only the empty text means that there is no ROM.
    LogOddPath(rom);
    if (!rom.empty()) start.rom = files.EncodeText(forEmulator(std::string(text::Trim(rom))));
    for (std::size_t drive = 0; drive < start.floppies.size(); ++drive) {
        std::string disk = form.DiskSlots[drive];
        if (disk.empty()) continue;
        LogOddPath(disk);
        const std::string path = forEmulator(support::ShortFileName(files, disk));
        start.floppies[drive] = files.EncodeText(text::QuoteIfNeeded(path));
        hooks.Add_CURRENT_PROGRAM_STARTED(disk);
    }
    (void)files.WriteFile(form.StartScriptName, StartConfiguration(start));
}

}  // namespace kivu::launch
