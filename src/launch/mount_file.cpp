#include "launch/mount_file.h"

#include "launch/start_parameters.h"
#include "text/command_line.h"
#include "text/endings.h"
#include "text/paths.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::launch {

namespace {

constexpr std::string_view unmountTail = " -unmount 0";
constexpr std::string_view mountTail = "   -mount 0, ";

std::string Joined(std::string_view first, std::string_view middle, std::string_view last = {}) {
    return std::string(first).append(middle).append(last);
}

// Another command processor runs it, and reads what is handed to it once more.
bool IsBatch(std::string_view tool) {
    return text::EndsWithNoCase(tool, ".bat") || text::EndsWithNoCase(tool, ".cmd");
}

HelperCommand Command(std::vector<std::string> words) {
    HelperCommand command{"", std::move(words)};
    for (const std::string& word : command.words)
        command.command += (command.command.empty() ? "" : " ") + text::QuoteIfNeeded(word);
    return command;
}

std::vector<HelperCommand> ToldCommands(const std::string& tool, const std::string& game) {
    const std::string program = text::QuoteIfNeeded(tool);
    return {{Joined(program, unmountTail), {tool, "-unmount", "0"}},
            {Joined(program, mountTail, text::QuoteIfNeeded(game)), {tool, "-mount", "0,", game}}};
}

std::vector<HelperCommand> WineCommands(const std::string& tool, const std::string& game) {
    return {Command({"wine", tool, "-unmount", "0"}),
            Command({"wine", tool, "-mount", "0,", text::ToWinePath(game)})};
}

std::vector<HelperCommand> ShellCommands(const std::string& tool, const std::string& game,
                                         const std::string& fuseisoPlace) {
    if (text::IsWindowsProgram(tool)) return WineCommands(tool, game);
    const std::string name = text::GetFileNameOnly(tool);
    if (name == "cdemu")
        return {Command({tool, "unload", "0"}), Command({tool, "load", "0", game})};
    if (name == "fuseiso")
        return {Command({"fusermount", "-u", fuseisoPlace}),
                Command({tool, "-p", game, fuseisoPlace})};
    return ToldCommands(tool, game);
}

}  // namespace

MountFile MountFileForCmd(const std::string& tool, const std::string& game) {
    MountFile file;
    file.commands = ToldCommands(tool, game);
    const bool batch = IsBatch(tool);
    if (batch && (!text::IsPlainForCmd(tool) || !text::IsPlainForCmd(game))) {
        file.way = MountFile::Way::refused;
        return file;
    }
    bool safe = true;
    // Without "call" the second line would never run.
    const std::string program = (batch ? "call " : "") + BatchWord(text::QuoteIfNeeded(tool), safe);
    const std::string image = BatchWord(text::QuoteIfNeeded(game), safe);
    file.text = Joined(program, unmountTail, "\r\n") + Joined(program, mountTail, image) + "\r\n";
    if (!safe) file.way = batch ? MountFile::Way::refused : MountFile::Way::direct;
    return file;
}

MountFile MountFileForShell(const std::string& tool, const std::string& game,
                            const std::string& fuseisoPlace) {
    MountFile file;
    file.commands = ShellCommands(tool, game, fuseisoPlace);
    bool safe = true;
    // What Wine hands to a batch file is read by a command processor.
    for (const std::string& path : {tool, game}) {
        if (IsBatch(tool)) safe = safe && text::IsPlainForCmd(path) && text::EscapeForCmd(path);
    }
    if (!safe) file.way = MountFile::Way::refused;
    for (const HelperCommand& command : file.commands) {
        std::string line;
        for (const std::string& word : command.words)
            line += (line.empty() ? "" : " ") + text::QuoteForShell(word);
        file.text += line + "\n";
    }
    return file;
}

std::string FuseisoPlace(const std::string& runtimeDirectory, const std::string& startPfad) {
    if (!runtimeDirectory.empty()) return text::AddPathSeparator(runtimeDirectory) + "kivu-cd0";
    return text::AddPathSeparator(startPfad) + "cd0";
}

std::optional<std::string> FindMountTool(const std::string& setting,
                                         const std::string& programDirectory,
                                         const platform::FileSystem& files,
                                         const platform::ProgramStarter& starter) {
    const std::string tool = text::RemoveQuotes(setting);
    if (tool.empty()) return std::nullopt;
    // What is named from the root is meant so, whatever lies below the program's directory.
    if (tool.starts_with('/') && files.FileExists(tool)) return tool;
    std::string_view base = programDirectory;
    if (base.size() > 1 && (base.ends_with('/') || base.ends_with('\\'))) base.remove_suffix(1);
    const std::string below = text::StoredPath(base, tool);
    if (files.FileExists(below)) return below;
    if (!starter.UsesShell() || tool.find('/') != std::string::npos) return std::nullopt;
    const std::string found = starter.FindInPath(tool);
    if (found.empty()) return std::nullopt;
    return found;
}

}  // namespace kivu::launch
