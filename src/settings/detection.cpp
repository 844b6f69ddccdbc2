#include "settings/detection.h"

#include <algorithm>
#include <array>

#include "settings/boxes.h"
#include "settings/linux_emulators.h"
#include "support/path_forms.h"
#include "text/command_line.h"
#include "text/text.h"

namespace kivu::settings {

namespace {

using platform::Buttons;
using platform::Icon;

constexpr std::array<std::string_view, 4> gameFolders{"Roms", "Rom", "Disks", "Games"};

Box UnknownQuestion(const core::ProgramState& program) {
    return {program.Say("Emulator nicht bekannt, die Start-Parameter müssen ggf. von Hand "
                        "eingestellt werden.\r\r"
                        "Sollen die Standard Parameter zurück gesetzt werden?",
                        "Unknown Emulator. You have to set the launch parameter manually.\r\r"
                        "Set parameter back to default now?"),
            program.Say("Emulator nicht bekannt", "Unknown Emulator"), Buttons::YesNo,
            Icon::Question};
}

// With a closing separator; empty for a bare name, and for a directory of programs.
std::string GameBase(const std::string& exePath, const platform::FileSystem& files,
                     const SearchPathTest& isSearchPath) {
    if (exePath.find_first_of("/\\") == std::string::npos) return {};
    const std::string directory = support::DirectoryOf(files, exePath);
    if (directory.empty() || (isSearchPath && isSearchPath(directory))) return {};
    return text::AddPathSeparator(directory);
}

bool HoldsFile(const platform::FileSystem& files, const std::string& directory) {
    const auto entries = files.ListDirectory(directory);
    return entries && std::any_of(entries->begin(), entries->end(),
                                  [](const auto& entry) { return !entry.isDirectory; });
}

}  // namespace

Box KnownQuestion(std::string_view display, std::string_view titlePrefix,
                  const core::ProgramState& program) {
    Box box;
    box.text.append(display).append(
        program.Say("wurde gefunden!\r\rSollen die Standard Launch parameter gesetzt werden?",
                    "found!\r\rSet the default launch - parameter for this program?"));
    box.title.append(titlePrefix).append(program.Say("Standard setzen?", "set defaults?"));
    box.buttons = Buttons::YesNo;
    box.icon = Icon::Question;
    return box;
}

Detection DetectEmulator(const std::string& exePath, const core::ProgramState& program, bool posix,
                         const text::PathTest& fileExists) {
    Detection detection;
    detection.first = {{Field::SecondsTimerTxt, "0"}};
    detection.path = exePath;
    if (const KnownEmulator* known = FindKnownEmulator(exePath)) {
        const bool mame32 = text::ToLower(exePath).find("mame32.exe") != std::string::npos;
        if (mame32 && known == FindKnownEmulator("mame32.exe"))
            detection.warning = Mame32Warning(program);
        detection.question = KnownQuestion(known->display, known->titlePrefix, program);
        detection.onYes = AssignmentsOf(*known);
        return detection;
    }
    const bool native = posix && !text::IsWindowsProgram(exePath);
    if (const LinuxMatch match = native ? FindLinuxEmulator(exePath) : LinuxMatch{};
        match.emulator != nullptr) {
        detection.question = KnownQuestion(std::string(match.name) + " ", {}, program);
        detection.onYes = LinuxAssignments(match.emulator->row);
    } else if (!exePath.empty() && fileExists(exePath)) {
        detection.question = UnknownQuestion(program);
        detection.onYes = EmulatorDefaults();
    }
    return detection;
}

std::optional<std::string> RomPathBesideProgram(const std::string& romPath,
                                                const std::string& appDirectory,
                                                const std::string& exePath,
                                                const platform::FileSystem& files,
                                                const SearchPathTest& isSearchPath) {
    if (romPath != appDirectory) return {};
    std::string base = GameBase(exePath, files, isSearchPath);
    if (base.empty()) return {};
    return base;
}

// Only files count: a folder that holds nothing but folders is passed over.
std::optional<std::string> GuessRomPath(const std::string& exePath,
                                        const platform::FileSystem& files,
                                        const SearchPathTest& isSearchPath) {
    const std::string base = GameBase(exePath, files, isSearchPath);
    if (base.empty()) return {};
    for (const std::string_view name : gameFolders) {
        const auto folder = files.FindDirectory(base, name);
        const std::string candidate = folder ? base + *folder + base.back() : std::string();
        if (folder && HoldsFile(files, candidate)) return candidate;
    }
    return base;
}

}  // namespace kivu::settings
