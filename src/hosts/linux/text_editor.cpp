#include "hosts/linux/text_editor.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <sys/stat.h>

#include "hosts/linux/desktop_entry.h"
#include "hosts/linux/program_output.h"
#include "hosts/linux/start_words.h"
#include "hosts/linux/user_directories.h"

namespace kivu::hosts {

namespace {

using Words = std::vector<std::string>;

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

Words SplitAt(std::string_view text, std::string_view separators) {
    Words parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(separators), text.size());
        if (end > 0) parts.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

// Programs that open a file by its own kind, or run it.
bool GoesByKind(const std::string& word) {
    constexpr std::array names = {"xdg-open", "gio",         "gvfs-open", "gnome-open", "exo-open",
                                  "kde-open", "kde-open5",   "kioclient", "kioclient5", "kfmclient",
                                  "mimeopen", "run-mailcap", "see",       "open",       "wine",
                                  "wine64",   "wine-stable", "cscript",   "wscript"};
    const std::string_view name = std::string_view(word).substr(word.rfind('/') + 1);
    return std::find(names.begin(), names.end(), name) != names.end();
}

// A terminal that runs the words which follow.
Words Terminal() {
    const std::string own = Variable("TERMINAL");
    if (!own.empty() && !FindProgram(own).empty()) return {own, "-e"};
    static const std::array<Words, 10> terminals = {{{"xdg-terminal-exec"},
                                                     {"x-terminal-emulator", "-e"},
                                                     {"gnome-terminal", "--"},
                                                     {"konsole", "-e"},
                                                     {"xfce4-terminal", "-x"},
                                                     {"mate-terminal", "-x"},
                                                     {"alacritty", "-e"},
                                                     {"kitty"},
                                                     {"foot"},
                                                     {"xterm", "-e"}}};
    for (const Words& terminal : terminals) {
        if (!FindProgram(terminal[0]).empty()) return terminal;
    }
    return {};
}

// A file of limited size, since anybody's entries are read.
std::optional<std::string> SmallFile(const std::string& path) {
    constexpr off_t mostBytes = 1 << 20;
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
    if (status.st_size > mostBytes) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// A dash in the name of an entry may stand for a directory.
std::optional<DesktopEntry> EntryIn(const std::string& directory, const std::string& name) {
    Words spellings{name};
    for (std::size_t dash = name.find('-'); dash != name.npos; dash = name.find('-', dash + 1)) {
        spellings.push_back(name);
        spellings.back()[dash] = '/';
    }
    for (const std::string& spelling : spellings) {
        const std::string file = directory + "/applications/" + spelling;
        const auto text = SmallFile(file);
        // One that has been taken back hides those of the directories behind it.
        if (text) return ReadDesktopEntry(*text, file);
    }
    return std::nullopt;
}

std::optional<DesktopEntry> FindEntry(const std::string& name) {
    if (name.find('/') != name.npos || !name.ends_with(".desktop")) return std::nullopt;
    std::string shared = Variable("XDG_DATA_DIRS");
    if (shared.empty()) shared = "/usr/local/share:/usr/share";
    Words directories = SplitAt(shared, ":");
    directories.insert(directories.begin(), UserDataDirectory());
    for (const std::string& directory : directories) {
        if (!directory.starts_with('/')) continue;
        if (auto entry = EntryIn(directory, name)) return entry;
    }
    return std::nullopt;
}

// The names of the desktop's entries for plain text, the best one first.
Words DefaultEntries() {
    // A desktop that does not answer must not hold up the launcher.
    constexpr std::chrono::seconds patience{5};
    const std::string program = FindProgram("xdg-mime");
    if (program.empty()) return {};
    const auto answer = OutputOf({program, "query", "default", "text/plain"}, patience);
    return SplitAt(answer.value_or(""), "\n;");
}

class Choices {
 public:
    explicit Choices(const std::string& path) : path(path) {}

    void AddEntry(const DesktopEntry& entry) {
        Add(WordsFor(entry, path), entry.terminal, entry.directory);
    }
    // `command`: a program with arguments.
    void AddCommand(std::string_view command, bool inTerminal) {
        Words words = SplitAt(command, " \t");
        if (words.empty()) return;
        words.push_back(path);
        Add(words, inTerminal, "");
    }

    std::vector<platform::StartRequest> found;

 private:
    void Add(Words words, bool inTerminal, const std::string& directory) {
        if (words.empty() || FindProgram(words[0]).empty()) return;
        for (const std::string& word : words) {
            if (word != path && GoesByKind(word)) return;
        }
        if (inTerminal) {
            const Words terminal = Terminal();
            if (terminal.empty()) return;
            words.insert(words.begin(), terminal.begin(), terminal.end());
        }
        platform::StartRequest request;
        request.words = std::move(words);
        request.directory = directory;
        found.push_back(std::move(request));
    }

    const std::string& path;
};

}  // namespace

std::vector<platform::StartRequest> EditorsFor(const std::string& path) {
    Choices choices(path);
    for (const std::string& name : DefaultEntries()) {
        if (const auto entry = FindEntry(name)) choices.AddEntry(*entry);
    }
    for (const char* variable : {"VISUAL", "EDITOR"})
        choices.AddCommand(Variable(variable), true);
    for (const char* editor : {"gnome-text-editor", "gedit", "kate", "kwrite", "mousepad", "xed",
                               "pluma", "featherpad", "l3afpad", "leafpad", "geany"})
        choices.AddCommand(editor, false);
    for (const char* editor : {"editor", "nano", "vim", "vi"})
        choices.AddCommand(editor, true);
    return choices.found;
}

}  // namespace kivu::hosts
