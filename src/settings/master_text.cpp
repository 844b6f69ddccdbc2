#include "settings/master_text.h"

#include <algorithm>
#include <array>

#include "text/text.h"

namespace kivu::settings {

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::array<std::string_view, 3> ownKeys{"floppy1=", "floppy2=", "kickstart_rom_file="};

// At most `limit` bytes and one more.
std::optional<std::string> ReadUpTo(const platform::FileSystem& files, const std::string& path,
                                    std::size_t limit) {
    const auto reader = files.OpenFile(path);
    if (!reader) return std::nullopt;
    std::string bytes;
    std::array<char, 16384> block;
    while (bytes.size() <= limit) {
        const std::size_t count =
            reader->Read(block.data(), std::min(block.size(), limit + 1 - bytes.size()));
        if (count == 0) break;
        bytes.append(block.data(), count);
    }
    return bytes;
}

// What stands between the line ends, behind the last one too.
std::vector<std::string_view> Pieces(std::string_view text) {
    std::vector<std::string_view> pieces = text::Split(text, '\n');
    if (pieces.empty()) pieces.emplace_back();
    for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
        if (pieces[i].ends_with('\r')) pieces[i].remove_suffix(1);
    }
    return pieces;
}

}  // namespace

bool ImportOfConfigStringAllowedValue(std::string_view String1) {
    return !text::Trim(String1).empty() &&
           std::none_of(ownKeys.begin(), ownKeys.end(), [&](std::string_view key) {
               return String1.find(key) != std::string_view::npos;
           });
}

std::string AllowedLines(std::string_view bytes) {
    std::string text;
    for (const std::string_view line : text::SplitLines(bytes)) {
        if (ImportOfConfigStringAllowedValue(line)) text.append(line).append(lineEnd);
    }
    return text;
}

MasterText::File MasterText::Read(const std::string& name) const {
    File file;
    file.exists = !name.empty() && files.IdentityOf(name).has_value();
    if (!file.exists) return file;
    file.bytes = ReadUpTo(files, name, largestConfiguration);
    const bool isText = file.bytes && file.bytes->size() <= largestConfiguration &&
                        file.bytes->find('\0') == std::string::npos;
    if (!isText) file.bytes.reset();
    return file;
}

std::string MasterText::Shown(std::string_view bytes) {
    lineBytes.clear();
    std::string text;
    const std::string allowed = AllowedLines(bytes);
    for (const std::string_view line : text::SplitLines(allowed)) {
        const std::string decoded = files.DecodeText(line);
        text.append(decoded).append(lineEnd);
        lineBytes[decoded].emplace_back(line);
    }
    return text;
}

std::string MasterText::Load(const std::string& name) {
    path = name;
    emptied = false;
    made = false;
    read = Read(path);
    shown = Shown(read.bytes.value_or(""));
    return shown;
}

void MasterText::FileMade() {
    if (read.exists) return;
    read = Read(path);
    made = true;
}

void MasterText::FileMadeWith(std::string_view bytes) {
    const File file = Read(path);
    if (file.bytes != bytes) return;
    FileMade();
    // What the box has been emptied of is nobody's work.
    if (file == read) emptied = false;
}

std::optional<std::string> MasterText::Import(const std::string& name) {
    const File file = Read(name);
    if (!file.bytes) return std::nullopt;
    emptied = false;
    return Shown(*file.bytes);
}

MasterText::Step MasterText::StepFor(std::string_view boxText) const {
    if (emptied && boxText.empty()) return Step::leave;
    const bool touched = boxText != shown;
    const File now = Read(path);
    // What has been typed into the box does not show what it would replace.
    if (emptied && !shown.empty()) return Step::ask;
    if (now != read) return touched ? Step::ask : Step::reload;
    if (made && !touched) return Step::reload;
    if (now.bytes) return Step::write;
    // Of a file that cannot be shown the box says nothing, and a missing one is made by its
    // default.
    if (!touched) return Step::leave;
    return now.exists ? Step::ask : Step::write;
}

std::string MasterText::BytesFor(std::string_view boxText) const {
    std::map<std::string_view, std::size_t> used;
    std::string bytes;
    for (const std::string_view line : Pieces(boxText)) {
        const auto known = lineBytes.find(line);
        if (known == lineBytes.end()) {
            bytes += files.EncodeText(line);
        } else {
            const std::size_t last = known->second.size() - 1;
            bytes += known->second[std::min(used[known->first]++, last)];
        }
        bytes += lineEnd;
    }
    return bytes;
}

std::error_code MasterText::Write(std::string_view boxText) {
    std::string bytes = BytesFor(boxText);
    if (const std::error_code error = files.WriteFile(path, bytes)) return error;
    read = {true, std::move(bytes)};
    shown = boxText;
    emptied = false;
    made = false;
    return {};
}

}  // namespace kivu::settings
