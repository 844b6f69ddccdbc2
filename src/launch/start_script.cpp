#include "launch/start_script.h"

#include "launch/start_parameters.h"
#include "support/path_forms.h"
#include "text/command_line.h"
#include "text/paths.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::launch {

namespace {

// The emulator's name as it may stand in a comment and in a text of VBScript: in one line, and with
// every quote doubled.
std::string TitleOf(std::string_view emulatorFile) {
    std::string title(emulatorFile);
    const std::size_t length = text::CodePointCount(title);
    const std::size_t ending = length >= 4 ? text::CodePointOffset(title, length - 4) : 0;
    if (length >= 4 && title[ending] == '.') title.resize(ending);
    for (char& letter : title) {
        if (static_cast<unsigned char>(letter) < ' ') letter = ' ';
    }
    return text::replaceall(title, "\"", "\"\"");
}

std::string_view TrimGaps(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

std::string StartScriptTemplate(std::string_view emulatorFile) {
    const std::string title = TitleOf(emulatorFile);
    std::string script = "' === Startscript for " + title +
                         " ===\r\n"
                         "\r\n"
                         "Set ws = CreateObject(\"Wscript.shell\")\r\n"
                         "\r\n"
                         "'  Enter Windowtitle here ->\r\n"
                         "ws.AppActivate \"" +
                         title +
                         "\"\r\n"
                         "wscript.Sleep 500                            \r\n"
                         "\r\n"
                         "'  Example: Alt+F and Return ->\r\n"
                         "ws.SendKeys (\"%(f)\")\r\n"
                         "ws.SendKeys (\"{ENTER}\")\r\n"
                         "\r\n"
                         "\r\n"
                         "'  Example:  pause for 2 Sec. then F8 ->\r\n"
                         "wscript.Sleep 2000\r\n"
                         "ws.SendKeys (\"{F8}\")\r\n";
    return script;
}

std::optional<std::string> FindStartScript(const platform::FileSystem& files,
                                           const std::string& VBSFilename) {
    if (files.FileExists(VBSFilename)) return VBSFilename;
    const std::string name = text::GetFileNameOnly(VBSFilename);
    if (name.empty()) return std::nullopt;
    const std::string directory = support::DirectoryOf(files, VBSFilename);
    std::optional<std::string> found;
    for (const auto& entry :
         files.ListDirectory(directory).value_or(std::vector<platform::FileSystem::Entry>())) {
        if (entry.isDirectory || !text::EqualsNoCase(entry.name, name)) continue;
        // Of several the same one each time.
        if (!found || directory + entry.name < *found) found = directory + entry.name;
    }
    return found;
}

std::optional<std::string> ScriptRunnerForCmd(const std::string& script) {
    bool safe = true;
    const std::string word = BatchWord(text::QuoteIfNeeded(script), safe);
    if (!safe) return std::nullopt;
    return word + "\r\n";
}

std::vector<std::string> ScriptWords(const std::string& script, std::string_view head) {
    if (head.starts_with("#!")) {
        std::string_view line = head.substr(2, head.find('\n') - 2);
        if (line.ends_with('\r')) line.remove_suffix(1);
        line = TrimGaps(line.substr(0, line.find('\0')));
        const std::size_t gap = std::min(line.find_first_of(" \t"), line.size());
        const std::string_view argument = TrimGaps(line.substr(gap));
        if (argument.empty() && !line.empty()) return {std::string(line), script};
        if (!line.empty()) return {std::string(line.substr(0, gap)), std::string(argument), script};
    }
    return {"wine", "cscript", text::ToWinePath(script)};
}

std::string ScriptRunnerForShell(const std::vector<std::string>& words) {
    std::string line;
    for (const std::string& word : words)
        line += (line.empty() ? "" : " ") + text::QuoteForShell(word);
    return line + "\n";
}

}  // namespace kivu::launch
