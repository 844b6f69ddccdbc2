#include "hosts/linux/desktop_entry.h"

namespace kivu::hosts {

namespace {

std::string_view Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

// A value's text: "\s" and the like are single characters.
std::string Unescaped(std::string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        constexpr std::string_view letters = "sntr\\", meant = " \n\t\r\\";
        const std::size_t which =
            value[i] == '\\' && i + 1 < value.size() ? letters.find(value[i + 1]) : letters.npos;
        if (which == letters.npos) {
            text += value[i];
        } else {
            text += meant[which];
            ++i;
        }
    }
    return text;
}

void Take(DesktopEntry& entry, std::string_view key, std::string_view value) {
    if (key == "Exec") entry.exec = Unescaped(value);
    if (key == "Name") entry.name = Unescaped(value);
    if (key == "Icon") entry.icon = Unescaped(value);
    if (key == "Path") entry.directory = Unescaped(value);
    if (key == "Terminal") entry.terminal = value == "true";
}

// A word from the front of the command line, with the blanks in front of it. False: a quote is left
// open.
bool TakeWord(std::string_view& line, std::string& word) {
    bool quoted = false;
    std::size_t i = 0;
    for (; i < line.size() && (quoted || line[i] != ' '); ++i) {
        if (line[i] == '"') {
            quoted = !quoted;
            continue;
        }
        const bool escape =
            line[i] == '\\' && i + 1 < line.size() &&
            (!quoted || std::string_view("\"`$\\").find(line[i + 1]) != std::string_view::npos);
        if (escape) ++i;
        word += line[i];
    }
    line.remove_prefix(i);
    return !quoted;
}

// "file:" and the path, with all but plain characters as "%" and two digits.
std::string FileAddress(std::string_view path) {
    std::string address = "file://";
    for (const char letter : path) {
        constexpr std::string_view plain =
            "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
        if (plain.find(letter) != plain.npos) {
            address += letter;
            continue;
        }
        constexpr const char* digits = "0123456789ABCDEF";
        const auto byte = static_cast<unsigned char>(letter);
        (address += '%') += digits[byte >> 4];
        address += digits[byte & 15];
    }
    return address;
}

// Puts what field codes stand for in their place.
class Filling {
 public:
    Filling(const DesktopEntry& entry, const std::string& path) : entry(entry), path(path) {}

    // False: there is no such code.
    bool Add(const std::string& word) {
        if (word == "%i") {
            if (!entry.icon.empty()) words.insert(words.end(), {"--icon", entry.icon});
            return true;
        }
        std::string filled;
        for (std::size_t i = 0; i < word.size(); ++i) {
            if (word[i] != '%') {
                filled += word[i];
            } else if (++i == word.size() || !AddCode(word[i], filled)) {
                return false;
            }
        }
        // A code alone that stands for nothing is no word.
        if (!filled.empty() || !word.starts_with('%')) words.push_back(filled);
        return true;
    }

    std::vector<std::string> words;
    bool holdsPath = false;

 private:
    bool AddCode(char code, std::string& filled) {
        switch (code) {
            case '%':
                filled += '%';
                return true;
            case 'f':
            case 'F':
                holdsPath = true;
                filled += path;
                return true;
            case 'u':
            case 'U':
                holdsPath = true;
                filled += FileAddress(path);
                return true;
            case 'c':
                filled += entry.name;
                return true;
            case 'k':
                filled += entry.file;
                return true;
            default:
                // Those that once meant something.
                return std::string_view("idDnNvm").find(code) != std::string_view::npos;
        }
    }

    const DesktopEntry& entry;
    const std::string& path;
};

}  // namespace

std::optional<DesktopEntry> ReadDesktopEntry(std::string_view text, const std::string& file) {
    DesktopEntry entry;
    entry.file = file;
    bool inside = false, isProgram = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = Trim(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) {
            if (inside) break;
            inside = line == "[Desktop Entry]";
        }
        const std::size_t equals = line.find('=');
        if (!inside || line.starts_with('#') || equals == line.npos) continue;
        const std::string_view key = Trim(line.substr(0, equals));
        const std::string_view value = Trim(line.substr(equals + 1));
        if (key == "Hidden" && value == "true") return std::nullopt;
        if (key == "Type") isProgram = value == "Application";
        Take(entry, key, value);
    }
    if (!isProgram || entry.exec.empty()) return std::nullopt;
    return entry;
}

std::vector<std::string> WordsFor(const DesktopEntry& entry, const std::string& path) {
    Filling filling(entry, path);
    std::string_view line = entry.exec;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (line.empty()) break;
        std::string word;
        if (!TakeWord(line, word) || !filling.Add(word)) return {};
    }
    if (filling.words.empty() || filling.words[0].empty()) return {};
    if (!filling.holdsPath) filling.words.push_back(path);
    return filling.words;
}

}  // namespace kivu::hosts
