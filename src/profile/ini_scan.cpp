#include "profile/ini_scan.h"

#include "profile/ini_utf16.h"

namespace kivu::profile {

namespace {

// What is looked for, in a file of this coding.
struct IniTarget {
    IniTarget(std::string_view bytes, std::string_view section, std::string_view key,
              const IniCoding& hostCoding)
        : markLength(ByteOrderMarkLength(bytes)),
          coding(markLength > 0 ? CodingOfMarkedFile(hostCoding) : hostCoding),
          section(IniName::Section(section, coding)),
          key(IniName::Key(key, coding)) {}

    bool IsValid() const { return section.IsValid() && key.IsValid(); }

    std::size_t markLength;
    IniCoding coding;
    IniName section;
    IniName key;
};

struct IniPlace {
    std::optional<IniEntry> entry;
    IniLine line;                           // of the entry
    std::optional<std::size_t> sectionEnd;  // behind the section's last line that is not blank
};

IniPlace FindPlace(std::string_view bytes, const IniTarget& target) {
    IniPlace place;
    IniLineReader reader(bytes, target.markLength);
    while (reader.Next(place.line)) {
        const std::string_view line =
            bytes.substr(place.line.begin, place.line.end - place.line.begin);
        if (const auto name = SectionNameOf(line)) {
            if (place.sectionEnd) break;
            if (target.section.Matches(*name, target.coding)) place.sectionEnd = place.line.next;
        } else if (place.sectionEnd && !IsBlankLine(line)) {
            place.sectionEnd = place.line.next;
            place.entry = EntryOf(line);
            if (place.entry && target.key.Matches(place.entry->key, target.coding)) return place;
        }
    }
    place.entry.reset();
    return place;
}

// Puts `added` into the bytes at `at`, in front of which a line must have ended.
std::string Inserted(std::string_view bytes, std::size_t at, std::size_t markLength,
                     std::string_view added) {
    const bool isOpen = at > markLength && bytes[at - 1] != '\n' && bytes[at - 1] != '\r';
    std::string result;
    result.reserve(bytes.size() + added.size() + 2);
    result.append(bytes.substr(0, at)).append(isOpen ? "\r\n" : "").append(added);
    return result.append(bytes.substr(at));
}

std::optional<std::string> SetInUtf16(std::string_view bytes, std::string_view section,
                                      std::string_view key, std::string_view value,
                                      const IniCoding& coding) {
    const auto changed = SetIniValue(Utf16ToUtf8(bytes), section, key, value, coding);
    if (!changed) return std::nullopt;
    const std::string_view oddByte = bytes.substr(bytes.size() - bytes.size() % 2);
    return Utf8ToUtf16(*changed).append(oddByte);
}

}  // namespace

std::string FindIniValue(std::string_view bytes, std::string_view section, std::string_view key,
                         const IniCoding& coding) {
    if (IsMarkedUtf16(bytes)) return FindIniValue(Utf16ToUtf8(bytes), section, key, coding);
    const IniTarget target(bytes, section, key, coding);
    if (!target.IsValid()) return {};
    const IniPlace place = FindPlace(bytes, target);
    return place.entry ? DecodeIni(target.coding, ReadableValue(place.entry->rawValue))
                       : std::string();
}

std::optional<std::string> SetIniValue(std::string_view bytes, std::string_view section,
                                       std::string_view key, std::string_view value,
                                       const IniCoding& coding) {
    if (IsMarkedUtf16(bytes)) return SetInUtf16(bytes, section, key, value, coding);
    const IniTarget target(bytes, section, key, coding);
    if (!target.IsValid()) return std::nullopt;
    const std::string encoded = EncodeIni(target.coding, value);
    const std::string_view writable = WithinLine(encoded);
    const IniPlace place = FindPlace(bytes, target);
    if (place.entry) {
        if (HoldsValue(*place.entry, writable)) return std::nullopt;
        std::string result(bytes.substr(0, place.line.begin));
        result.append(EntryLine(place.entry->key, writable));
        return result.append(bytes.substr(place.line.next));
    }
    std::string added = EntryLine(target.key.Bytes(), writable);
    if (!place.sectionEnd) added.insert(0, SectionLine(target.section.Bytes()));
    return Inserted(bytes, place.sectionEnd.value_or(bytes.size()), target.markLength, added);
}

}  // namespace kivu::profile
