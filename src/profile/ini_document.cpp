#include "profile/ini_document.h"

#include <utility>

#include "profile/ini_utf16.h"

namespace kivu::profile {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string_view WithoutLineEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of(kLineEnd) + 1);
}

}  // namespace

IniDocument::IniDocument(std::string bytes, IniCoding hostCoding)
    : text(std::move(bytes)), coding(std::move(hostCoding)) {
    ReadForm();
    Parse();
}

void IniDocument::ReadForm() {
    isUtf16 = IsMarkedUtf16(text);
    if (isUtf16) {
        if (text.size() % 2 != 0) oddByte = text.back();
        text = Utf16ToUtf8(text);
    }
    markLength = ByteOrderMarkLength(text);
    if (markLength > 0) coding = CodingOfMarkedFile(coding);
}

void IniDocument::Parse() {
    enum class Run { None, Blank, Other };
    IniLineReader reader(text, markLength);
    std::string section;         // folded
    bool isSectionOpen = false;  // false before the first section and in one seen before
    Run run = Run::None;         // what the last piece is and may go on with
    for (IniLine place; reader.Next(place);) {
        const std::string_view content =
            std::string_view(text).substr(place.begin, place.end - place.begin);
        const std::size_t size = place.next - place.begin;
        if (const auto name = SectionNameOf(content)) {
            section = FoldedName(*name, coding);
            isSectionOpen = sectionEnds.try_emplace(section, AppendLine(place.begin, size)).second;
            run = Run::None;
            continue;
        }
        const bool isBlank = isSectionOpen && IsBlankLine(content);
        const auto entry = isSectionOpen ? EntryOf(content) : std::nullopt;
        if (entry &&
            entries.try_emplace(EntryKey(section, FoldedName(entry->key, coding)), lines.size())
                .second) {
            AppendLine(place.begin, size);
            run = Run::None;
        } else if (const Run kind = isBlank ? Run::Blank : Run::Other; kind == run) {
            lines[last].size += size;
        } else {
            AppendLine(place.begin, size);
            run = kind;
        }
        if (isSectionOpen && !isBlank) sectionEnds[section] = last;
    }
}

std::string IniDocument::Value(std::string_view section, std::string_view key) const {
    const LineIndex line = FindEntry(IniName::Section(section, coding), IniName::Key(key, coding));
    if (line == kNone) return {};
    return TextOfRaw(EntryOf(WithoutLineEnd(TextOf(line)))->rawValue);
}

std::optional<std::string> IniDocument::RawValue(std::string_view section,
                                                 std::string_view key) const {
    const LineIndex line = FindEntry(IniName::Section(section, coding), IniName::Key(key, coding));
    if (line == kNone) return std::nullopt;
    return std::string(EntryOf(WithoutLineEnd(TextOf(line)))->rawValue);
}

std::string IniDocument::TextOfRaw(std::string_view rawValue) const {
    return DecodeIni(coding, ReadableValue(rawValue));
}

std::string IniDocument::RawOfText(std::string_view value) const {
    return std::string(WithinLine(EncodeIni(coding, value)));
}

bool IniDocument::Set(std::string_view section, std::string_view key, std::string_view value) {
    const IniName sectionName = IniName::Section(section, coding);
    const IniName keyName = IniName::Key(key, coding);
    if (!sectionName.IsValid() || !keyName.IsValid()) return false;
    const std::string writable = RawOfText(value);
    const LineIndex line = FindEntry(sectionName, keyName);
    if (line != kNone && !ReplaceValue(line, writable)) return false;
    if (line == kNone) AddEntry(sectionName, keyName, writable);
    isChanged = true;
    return true;
}

std::string IniDocument::Bytes() const {
    std::string bytes(text, 0, markLength);
    bytes.reserve(text.size());
    for (LineIndex line = lines.empty() ? kNone : 0; line != kNone; line = lines[line].next) {
        bytes += TextOf(line);
    }
    return isUtf16 ? Utf8ToUtf16(bytes) + oddByte : bytes;
}

IniDocument::LineIndex IniDocument::AppendLine(std::size_t begin, std::size_t size) {
    const LineIndex line = lines.size();
    lines.push_back({begin, size, kNone});
    if (last != kNone) lines[last].next = line;
    last = line;
    return line;
}

std::string_view IniDocument::TextOf(LineIndex line) const {
    return std::string_view(text).substr(lines[line].begin, lines[line].size);
}

IniDocument::LineIndex IniDocument::FindEntry(const IniName& section, const IniName& key) const {
    if (!section.IsValid() || !key.IsValid()) return kNone;
    const auto found = entries.find(EntryKey(section.Folded(), key.Folded()));
    return found == entries.end() ? kNone : found->second;
}

bool IniDocument::ReplaceValue(LineIndex line, std::string_view value) {
    const IniEntry entry = *EntryOf(WithoutLineEnd(TextOf(line)));
    if (HoldsValue(entry, value)) return false;
    Rewrite(line, EntryLine(entry.key, value));  // the key as the file spells it
    return true;
}

void IniDocument::AddEntry(const IniName& section, const IniName& key, std::string_view value) {
    auto end = sectionEnds.find(section.Folded());
    if (end == sectionEnds.end()) {
        if (last != kNone) CloseLine(last);
        const LineIndex header = AppendLine(text.size(), 0);
        Rewrite(header, SectionLine(section.Bytes()));
        end = sectionEnds.emplace(section.Folded(), header).first;
    }
    const LineIndex before = end->second;
    CloseLine(before);
    const LineIndex line = lines.size();
    lines.push_back({text.size(), 0, lines[before].next});
    lines[before].next = line;
    if (last == before) last = line;
    Rewrite(line, EntryLine(key.Bytes(), value));
    end->second = line;
    entries.emplace(EntryKey(section.Folded(), key.Folded()), line);
}

void IniDocument::CloseLine(LineIndex line) {
    const std::string_view content = TextOf(line);
    if (content.ends_with('\n') || content.ends_with('\r')) return;
    Rewrite(line, std::string(content) + "\r\n");
}

void IniDocument::Rewrite(LineIndex line, std::string_view newText) {
    lines[line].begin = text.size();
    lines[line].size = newText.size();
    text += newText;
}

std::string IniDocument::EntryKey(std::string_view foldedSection, std::string_view foldedKey) {
    std::string key;
    key.reserve(foldedSection.size() + 1 + foldedKey.size());
    return key.append(foldedSection).append("\n").append(foldedKey);
}

}  // namespace kivu::profile
