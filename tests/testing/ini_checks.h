#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "profile/ini_document.h"
#include "profile/ini_scan.h"
#include "profile/ini_utf16.h"

namespace kivu::testing {

// What must hold for a profile of any bytes. Used by the random tests and by the fuzzer; each check
// gives the empty text, or what is wrong.
class IniChecks {
 public:
    explicit IniChecks(std::string bytes, profile::IniCoding hostCoding = {})
        : bytes(std::move(bytes)), hostCoding(std::move(hostCoding)), coding(this->hostCoding) {
        if (profile::ByteOrderMarkLength(Plain(this->bytes)) > 0) {
            coding = profile::CodingOfMarkedFile(this->hostCoding);
        }
    }

    const std::string& Bytes() const { return bytes; }

    // Sets the value in the bytes and checks what that does, and does not do.
    std::string Set(std::string_view section, std::string_view key, std::string_view value) {
        profile::IniDocument profile(bytes, hostCoding);
        if (profile.Bytes() != bytes) return "parsing alone changes bytes";
        if (profile.Value(section, key) != Read(bytes, section, key)) return "two ways to read";
        const bool changed = profile.Set(section, key, value);
        const std::string after = profile.Bytes();
        if (profile::SetIniValue(bytes, section, key, value, hostCoding).value_or(bytes) != after) {
            return "two ways to write";
        }
        if (changed == (after == bytes)) return "a change that is none, or an unsaid one";
        if (profile.Value(section, key) != Read(after, section, key)) return "not read back alike";
        if (IsPossible(section, key) && Read(after, section, key) != Expected(value)) {
            return "the value that was set is not read back";
        }
        if (profile.Set(section, key, value)) return "the same value again is a change";
        std::string problem = CheckLines(Plain(bytes), Plain(after));
        if (problem.empty()) problem = CheckOthers(after, section, key);
        bytes = after;
        return problem;
    }

 private:
    struct Name {
        std::string section;
        std::string key;
    };

    std::string Read(std::string_view from, std::string_view section, std::string_view key) const {
        return profile::FindIniValue(from, section, key, hostCoding);
    }

    bool IsPossible(std::string_view section, std::string_view key) const {
        return profile::IniName::Section(section, coding).IsValid() &&
               profile::IniName::Key(key, coding).IsValid();
    }

    std::string Expected(std::string_view value) const {
        return profile::DecodeIni(
            coding, profile::ReadableValue(profile::WithinLine(profile::EncodeIni(coding, value))));
    }

    // 8-bit, whatever the file is.
    static std::string Plain(const std::string& file) {
        return profile::IsMarkedUtf16(file) ? profile::Utf16ToUtf8(file) : file;
    }

    static std::vector<std::string_view> LinesOf(std::string_view from) {
        std::vector<std::string_view> lines;
        profile::IniLineReader reader(from);
        for (profile::IniLine line; reader.Next(line);) {
            lines.push_back(from.substr(line.begin, line.next - line.begin));
        }
        return lines;
    }

    // All lines but the written one, and a last line that lacked its end, keep their bytes.
    static std::string CheckLines(std::string_view before, std::string_view after) {
        const auto old = LinesOf(before);
        const auto now = LinesOf(after);
        std::size_t joined = 0;
        for (const std::string_view line : now)
            joined += line.size();
        if (joined != after.size()) return "lines with gaps";
        if (after == before) return {};
        std::size_t front = 0;
        while (front < old.size() && front < now.size() && old[front] == now[front])
            ++front;
        std::size_t back = 0;
        while (back < old.size() - front && back < now.size() - front &&
               old[old.size() - 1 - back] == now[now.size() - 1 - back]) {
            ++back;
        }
        if (old.size() - front - back > 1) return "more than one line changed";
        if (now.size() < old.size() || now.size() > old.size() + 2) return "lines lost or added";
        for (std::size_t at = front; at < now.size() - back; ++at) {
            if (!now[at].ends_with("\r\n")) return "a written line does not end in CR LF";
        }
        return {};
    }

    std::vector<Name> NamesIn(std::string_view from) const {
        std::vector<Name> names;
        std::string section;
        profile::IniLineReader reader(from, profile::ByteOrderMarkLength(from));
        for (profile::IniLine line; reader.Next(line) && names.size() < 40;) {
            const auto content = from.substr(line.begin, line.end - line.begin);
            if (const auto name = profile::SectionNameOf(content)) section = *name;
            if (const auto entry = profile::EntryOf(content)) {
                names.push_back(
                    {profile::DecodeIni(coding, section), profile::DecodeIni(coding, entry->key)});
            }
        }
        return names;
    }

    std::string CheckOthers(std::string_view after, std::string_view section,
                            std::string_view key) const {
        const auto same = [&](const profile::IniName& a, const profile::IniName& b) {
            return a.Folded() == b.Folded();
        };
        const auto setSection = profile::IniName::Section(section, coding);
        const auto setKey = profile::IniName::Key(key, coding);
        for (const Name& name : NamesIn(Plain(bytes))) {
            if (same(profile::IniName::Section(name.section, coding), setSection) &&
                same(profile::IniName::Key(name.key, coding), setKey)) {
                continue;
            }
            if (Read(bytes, name.section, name.key) != Read(after, name.section, name.key)) {
                return "another key's value changed: [" + name.section + "] " + name.key;
            }
        }
        return {};
    }

    std::string bytes;
    profile::IniCoding hostCoding;
    profile::IniCoding coding;  // of this file, which may have a byte-order mark
};

}  // namespace kivu::testing
