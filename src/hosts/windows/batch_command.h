#pragma once

#include <optional>
#include <string>
#include <string_view>

// Batch files and the command processor, which reads every line for characters to act upon.
namespace kivu::hosts {

// By its ending: .bat or .cmd without regard to case, with whatever blanks and dots behind it the
// system will pass over.
bool IsBatchFile(std::string_view path);

// Arguments for a batch file, so that nothing in them is acted upon: an argument that holds one of
// & | < > ^ outside of quotes is put in quotes as a whole. The others stay as they are. Empty:
// there is no such form, for a line end, or a quote that belongs to such an argument.
std::optional<std::string> HarmlessArguments(std::string_view arguments);

// In which batch files are read: that of new consoles, unless their user has chosen another one.
unsigned BatchCodePage();

// What runs `text`, a command of its own language, in the command processor. It takes the text from
// the variable batchVariable of its environment: there "%" is a plain character, as nowhere else on
// its command line. It reads batch files in BatchCodePage, whatever the console's is.
struct CommandProcessor {
    std::wstring program;
    std::wstring commandLine;
};
constexpr const wchar_t* batchVariable = L"KIVU_START";
CommandProcessor BatchProcessor();

}  // namespace kivu::hosts
