#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Command lines of both worlds, as text. No character of a file name may ever be acted upon by a
// shell, whatever the name holds.
namespace kivu::text {

// The arguments in a text, split as Windows programs split their command line: at blanks and tabs
// outside of double quotes; a quote opens or closes, "" within quotes is one quote, and only in
// front of a quote does a backslash count: two are one backslash, an odd last one makes the quote
// plain. A pair of quotes with nothing inside is an empty argument. A quote left open reaches to
// the end.
[[nodiscard]] std::vector<std::string> SplitWindowsCommandLine(std::string_view text);

// One word for a POSIX shell, in single quotes, also where it would need none. A word cannot hold
// NUL; one that does is cut there, as the system call would.
[[nodiscard]] std::string QuoteForShell(std::string_view word);

// Every "%" twice, as a batch file needs it for one.
[[nodiscard]] std::string DoublePercent(std::string_view text);

// One word of a batch file line, bare or in double quotes, made harmless for cmd.exe: a bare word
// that holds one of & | < > ^ is put in quotes, "%" is doubled. A word without any of these comes
// back as it is. Empty: nothing makes it harmless (a quote inside, a line end, NUL, or Ctrl+Z,
// which ends the file).
[[nodiscard]] std::optional<std::string> EscapeForCmd(std::string_view word);

// The word holds nothing that cmd.exe acts upon once its quotes are gone: none of & | < > ^ %.
[[nodiscard]] bool IsPlainForCmd(std::string_view word);

// An absolute POSIX path as Windows programs see it under Wine: "/a/b" is "Z:\a\b". Any other text
// comes back as it is. A name with "\" in it has no such form: its "\" will separate.
[[nodiscard]] std::string ToWinePath(std::string_view path);

// By its ending, without regard to case: .exe or .com, which Windows runs itself, and not through
// another program.
[[nodiscard]] bool IsProgramFile(std::string_view path);

// By its ending: .exe, .bat or .cmd without regard to case, inside of enclosing quotes or not.
[[nodiscard]] bool IsWindowsProgram(std::string_view path);

}  // namespace kivu::text
