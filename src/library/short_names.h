#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// From file names to the titles that the lists show. Collections name their images by a habit: a
// title, then facts in parentheses, as in "Game (1990)(Maker)(Disk 1 of 2).adf".
namespace kivu::library {

// The title of a path: its file name up to and with the second `TRENNZ`, or the first where there
// is only one or `ErstAbDemZweitenAbschneiden` is off. A name without `TRENNZ`, or with one among
// its first four characters, loses its last four characters, the usual extension. A file name of
// less than five characters gives the whole path, which keeps such names apart. Characters are code
// points; the result is trimmed.
std::string CutShortName(std::string_view FullPath, std::string_view TRENNZ,
                         bool ErstAbDemZweitenAbschneiden);

// How different two names are, a swap of neighbours counting 1; no more than the limit, nor than
// both lengths together. Case counts.
int getCharDiff(std::string_view String1, std::string_view String2);
int getCharDiff(std::string_view String1, std::string_view String2, int Limit);

struct WrappedCaption {
    std::string caption;
    bool hide = false;  // there is no place left for a break, and the caption is still too wide
};

// Breaks a caption with carriage returns, at most eleven of them, until `width` of it is `maxWidth`
// or less, in whatever unit both are. Each break takes the place of a blank, a "_" or a "-" from
// the middle on, or of the character in the middle.
WrappedCaption WrapCaption(std::string caption,
                           const std::function<double(const std::string&)>& width, double maxWidth);

struct AliasRule {
    std::string find;
    std::string newName;
};

// One rule per line: what to look for, the separator, the title to show; both trimmed. Lines
// without the separator are passed over. Lines that are not UTF-8 are read as Windows-1252.
std::vector<AliasRule> ParseAliasList(std::string_view text, std::string_view separator);

}  // namespace kivu::library
