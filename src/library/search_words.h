#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "library/letter_pair.h"
#include "text/text.h"

// A search is over tens of thousands of rows at each key, and over millions of lines across all
// caches. Almost none of them match, so what counts is how fast the rest are passed over.
namespace kivu::library {

// One word to be looked for without regard to case: many bytes are looked at in one step, for two
// letters of the word that are rare in titles; only where both stand in their places is the word
// compared.
class SearchWord {
 public:
    explicit SearchWord(std::string_view word);

    bool IsIn(std::string_view text) const;
    // The first place at or behind `from` where the probe stands, the word's longest run of ASCII,
    // or npos. That is the word itself if IsExact; otherwise the text around it has to be tested by
    // IsIn. Not for words without a probe.
    std::size_t Find(std::string_view text, std::size_t from) const;

    bool HasProbe() const { return !probe.empty(); }
    bool IsExact() const { return probe.size() == folded.size(); }
    std::size_t ProbeLength() const { return probe.size(); }
    // Whether every text with this word contains the other one.
    bool Implies(const SearchWord& other) const;

 private:
    friend class WordPlaces;
    // A place of the two rarest letters.
    bool MatchesAt(const char* place) const;

    std::string folded;
    std::string probe;     // folded
    std::string caseBits;  // what each byte of a text is joined with before it is compared
    LetterPair rarest;     // letters of the probe
    text::NoCaseNeedle needle;
};

// The places in a text where a word's probe stands, one by one: what a step has found is kept for
// the next ones. The word and the text live longer.
class WordPlaces {
 public:
    WordPlaces(const SearchWord& word, std::string_view text);
    // The first place at or behind `from`, or npos. Each call goes on behind the one before.
    std::size_t Next(std::size_t from);

 private:
    bool Step();
    std::uint64_t FewPlaces() const;

    const SearchWord& word;
    const char* text;
    std::size_t end;          // behind the last place where the probe may begin
    std::size_t begin = 0;    // of the step that `found` is about
    std::uint64_t found = 0;  // places of the two letters there that are still to be looked at
    std::size_t ahead = 0;    // the first place that no step has looked at
};

// The words of a search text, split at each blank. A text matches if it contains every one,
// anywhere and in any order, without regard to case; the empty word between two blanks is in every
// text.
class SearchWords {
 public:
    explicit SearchWords(std::string_view text);

    bool AreIn(std::string_view text) const;
    // The words that are left to be looked for in texts that contain all words of `found`. Nothing:
    // there may be other texts that match.
    std::optional<SearchWords> Beyond(const SearchWords& found) const;
    bool IsEmpty() const { return words.empty(); }
    // The word to look for first, if there is one with a probe.
    const SearchWord* Driver() const;
    // Whether the others are in a text too.
    bool OthersAreIn(std::string_view text) const;
    // Calls `hit` with each matching line of `block`, in order, until it gives false, which comes
    // back. A line ends in LF or CR LF, which are not part of it; the last may lack its end.
    // A line that is not UTF-8 is decoded by `decode` first where that matters.
    using Hit = std::function<bool(std::string_view line)>;
    using Decode = std::function<std::string(std::string_view bytes)>;
    bool ForEachLine(std::string_view block, const Decode& decode, const Hit& hit) const;

 private:
    explicit SearchWords(std::vector<SearchWord> left);
    bool AreInLine(std::string_view line, const Decode& decode) const;

    std::vector<SearchWord> words;  // the empty ones left out
    std::size_t driver = 0;         // the word with the longest probe
    bool plainAscii = true;
};

}  // namespace kivu::library
