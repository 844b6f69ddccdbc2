#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "profile/ini_syntax.h"

namespace kivu::profile {

// A profile in memory: parsed once, read and changed by many keys, and then written at once, with
// the bytes that writing key by key would give. Any bytes are taken; a line that is not changed
// keeps every one of its bytes. Sections and keys are found without regard to case, and the first
// match wins: of two sections of one name, the second is never looked into. A file that begins with
// a byte-order mark is UTF-8 or UTF-16 and stays so.
class IniDocument {
 public:
    explicit IniDocument(std::string bytes = {}, IniCoding coding = {});

    // The value without blanks and one pair of quotes around it. Empty: the key is missing or has
    // no value, which a profile does not tell apart.
    std::string Value(std::string_view section, std::string_view key) const;

    // All that stands behind the "=", blanks and quotes too, undecoded; a UTF-16 file's in UTF-8.
    // Empty optional: there is no such key.
    std::optional<std::string> RawValue(std::string_view section, std::string_view key) const;
    // What Value gives for such bytes, and the bytes that Set writes for a value.
    std::string TextOfRaw(std::string_view rawValue) const;
    std::string RawOfText(std::string_view value) const;

    // Gives the key this value; a new key goes behind the last line of its section that is not
    // blank, a new section to the end. A written line ends in CR LF. Names and value are cut at the
    // first CR, LF or NUL. False: nothing changed, because the value stands there already or a name
    // cannot stand in a profile (an empty name, a key with "=" or a leading "[" or ";", a section
    // that its own brackets would cut).
    bool Set(std::string_view section, std::string_view key, std::string_view value);

    // Whether a Set has changed anything.
    bool IsChanged() const { return isChanged; }

    // The file as it is now, byte-order mark included.
    std::string Bytes() const;

 private:
    using LineIndex = std::size_t;
    static constexpr LineIndex kNone = static_cast<LineIndex>(-1);

    // A line with its line end, or a run of lines that are of no interest by themselves, as a place
    // in `text`. They are a chain, so that a new one goes in between without moving any other.
    struct Line {
        std::size_t begin = 0;
        std::size_t size = 0;
        LineIndex next = kNone;
    };

    void ReadForm();
    void Parse();
    LineIndex AppendLine(std::size_t begin, std::size_t size);
    std::string_view TextOf(LineIndex line) const;
    // Both give kNone when there is none.
    LineIndex FindEntry(const IniName& section, const IniName& key) const;
    bool ReplaceValue(LineIndex line, std::string_view value);
    void AddEntry(const IniName& section, const IniName& key, std::string_view value);
    void CloseLine(LineIndex line);
    void Rewrite(LineIndex line, std::string_view newText);
    static std::string EntryKey(std::string_view foldedSection, std::string_view foldedKey);

    std::string text;  // the file as it was, then each line written since
    IniCoding coding;
    bool isUtf16 = false;  // the file; `text` is UTF-8 all the same
    std::string oddByte;   // behind the last whole unit of a UTF-16 file
    std::size_t markLength = 0;
    bool isChanged = false;
    std::vector<Line> lines;
    LineIndex last = kNone;
    // By folded section: its last line that is not blank, behind which a new key goes.
    std::unordered_map<std::string, LineIndex> sectionEnds;
    std::unordered_map<std::string, LineIndex> entries;  // by EntryKey
};

}  // namespace kivu::profile
