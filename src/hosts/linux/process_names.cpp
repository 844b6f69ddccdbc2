#include "hosts/linux/process_names.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace kivu::hosts {

namespace {

constexpr std::array<std::string_view, 36> interpreters = {"ash",
                                                           "bash",
                                                           "box64",
                                                           "box86",
                                                           "busybox",
                                                           "csh",
                                                           "dash",
                                                           "env",
                                                           "fish",
                                                           "java",
                                                           "ksh",
                                                           "lua",
                                                           "luajit",
                                                           "mksh",
                                                           "mono",
                                                           "node",
                                                           "nodejs",
                                                           "perl",
                                                           "php",
                                                           "pypy",
                                                           "python",
                                                           "qemu-i386",
                                                           "qemu-x86_64",
                                                           "rbash",
                                                           "ruby",
                                                           "sh",
                                                           "tclsh",
                                                           "tcsh",
                                                           "wine",
                                                           "wine-preloader",
                                                           "wine64",
                                                           "wish",
                                                           "wineloader",
                                                           "wine64-preloader",
                                                           "wine-development",
                                                           "zsh"};

// Options whose value is the next argument, in any of the interpreters.
constexpr std::array<std::string_view, 13> optionsWithValue = {
    "-o",  "-O",         "+o",           "+O",       "-W",          "-X", "-I",
    "-cp", "-classpath", "--class-path", "--rcfile", "--init-file", "-r"};

std::string_view BehindLast(std::string_view text, char separator) {
    const auto at = text.rfind(separator);
    return at == std::string_view::npos ? text : text.substr(at + 1);
}

class Names {
 public:
    void Add(std::string_view name) {
        if (name.empty()) return;
        if (std::ranges::find(names, name) == names.end()) names.emplace_back(name);
    }
    // Wine's programs carry their Windows path as their name.
    void AddArgument(std::string_view argument) {
        const std::string_view name = BehindLast(argument, '/');
        const std::string_view windowsName = BehindLast(name, '\\');
        if (windowsName.size() != name.size()) Add(windowsName);
        // A drive says that the "\" is a separator and no part of a name.
        if (!IsWindowsPath(argument)) Add(name);
    }
    static bool IsWindowsPath(std::string_view argument) {
        return argument.size() > 3 && argument[1] == ':' &&
               (argument[2] == '\\' || argument[2] == '/') &&
               static_cast<unsigned char>(text::ToLowerAscii(argument[0]) - 'a') < 26;
    }
    std::vector<std::string> Take() { return std::move(names); }

 private:
    std::vector<std::string> names;
};

std::string_view ExecutableName(std::string_view path) {
    // The kernel's mark of a file that has been replaced or removed since.
    constexpr std::string_view removed = " (deleted)";
    if (path.ends_with(removed)) path.remove_suffix(removed.size());
    return BehindLast(path, '/');
}

// "-c" of the shells and of Python, also as the end of "-ec"; "-e" of Perl, Ruby and others.
bool IsInlineCode(std::string_view option) {
    return option.size() >= 2 && option[0] == '-' && option[1] != '-' &&
           (option.back() == 'c' || option.back() == 'e');
}

// The first argument that is no option. Empty: none, or the code stands in the arguments itself.
std::string_view ScriptOf(const std::vector<std::string>& arguments) {
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument.empty()) continue;
        if (argument == "--") {
            if (i + 1 < arguments.size()) return arguments[i + 1];
        } else if (std::ranges::find(optionsWithValue, argument) != optionsWithValue.end()) {
            ++i;
        } else if (argument[0] != '-' && argument[0] != '+') {
            return argument;
        } else if (IsInlineCode(argument)) {
            return {};
        }
    }
    return {};
}

bool InterpretsSomething(const ProcessFacts& facts, std::string_view executable) {
    std::string_view ownName = BehindLast(facts.arguments[0], '/');
    if (ownName.starts_with('-')) ownName.remove_prefix(1);  // a login shell
    if (IsInterpreter(ownName)) return true;
    // A Wine process that has taken its program's name tells all by that.
    return IsInterpreter(executable) && ownName.find('\\') == std::string_view::npos;
}

}  // namespace

bool IsInterpreter(std::string_view name) {
    if (std::ranges::find(interpreters, name) != interpreters.end()) return true;
    const auto end = name.find_last_not_of("0123456789.-");
    const std::string_view bare = name.substr(0, end == std::string_view::npos ? 0 : end + 1);
    return bare != name && std::ranges::find(interpreters, bare) != interpreters.end();
}

std::vector<std::string> NamesOf(const ProcessFacts& facts) {
    Names names;
    const std::string_view executable = ExecutableName(facts.executable);
    names.Add(executable);
    if (executable.empty()) names.Add(facts.shortName);
    if (facts.arguments.empty()) return names.Take();

    names.AddArgument(facts.arguments[0]);
    if (InterpretsSomething(facts, executable)) names.AddArgument(ScriptOf(facts.arguments));
    // Wrappers hand a Windows program on by its full path.
    if (facts.arguments.size() > 1 && Names::IsWindowsPath(facts.arguments[1]))
        names.AddArgument(facts.arguments[1]);
    return names.Take();
}

}  // namespace kivu::hosts
