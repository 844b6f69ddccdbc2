#include "launch/start_helpers.h"

#include "core/emulator_paths.h"
#include "core/form1.h"
#include "launch/refused_name.h"
#include "launch/start_script.h"
#include "launch/wait.h"
#include "text/command_line.h"
#include "text/paths.h"

namespace kivu::launch {

namespace keys = profile::keys;

namespace {

// As much of a script as its first line may be long on the systems that run one by it.
constexpr std::size_t longestFirstLine = 4096;

std::string HeadOf(const platform::FileSystem& files, const std::string& path) {
    std::string head(longestFirstLine, '\0');
    const auto file = files.OpenFile(path);
    std::size_t length = 0;
    while (file && length < head.size()) {
        const std::size_t read = file->Read(head.data() + length, head.size() - length);
        if (read == 0) break;
        length += read;
    }
    head.resize(length);
    return head;
}

}  // namespace

std::string StartHelpers::ToolSetting() {
    const auto profiles = core::ProfilesOf(form);
    const std::string ofProgram = ini.Read(keys::DeamonToolPath, profiles);
    if (!text::RemoveQuotes(ofProgram).empty()) return ofProgram;
    return ini.Read(keys::DeamonToolPathOfEmulator, profiles);
}

bool StartHelpers::MountGameImage(const std::string& GamePath) {
    // A name may end in a blank; trimmed, it would be another one.
    const bool plain = services.files.FileExists(GamePath);
    Mount(plain ? GamePath : text::RemoveQuotes(GamePath));
    // Also in the moment in which the tool has ended.
    return !ports.loading->GivenUp() && !form.Ended;
}

void StartHelpers::Mount(const std::string& game) {
    const std::string setting = ToolSetting();
    const auto tool = FindMountTool(setting, form.AppDir, services.files, services.starter);
    if (!tool || !services.starter.MayRun(*tool)) {
        services.log.Write("not mounted, no such program: " + setting);
        services.dialogs.MessageBox("Deamon Tool not found!", core::defaultTitle,
                                    platform::Buttons::Ok, platform::Icon::None);
        return;
    }
    const MountFile file = MountFileFor(*tool, game);
    if (file.way == MountFile::Way::refused) return TellOfRefusedName(*tool, game);
    RunMountFile(file);
}

MountFile StartHelpers::MountFileFor(const std::string& tool, const std::string& game) const {
    if (!services.starter.UsesShell()) return MountFileForCmd(tool, game);
    return MountFileForShell(tool, game, FuseisoPlace(services.runtimeDirectory, form.StartPfad));
}

void StartHelpers::RunMountFile(const MountFile& file) {
    // Events run while it is waited for, and the field is another emulator's then.
    const std::string path = form.StartPfad + "MountDeamon.bat";
    if (file.way == MountFile::Way::startFile && WriteStartFile(path, file.text)) {
        (void)RunToItsEnd(StartFileRequest(path));
        services.passing.Delete(path);
        return;
    }
    for (const HelperCommand& command : file.commands) {
        platform::StartRequest request = Request();
        request.command = command.command;
        request.words = command.words;
        if (!RunToItsEnd(request)) return;
    }
}

bool StartHelpers::RunToItsEnd(const platform::StartRequest& request) {
    const auto failure = services.starter.RunAndWait(request, [this] {
        pacer.DoEvents();
        return !ports.loading->GivenUp() && !form.Ended;
    });
    return failure != std::errc::operation_canceled;
}

void StartHelpers::TellOfRefusedName(const std::string& tool, const std::string& game) {
    const std::string& name = text::IsPlainForCmd(tool) ? game : tool;
    services.log.Write("not mounted, no batch file can take this name: " + name);
    services.dialogs.MessageBox(RefusedNameText(form, name), core::defaultTitle,
                                platform::Buttons::Ok, platform::Icon::Warning);
}

bool StartHelpers::WriteStartFile(const std::string& path, const std::string& text) {
    const auto bytes =
        services.starter.UsesShell() ? std::optional(text) : services.starter.StartFileBytes(text);
    if (!bytes || services.files.WriteFile(path, *bytes)) return false;
    services.passing.Note(path);
    return true;
}

platform::StartRequest StartHelpers::Request() const {
    platform::StartRequest request;
    request.directory = services.files.CurrentDirectory();
    request.style = platform::WindowStyle::MinimizedNoFocus;
    return request;
}

platform::StartRequest StartHelpers::StartFileRequest(const std::string& path) const {
    platform::StartRequest request = Request();
    request.command = "\"" + path + "\"";
    request.words = {path};
    request.startFile = true;
    return request;
}

void StartHelpers::RunStartScript() {
    const auto script = FindStartScript(services.files, form.VBSFilename);
    if (!script) return;
    // Events run before it is taken away, and the field is another emulator's then.
    const std::string runner = form.VBSFilename + ".bat";
    platform::StartRequest direct = Request();
    std::optional<std::string> line;
    if (services.starter.UsesShell()) {
        direct.words = RunnerWords(*script);
        if (direct.words.empty()) return;
        line = ScriptRunnerForShell(direct.words);
    } else {
        direct.words = {"wscript.exe", *script};
        line = ScriptRunnerForCmd(*script);
    }
    direct.command = direct.words[0] + " \"" + *script + "\"";
    const bool written = line && WriteStartFile(runner, *line);
    (void)services.starter.Run(written ? StartFileRequest(runner) : direct);
    WAIT(1, services.clock, pacer);
    if (written) services.passing.Delete(runner);
}

std::vector<std::string> StartHelpers::RunnerWords(const std::string& script) {
    std::vector<std::string> words = ScriptWords(script, HeadOf(services.files, script));
    const std::string& program = words[0];
    const bool found = program.starts_with('/') ? services.files.FileExists(program)
                                                : !services.starter.FindInPath(program).empty();
    if (found) return words;
    services.log.Write("start script not run, not found: " + program);
    form.LoadingBtn.SetCaption(text::GetFileNameOnly(script) + ": " + program + " not found");
    return {};
}

const std::string& StartHelpers::GetVBSFilename() const {
    return form.VBSFilename;
}

void StartHelpers::EditStartScript() {
    if (form.VBSFilename.empty()) return;
    const auto there = FindStartScript(services.files, form.VBSFilename);
    const std::string script = there.value_or(form.VBSFilename);
    const auto tell = [this, &script](const char* text, const char* title, platform::Icon icon) {
        services.dialogs.MessageBox(std::string(text) + "\r\r" + script, title,
                                    platform::Buttons::Ok, icon);
    };
    if (!there) {
        const std::string emulator = text::GetFileNameOnly(form.txtWinUAEExe.Text());
        const std::string bytes = services.files.EncodeText(StartScriptTemplate(emulator));
        if (services.files.WriteFile(script, bytes))
            return tell(form.Say("Diese Datei konnte nicht geschrieben werden:",
                                 "This file could not be written:"),
                        form.Say("Speichern", "Save"), platform::Icon::Error);
    }
    if (services.starter.EditText(script))
        tell(form.Say("Diese Datei konnte in keinem Editor geöffnet werden:",
                      "No editor could be started for this file:"),
             "Editor", platform::Icon::Warning);
}

}  // namespace kivu::launch
