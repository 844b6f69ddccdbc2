#include "app/command_line.h"

namespace kivu::app {

namespace {

std::string Joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        if (!text.empty()) text += ' ';
        text += word;
    }
    return text;
}

bool IsAbsolute(const std::string& path) {
    const bool drive = path.size() > 1 && path[1] == ':';
    return path.starts_with('/') || path.starts_with('\\') || drive;
}

// Absolute, whatever drive is the current one, and in the host's own spelling.
bool IsWhole(const std::string& path, char separator) {
    if (separator == '/') return path.starts_with('/');
    if (path.find('/') != std::string::npos) return false;
    return path.starts_with("\\\\") || (path.size() > 2 && path[1] == ':' && path[2] == '\\');
}

// With those above it that are missing. Whether it is there then shows in what follows.
void MakeDirectories(const std::string& path, std::size_t root, platform::FileSystem& files) {
    if (files.IsDirectory(path)) return;
    const std::string separators = {'/', files.Separator()};
    for (std::size_t end = root; end != std::string::npos;) {
        end = path.find_first_of(separators, end + 1);
        const std::string part = path.substr(0, end);
        if (!files.IsDirectory(part)) (void)files.MakeDirectory(part);
    }
}

}  // namespace

Options TakeOptions(std::vector<std::string>& arguments,
                    const std::function<bool(const std::string&)>& namesFile) {
    const std::string log = "--log";
    Options options;
    std::size_t taken = 0;
    for (; taken < arguments.size(); ++taken) {
        const std::string& word = arguments[taken];
        if (!word.starts_with("--") || namesFile(word)) break;
        if (word == log) {
            options.log = true;
        } else if (word == "--version") {
            options.version = true;
        } else if (word == "--help") {
            options.help = true;
        } else if (word == "--data") {
            options.data = taken + 1 < arguments.size() ? arguments[++taken] : "";
            options.dataMissing = options.dataMissing || options.data.empty();
        } else if (options.unknown.empty()) {
            options.unknown = word;
        }
    }
    arguments.erase(arguments.begin(), arguments.begin() + static_cast<std::ptrdiff_t>(taken));
    while (!arguments.empty() && arguments.back() == log) {
        arguments.pop_back();
        options.log = true;
    }
    return options;
}

std::optional<SpokenAnswer> AnswerTo(const Options& options, const std::string& version,
                                     bool german) {
    const auto say = [german](const char* inGerman, const char* inEnglish) {
        return std::string(german ? inGerman : inEnglish);
    };
    constexpr int misused = 2;
    const std::string more =
        say("\"Kivu --help\" zeigt, was es gibt.\n", "\"Kivu --help\" shows what there is.\n");
    if (!options.unknown.empty())
        return SpokenAnswer{misused, true,
                            "Kivu: " + say("unbekannte Option ", "unknown option ") +
                                options.unknown + "\n" + more};
    if (options.dataMissing)
        return SpokenAnswer{
            misused, true,
            "Kivu: " + say("--data ohne Verzeichnis", "--data without a directory") + "\n" + more};
    if (options.help)
        return SpokenAnswer{
            0, false,
            say("Aufruf: Kivu [--data VERZEICHNIS] [--log] [DATEI]\n"
                "Startet Spiele, die in Emulatoren laufen.\n\n"
                "  DATEI               wird mit dem zuletzt gewählten Emulator gestartet\n"
                "  --data VERZEICHNIS  dort liegt Config mit Emulatoren und Einstellungen\n"
                "  --log               schreibt das Protokoll auch auf die Fehlerausgabe\n"
                "  --help              zeigt diesen Text\n"
                "  --version           zeigt die Version\n",
                "Usage: Kivu [--data DIRECTORY] [--log] [FILE]\n"
                "A launcher for games that run under emulators.\n\n"
                "  FILE              is started with the last emulator\n"
                "  --data DIRECTORY  where Config lies, with the emulators and all settings\n"
                "  --log             write the log to standard error too\n"
                "  --help            show this text\n"
                "  --version         show the version\n")};
    if (options.version) return SpokenAnswer{0, false, "Kivu " + version + "\n"};
    return std::nullopt;
}

std::string DataDirectory(const std::string& given, platform::FileSystem& files) {
    const auto rootOf = [](const std::string& path) -> std::size_t {
        return path.starts_with('/') || path.starts_with('\\') ? 1 : 3;
    };
    const auto trimmed = [&](std::string path) {
        while (path.size() > rootOf(path) &&
               (path.back() == '/' || path.back() == files.Separator()))
            path.pop_back();
        return path;
    };
    std::string path = given;
    const bool absolute = files.Separator() == '/' ? path.starts_with('/') : IsAbsolute(path);
    if (!absolute) {
        path = files.CurrentDirectory();
        if (!path.ends_with(files.Separator())) path += files.Separator();
        path += given;
    }
    path = trimmed(path);
    MakeDirectories(path, rootOf(path), files);
    // Without "." and "..", or the drive of the moment, which would stand in the way of paths below
    // it. What is whole already keeps its links.
    return IsWhole(given, files.Separator()) ? path : trimmed(files.ResolvedPath(path));
}

std::string CommandLineText(std::vector<std::string> arguments, const std::string& directory,
                            const std::function<bool(const std::string&)>& fileExists) {
    const char separator = directory.find('\\') == std::string::npos ? '/' : '\\';
    const std::string base = directory.ends_with(separator) ? directory : directory + separator;
    const auto absolute = [&](const std::string& path) {
        const bool ours = !path.empty() && !IsAbsolute(path) && fileExists(base + path);
        return ours ? base + path : path;
    };
    const std::string whole = Joined(arguments);
    if (const std::string path = absolute(whole); path != whole) return path;
    for (std::string& argument : arguments) {
        argument = absolute(argument);
    }
    return Joined(arguments);
}

}  // namespace kivu::app
