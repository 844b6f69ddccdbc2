#include "hosts/linux/user_store_linux.h"

#include <optional>
#include <string_view>
#include <vector>

#include "hosts/linux/user_directories.h"
#include "text/text.h"

namespace kivu::hosts {

namespace {

// Larger files are somebody else's. In bytes.
constexpr std::size_t maxStoreSize = 1 << 20;

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks(" \t\r\n\0", 5);
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

bool SameName(std::string_view one, std::string_view other) {
    if (one.size() != other.size()) return false;
    for (std::size_t i = 0; i < one.size(); ++i) {
        if (text::ToLowerAscii(one[i]) != text::ToLowerAscii(other[i])) return false;
    }
    return true;
}

// Each with its line end, so that joining them gives the text again.
std::vector<std::string> Lines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto length = end == std::string_view::npos ? text.size() : end + 1;
        lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::optional<std::string_view> SectionName(std::string_view line) {
    line = Trimmed(line);
    if (!line.starts_with('[') || !line.ends_with(']') || line.size() < 2) return std::nullopt;
    return Trimmed(line.substr(1, line.size() - 2));
}

std::optional<std::string_view> KeyName(std::string_view line) {
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) return std::nullopt;
    return Trimmed(line.substr(0, equals));
}

std::string ValueOf(std::string_view line) {
    std::string_view value = Trimmed(line.substr(line.find('=') + 1));
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        value = value.substr(1, value.size() - 2);
    return std::string(value);
}

std::string LineOf(const std::string& key, std::string value) {
    for (char& letter : value) {
        if (letter == '\r' || letter == '\n' || letter == '\0') letter = ' ';
    }
    const bool wouldBeTrimmed = Trimmed(value).size() != value.size();
    const bool looksQuoted = value.size() >= 2 && value.front() == '"' && value.back() == '"';
    if (wouldBeTrimmed || looksQuoted) value = '"' + value + '"';
    return key + "=" + value + "\r\n";
}

bool IsPlainName(const std::string& name, std::string_view marks) {
    if (name.empty() || Trimmed(name).size() != name.size()) return false;
    if (name.front() == ';' || name.front() == '#' || name.front() == '[') return false;
    for (const char letter : name) {
        if (static_cast<unsigned char>(letter) < ' ') return false;
        if (marks.find(letter) != std::string_view::npos) return false;
    }
    return true;
}

struct Place {
    std::optional<std::size_t> entry;       // the line of the key
    std::optional<std::size_t> sectionEnd;  // behind the section's last line that says anything
};

Place Find(const std::vector<std::string>& lines, const std::string& section,
           const std::string& key) {
    Place place;
    bool inside = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (const auto name = SectionName(lines[i])) {
            // Of two sections of one name the first counts, as in every profile.
            inside = !place.sectionEnd && SameName(*name, section);
            if (inside) place.sectionEnd = i + 1;
        } else if (inside) {
            const auto entry = KeyName(lines[i]);
            if (entry && SameName(*entry, key)) {
                place.entry = i;
                return place;
            }
            if (!Trimmed(lines[i]).empty()) place.sectionEnd = i + 1;
        }
    }
    return place;
}

void EndLine(std::vector<std::string>& lines) {
    if (!lines.empty() && !lines.back().ends_with('\n')) lines.back() += "\r\n";
}

void PutEntry(std::vector<std::string>& lines, const Place& place, const std::string& section,
              const std::string& line) {
    EndLine(lines);
    if (place.entry) {
        lines[*place.entry] = line;
    } else if (place.sectionEnd) {
        lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(*place.sectionEnd), line);
    } else {
        lines.push_back("[" + section + "]\r\n");
        lines.push_back(line);
    }
}

}  // namespace

LinuxUserStore::LinuxUserStore() {
    const std::string directory = UserConfigDirectory();
    if (!directory.empty()) path = directory + "/Kivu/user.ini";
}

std::string LinuxUserStore::Get(const std::string& section, const std::string& key,
                                const std::string& missing) const {
    const auto text = files.ReadFile(path);
    if (!text || text->size() > maxStoreSize) return missing;
    const auto lines = Lines(*text);
    const auto place = Find(lines, section, key);
    return place.entry ? ValueOf(lines[*place.entry]) : missing;
}

void LinuxUserStore::Set(const std::string& section, const std::string& key,
                         const std::string& value) {
    if (path.empty() || !IsPlainName(section, "[]") || !IsPlainName(key, "=")) return;
    const auto old = files.ReadFile(path);
    if (!old && files.ShortPathName(path) == path) return;
    if (old && old->size() > maxStoreSize) return;

    auto lines = Lines(old.value_or(""));
    PutEntry(lines, Find(lines, section, key), section, LineOf(key, value));
    std::string text;
    for (const auto& line : lines)
        text += line;
    if (old == text) return;
    if (MakeUserDirectory(path.substr(0, path.rfind('/')))) return;
    // A store that cannot be written forgets; there is nobody to tell.
    static_cast<void>(files.WriteFile(path, text));
}

std::string LinuxUserStore::SystemValue(const std::string&, const std::string&,
                                        const std::string&) const {
    return {};
}

}  // namespace kivu::hosts
