#include "hosts/windows/batch_command.h"

#include <algorithm>

#include "hosts/windows/system_text.h"
#include "text/endings.h"

namespace kivu::hosts {

namespace {

// One argument as the command processor cuts it out: each quote opens or closes, "\" or not.
struct Argument {
    std::string_view text;
    bool live = false;  // holds a character that would be acted upon
};

Argument TakeArgument(std::string_view text) {
    Argument argument;
    bool quoted = false;
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        const char c = text[end];
        if (c == '"') quoted = !quoted;
        if (quoted) continue;
        if (c == ' ' || c == '\t') break;
        argument.live |= std::string_view("&|<>^").find(c) != std::string_view::npos;
    }
    argument.text = text.substr(0, end);
    return argument;
}

bool AppendHarmless(const Argument& argument, std::string& harmless) {
    if (!argument.live) {
        harmless += argument.text;
        return true;
    }
    if (argument.text.find("\\\"") != std::string_view::npos) return false;
    harmless += '"';
    std::copy_if(argument.text.begin(), argument.text.end(), std::back_inserter(harmless),
                 [](char c) { return c != '"'; });
    harmless += '"';
    return true;
}

}  // namespace

bool IsBatchFile(std::string_view path) {
    const std::size_t last = path.find_last_not_of(" .");
    const std::string_view name = path.substr(0, last + 1);
    return text::EndsWithNoCase(name, ".bat") || text::EndsWithNoCase(name, ".cmd");
}

std::optional<std::string> HarmlessArguments(std::string_view arguments) {
    if (arguments.find_first_of("\r\n") != std::string_view::npos) return std::nullopt;
    std::string harmless;
    while (!arguments.empty()) {
        const Argument argument = TakeArgument(arguments);
        if (!AppendHarmless(argument, harmless)) return std::nullopt;
        arguments.remove_prefix(argument.text.size());
        if (arguments.empty()) break;
        harmless += arguments.front();
        arguments.remove_prefix(1);
    }
    return harmless;
}

unsigned BatchCodePage() {
    return ::GetOEMCP();
}

// By full paths: the current directory is the emulator's, and may hold programs of these names.
CommandProcessor BatchProcessor() {
    const std::wstring directory =
        SystemText([](wchar_t* text, DWORD size) { return ::GetSystemDirectoryW(text, size); });
    const std::wstring program = directory + L"\\cmd.exe";
    const std::wstring codePage =
        L"\"" + directory + L"\\chcp.com\" " + std::to_wstring(BatchCodePage()) + L" >nul 2>nul";
    // Without the registry's own commands, its extensions on, "!" a plain character, and without
    // the outer quotes.
    return {program, L"\"" + program + L"\" /d /e:on /v:off /s /c \"" + codePage + L"&%" +
                         batchVariable + L"%\""};
}

}  // namespace kivu::hosts
