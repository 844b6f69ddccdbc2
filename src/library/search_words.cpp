#include "library/search_words.h"

#include <algorithm>
#include <bit>

namespace kivu::library {

namespace {

bool IsAscii(char c) {
    return static_cast<unsigned char>(c) < 0x80;
}

char CaseBit(char folded) {
    return folded >= 'a' && folded <= 'z' ? 0x20 : 0;
}

// The longest run of ASCII in a folded word.
std::string_view AsciiRun(std::string_view word) {
    std::string_view longest = word.substr(0, 0);
    for (std::size_t at = 0; at < word.size();) {
        std::size_t end = at;
        while (end < word.size() && IsAscii(word[end]))
            ++end;
        if (end - at > longest.size()) longest = word.substr(at, end - at);
        at = end + 1;
    }
    return longest;
}

// How common a character is in titles and paths: its place in this order, most common first.
std::size_t Commonness(char c) {
    constexpr std::string_view order = "earosintldmc/.hgpu)(ybkfvwd1a20s93xzjq";
    const std::size_t place = order.find(c);
    return place == std::string_view::npos ? order.size() : place;
}

std::vector<SearchWord> WordsOf(std::string_view text) {
    std::vector<SearchWord> words;
    for (const std::string_view word : text::Split(text, ' ')) {
        if (!word.empty()) words.emplace_back(word);
    }
    return words;
}

}  // namespace

SearchWord::SearchWord(std::string_view word) : needle(word) {
    folded = text::ToLower(word);
    probe = AsciiRun(folded);
    for (const char c : probe)
        caseBits += CaseBit(c);
    std::size_t first = 0;
    for (std::size_t i = 1; i < probe.size(); ++i) {
        if (Commonness(probe[i]) > Commonness(probe[first])) first = i;
    }
    std::size_t second = first == 0 && probe.size() > 1 ? 1 : 0;
    for (std::size_t i = 0; i < probe.size(); ++i) {
        if (i != first && Commonness(probe[i]) > Commonness(probe[second])) second = i;
    }
    if (probe.empty()) return;
    const auto letterAt = [this](std::size_t i) {
        return LetterPair::Letter{i, probe[i], caseBits[i]};
    };
    rarest = {letterAt(first), letterAt(second)};
}

bool SearchWord::MatchesAt(const char* place) const {
    // The two letters have been looked for already.
    if (probe.size() <= 2) return true;
    for (std::size_t i = 0; i < probe.size(); ++i) {
        if (static_cast<char>(place[i] | caseBits[i]) != probe[i]) return false;
    }
    return true;
}

std::size_t SearchWord::Find(std::string_view text, std::size_t from) const {
    return WordPlaces(*this, text).Next(from);
}

bool SearchWord::IsIn(std::string_view text) const {
    if (HasProbe() && Find(text, 0) == std::string_view::npos) return false;
    return IsExact() || needle.IsIn(text);
}

// Within stray bytes a word may stand where it begins in the middle of a character.
bool SearchWord::Implies(const SearchWord& other) const {
    if (folded == other.folded) return true;
    return text::IsUtf8(other.folded) && folded.find(other.folded) != std::string::npos;
}

WordPlaces::WordPlaces(const SearchWord& word, std::string_view text)
    : word(word),
      text(text.data()),
      end(text.size() < word.ProbeLength() ? 0 : text.size() - word.ProbeLength() + 1) {
}

std::size_t WordPlaces::Next(std::size_t from) {
    if (from >= ahead) {
        ahead = from;
        found = 0;
    } else if (from > begin) {
        found &= ~std::uint64_t{0} << (from - begin);
    }
    do {
        for (; found != 0; found &= found - 1) {
            const std::size_t place = begin + static_cast<std::size_t>(std::countr_zero(found));
            if (!word.MatchesAt(text + place)) continue;
            return place;
        }
    } while (Step());
    return std::string_view::npos;
}

// On to places that have the two letters. False: there are no more.
bool WordPlaces::Step() {
    found = NextPlaces(text, ahead, end, word.rarest);
    begin = ahead;
    if (found != 0) {
        ahead += LetterPair::step;
        return true;
    }
    // Less than a step is left.
    constexpr std::size_t eight = 8;
    for (; ahead < end && found == 0; ahead = std::min(begin + eight, end)) {
        begin = ahead;
        if (end < eight) {
            found = FewPlaces();
            continue;
        }
        // The last eight end where the text does.
        begin = std::min(begin, end - eight);
        found = std::uint64_t{PlacesInEight(text + begin, word.rarest)} >> (ahead - begin)
                                                                               << (ahead - begin);
    }
    return found != 0;
}

// The same from `ahead` on in a text with less than eight places.
std::uint64_t WordPlaces::FewPlaces() const {
    const auto stands = [](const char* place, const LetterPair::Letter& letter) {
        return static_cast<char>(place[letter.offset] | letter.caseBit) == letter.folded;
    };
    std::uint64_t places = 0;
    for (std::size_t at = ahead; at < end; ++at) {
        const bool both = stands(text + at, word.rarest.a) && stands(text + at, word.rarest.b);
        places |= std::uint64_t{both ? 1U : 0U} << (at - ahead);
    }
    return places;
}

SearchWords::SearchWords(std::string_view text) : SearchWords(WordsOf(text)) {
}

SearchWords::SearchWords(std::vector<SearchWord> left) : words(std::move(left)) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        plainAscii = plainAscii && words[i].IsExact();
        if (words[i].ProbeLength() > words[driver].ProbeLength()) driver = i;
    }
}

bool SearchWords::AreIn(std::string_view text) const {
    return std::all_of(words.begin(), words.end(),
                       [text](const SearchWord& word) { return word.IsIn(text); });
}

std::optional<SearchWords> SearchWords::Beyond(const SearchWords& found) const {
    const auto implied = [](const SearchWord& word, const std::vector<SearchWord>& by) {
        return std::any_of(by.begin(), by.end(),
                           [&word](const SearchWord& other) { return other.Implies(word); });
    };
    for (const SearchWord& word : found.words) {
        if (!implied(word, words)) return {};
    }
    std::vector<SearchWord> left;
    for (const SearchWord& word : words) {
        if (!implied(word, found.words)) left.push_back(word);
    }
    return SearchWords(std::move(left));
}

const SearchWord* SearchWords::Driver() const {
    return !words.empty() && words[driver].HasProbe() ? &words[driver] : nullptr;
}

bool SearchWords::OthersAreIn(std::string_view text) const {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i != driver && !words[i].IsIn(text)) return false;
    }
    return true;
}

bool SearchWords::AreInLine(std::string_view line, const Decode& decode) const {
    if (plainAscii || text::IsUtf8(line)) return AreIn(line);
    return AreIn(decode(line));
}

bool SearchWords::ForEachLine(std::string_view block, const Decode& decode, const Hit& hit) const {
    const SearchWord* driverWord = Driver();
    std::optional<WordPlaces> jump;
    if (driverWord) jump.emplace(*driverWord, block);
    for (std::size_t at = 0; at < block.size();) {
        std::size_t begin = at;
        if (jump) {
            const std::size_t place = jump->Next(at);
            if (place == std::string_view::npos) return true;
            begin = place;
            while (begin > at && block[begin - 1] != '\n')
                --begin;
        }
        const std::size_t end = std::min(block.find('\n', begin), block.size());
        std::string_view line = block.substr(begin, end - begin);
        if (line.ends_with('\r')) line.remove_suffix(1);
        if (AreInLine(line, decode) && !hit(line)) return false;
        at = end + 1;
    }
    return true;
}

}  // namespace kivu::library
