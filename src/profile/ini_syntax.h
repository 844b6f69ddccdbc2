#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

// The form of a profile, line by line. Works on the file's bytes and copies none of them.
namespace kivu::profile {

// How names and values stand in the file. Left empty, they stand there as they are.
struct IniCoding {
    std::function<std::string(std::string_view bytes)> decode;
    std::function<std::string(std::string_view text)> encode;
};

// One line as places in the bytes: the text is [begin, end), the next line begins at `next`.
struct IniLine {
    std::size_t begin = 0;
    std::size_t end = 0;
    std::size_t next = 0;
};

// Walks the lines of a text. CR LF, LF and a lone CR each end a line; the last line may end
// without.
class IniLineReader {
 public:
    explicit IniLineReader(std::string_view bytes, std::size_t start = 0);
    bool Next(IniLine& line);

 private:
    std::string_view bytes;
    std::size_t at;
    // Kept from line to line: searched again for each line, a file without LF would cost a square.
    std::size_t nextLineFeed;
};

// The name in a "[name]" line; empty optional for any other line. A bracket that is followed by
// nothing but blanks or a comment closes the name, so "[a]b]" is the section "a]b"; with no such
// bracket the first one does.
std::optional<std::string_view> SectionNameOf(std::string_view line);

struct IniEntry {
    std::string_view key;       // without blanks around it, never empty
    std::string_view rawValue;  // all that stands behind the first "="
};

// A "key=value" line; empty optional for comments, section lines and anything else.
std::optional<IniEntry> EntryOf(std::string_view line);

// Nothing but blanks and tabs.
bool IsBlankLine(std::string_view line);

std::string_view TrimBlanksAndTabs(std::string_view text);

// The value as it is read: up to a NUL, without blanks around it and without one enclosing pair of
// double or single quotes.
std::string_view ReadableValue(std::string_view rawValue);

// The part of an encoded value or name that fits into a line: what stands before the first CR, LF
// or NUL.
std::string_view WithinLine(std::string_view bytes);

// Whether writing the value would change nothing but blanks around it.
bool HoldsValue(const IniEntry& entry, std::string_view value);

// Lines as they are written, ended by CR LF.
std::string EntryLine(std::string_view key, std::string_view value);
std::string SectionLine(std::string_view section);

// A section's or key's name to look for. Names are compared without regard to case.
class IniName {
 public:
    static IniName Section(std::string_view text, const IniCoding& coding);
    static IniName Key(std::string_view text, const IniCoding& coding);

    // False for a name that would not be read back as itself, such as an empty one or a key with
    // "=" in it: nothing is found under it, and nothing must be written.
    bool IsValid() const { return !bytes.empty(); }
    // As it stands in the file.
    const std::string& Bytes() const { return bytes; }
    // The same for all names that are equal without regard to case.
    const std::string& Folded() const { return folded; }
    // Whether a name in the file is this one, which must be valid.
    bool Matches(std::string_view nameInFile, const IniCoding& coding) const;

 private:
    IniName(std::string_view text, const IniCoding& coding);

    std::string bytes;
    std::string folded;
};

// A name in the file, as IniName::Folded gives it.
std::string FoldedName(std::string_view nameInFile, const IniCoding& coding);

std::string DecodeIni(const IniCoding& coding, std::string_view bytes);
std::string EncodeIni(const IniCoding& coding, std::string_view text);

// Bytes of the UTF-8 byte-order mark that the file begins with, or 0.
std::size_t ByteOrderMarkLength(std::string_view bytes);

// A file with a byte-order mark says itself that it is UTF-8, whatever the host's code page is, and
// stays UTF-8. Stray bytes in it are still read as `hostCoding` does.
IniCoding CodingOfMarkedFile(const IniCoding& hostCoding);

}  // namespace kivu::profile
