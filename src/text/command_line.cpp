#include "text/command_line.h"

#include <algorithm>
#include <array>

#include "text/endings.h"
#include "text/paths.h"
#include "text/string_ops.h"
#include "text/text.h"

namespace kivu::text {

namespace {

bool IsGap(char c) {
    return c == ' ' || c == '\t';
}

// Takes the arguments off the front of a command line, one at a time.
class ArgumentReader {
 public:
    explicit ArgumentReader(std::string_view text) : text(text) {}

    bool Next(std::string& argument) {
        while (at < text.size() && IsGap(text[at]))
            ++at;
        if (at == text.size()) return false;
        argument.clear();
        quoted = false;
        while (at < text.size() && (quoted || !IsGap(text[at])))
            TakePiece(argument);
        return true;
    }

 private:
    void TakePiece(std::string& argument) {
        const std::size_t start = at;
        while (at < text.size() && text[at] == '\\')
            ++at;
        const std::size_t backslashes = at - start;
        if (at == text.size() || text[at] != '"') {
            argument.append(backslashes, '\\');
            if (backslashes == 0) argument += text[at++];
            return;
        }
        argument.append(backslashes / 2, '\\');
        ++at;
        if (backslashes % 2 == 1) {
            argument += '"';
        } else if (quoted && at < text.size() && text[at] == '"') {
            argument += '"';
            ++at;
        } else {
            quoted = !quoted;
        }
    }

    std::string_view text;
    std::size_t at = 0;
    bool quoted = false;
};

}  // namespace

std::vector<std::string> SplitWindowsCommandLine(std::string_view text) {
    std::vector<std::string> arguments;
    ArgumentReader reader(text);
    std::string argument;
    while (reader.Next(argument))
        arguments.push_back(argument);
    return arguments;
}

std::string QuoteForShell(std::string_view word) {
    std::string quoted;
    quoted.reserve(word.size() + 2);
    quoted += '\'';
    quoted += replaceall(word.substr(0, word.find('\0')), "'", "'\\''");
    return quoted += '\'';
}

std::string DoublePercent(std::string_view text) {
    return replaceall(text, "%", "%%");
}

std::optional<std::string> EscapeForCmd(std::string_view word) {
    constexpr std::string_view kNeverHarmless("\"\r\n\x1A\0", 5);
    const bool enclosed = word.size() >= 2 && word.starts_with('"') && word.ends_with('"');
    const std::string_view inside = enclosed ? word.substr(1, word.size() - 2) : word;
    if (inside.find_first_of(kNeverHarmless) != std::string_view::npos) return std::nullopt;
    const bool live = inside.find_first_of("&|<>^") != std::string_view::npos;
    std::string escaped = DoublePercent(inside);
    if (enclosed || live) escaped = '"' + escaped + '"';
    return escaped;
}

bool IsPlainForCmd(std::string_view word) {
    return word.find_first_of("&|<>^%") == std::string_view::npos;
}

std::string ToWinePath(std::string_view path) {
    if (!path.starts_with('/')) return std::string(path);
    std::string windows = "Z:";
    windows += path;
    std::replace(windows.begin(), windows.end(), '/', '\\');
    return windows;
}

bool IsProgramFile(std::string_view path) {
    return EndsWithNoCase(path, ".exe") || EndsWithNoCase(path, ".com");
}

bool IsWindowsProgram(std::string_view path) {
    constexpr std::array<std::string_view, 3> kEndings = {".exe", ".bat", ".cmd"};
    const std::string_view bare = WithoutQuotes(path);
    return std::any_of(kEndings.begin(), kEndings.end(),
                       [&](std::string_view ending) { return EndsWithNoCase(bare, ending); });
}

}  // namespace kivu::text
