#include "launch/start_parameters.h"

#include "text/command_line.h"
#include "text/stored_paths.h"
#include "text/text.h"

namespace kivu::launch {

void StartParameters::AppendTyped(std::string_view typed) {
    text += typed;
    batchText += typed;
    for (std::string& word : text::SplitWindowsCommandLine(typed))
        words.push_back(std::move(word));
}

void StartParameters::AppendPath(std::string_view quotedOrPlain, std::string_view path) {
    const std::string word = translatePaths ? text::ToWinePath(path) : std::string(path);
    // A translated path is quoted anew, since its text is another one.
    const std::string shown = word == path ? std::string(quotedOrPlain) : text::QuoteIfNeeded(word);
    text += shown;
    batchText += BatchWord(shown, batchSafe);
    plainPaths = plainPaths && text::IsPlainForCmd(shown);
    words.push_back(word);
}

void StartParameters::Pad() {
    for (std::string* padded : {&text, &batchText}) {
        *padded = " " + std::string(text::Trim(*padded)) + " ";
    }
}

std::string BatchWord(std::string_view quotedOrPlain, bool& safe) {
    if (const auto escaped = text::EscapeForCmd(quotedOrPlain)) return *escaped;
    safe = false;
    return std::string(quotedOrPlain);
}

std::string StartCommand(std::string_view emulator, std::string_view parameters) {
    std::string command = "Start \"\" ";
    command += emulator;
    command += ' ';
    command += text::Trim(parameters);
    return std::string(text::Trim(command));
}

std::string BatchStartFile(std::string_view directory, std::string_view startCommand) {
    std::string file = "cd ";
    file.append(directory).append("\r\n").append(startCommand).append("\r\n");
    return file;
}

std::string ShellStartFile(std::string_view directory, const std::vector<std::string>& words) {
    std::string file;
    if (!directory.empty()) file = "cd " + text::QuoteForShell(directory) + "\n";
    for (const std::string& word : words)
        file += text::QuoteForShell(word) + " ";
    return file + "&\n";
}

}  // namespace kivu::launch
