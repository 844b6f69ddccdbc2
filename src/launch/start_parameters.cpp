#include "launch/start_parameters.h"

#include "support/command_line.h"
#include "support/file_ops.h"
#include "support/text.h"

namespace kivu::launch {

void StartParameters::AppendTyped(std::string_view typed) {
    text += typed;
    batchText += typed;
    for (std::string& word : support::SplitWindowsCommandLine(typed))
        words.push_back(std::move(word));
}

void StartParameters::AppendPath(std::string_view quotedOrPlain, std::string_view path) {
    const std::string word = translatePaths ? support::ToWinePath(path) : std::string(path);
    // A translated path is quoted anew, since its text is another one.
    const std::string shown =
        word == path ? std::string(quotedOrPlain) : support::QuoteIfNeeded(word);
    text += shown;
    batchText += BatchWord(shown, batchSafe);
    plainPaths = plainPaths && support::IsPlainForCmd(shown);
    words.push_back(word);
}

void StartParameters::Pad() {
    for (std::string* padded : {&text, &batchText}) {
        *padded = " " + std::string(support::Trim(*padded)) + " ";
    }
}

std::string BatchWord(std::string_view quotedOrPlain, bool& safe) {
    if (const auto escaped = support::EscapeForCmd(quotedOrPlain)) return *escaped;
    safe = false;
    return std::string(quotedOrPlain);
}

std::string StartCommand(std::string_view emulator, std::string_view parameters) {
    std::string command = "Start \"\" ";
    command += emulator;
    command += ' ';
    command += support::Trim(parameters);
    return std::string(support::Trim(command));
}

std::string BatchStartFile(std::string_view directory, std::string_view startCommand) {
    std::string file = "cd ";
    file.append(directory).append("\r\n").append(startCommand).append("\r\n");
    return file;
}

std::string ShellStartFile(std::string_view directory, const std::vector<std::string>& words) {
    std::string file;
    if (!directory.empty()) file = "cd " + support::QuoteForShell(directory) + "\n";
    for (const std::string& word : words)
        file += support::QuoteForShell(word) + " ";
    return file + "&\n";
}

}  // namespace kivu::launch
