#include "library/search_words.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace kivu::library {

namespace {

using Lanes = std::uint64_t;  // eight bytes side by side
constexpr Lanes kOnes = 0x0101010101010101;
constexpr Lanes kLow7 = 0x7F7F7F7F7F7F7F7F;
constexpr std::size_t kLaneCount = sizeof(Lanes);
constexpr std::size_t kStep = 64;  // bytes looked at in one go where nothing is expected

Lanes Fill(char byte) {
    return kOnes * static_cast<unsigned char>(byte);
}

// Eight bytes, the first of them in the lowest lane.
Lanes Load(const char* place) {
    if constexpr (std::endian::native == std::endian::little) {
        Lanes lanes;
        std::memcpy(&lanes, place, sizeof(lanes));
        return lanes;
    } else {
        Lanes lanes = 0;
        for (std::size_t i = kLaneCount; i-- > 0;)
            lanes = lanes << 8 | static_cast<unsigned char>(place[i]);
        return lanes;
    }
}

// The highest bit of each lane that is 0, exactly.
Lanes ZeroLanes(Lanes lanes) {
    return ~(((lanes & kLow7) + kLow7) | lanes | kLow7);
}

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
    for (std::size_t i = 1; i < probe.size(); ++i) {
        if (Commonness(probe[i]) > Commonness(probe[first])) first = i;
    }
    second = first == 0 && probe.size() > 1 ? 1 : 0;
    for (std::size_t i = 0; i < probe.size(); ++i) {
        if (i != first && Commonness(probe[i]) > Commonness(probe[second])) second = i;
    }
    if (second < first) std::swap(first, second);
}

bool SearchWord::MatchesAt(const char* place) const {
    for (std::size_t i = 0; i < probe.size(); ++i) {
        if (static_cast<char>(place[i] | caseBits[i]) != probe[i]) return false;
    }
    return true;
}

// Whether one of the places begin to begin + kStep - 1 has both letters. A plain loop of fixed
// length, which compilers turn into vector instructions.
bool SearchWord::LettersStandNear(const char* begin) const {
    const auto firstCase = static_cast<unsigned char>(caseBits[first]);
    const auto secondCase = static_cast<unsigned char>(caseBits[second]);
    const auto firstLetter = static_cast<unsigned char>(probe[first]);
    const auto secondLetter = static_cast<unsigned char>(probe[second]);
    const auto* a = reinterpret_cast<const unsigned char*>(begin + first);
    const auto* b = reinterpret_cast<const unsigned char*>(begin + second);
    unsigned char any = 0;
    for (std::size_t i = 0; i < kStep; ++i) {
        const auto differs = static_cast<unsigned char>(((a[i] | firstCase) ^ firstLetter) |
                                                        ((b[i] | secondCase) ^ secondLetter));
        any |= static_cast<unsigned char>(differs == 0 ? 1 : 0);
    }
    return any != 0;
}

std::size_t SearchWord::Find(std::string_view text, std::size_t from) const {
    if (text.size() < probe.size()) return std::string_view::npos;
    const char* const begin = text.data();
    const std::size_t places = text.size() - probe.size() + 1;  // where the probe may begin
    const Lanes firstCase = Fill(caseBits[first]), firstLetter = Fill(probe[first]);
    const Lanes secondCase = Fill(caseBits[second]), secondLetter = Fill(probe[second]);
    std::size_t at = from;
    while (at + kLaneCount <= places) {
        while (at + kStep <= places && !LettersStandNear(begin + at))
            at += kStep;
        for (const std::size_t end = at + kStep; at < end && at + kLaneCount <= places;
             at += kLaneCount) {
            const Lanes a = (Load(begin + at + first) | firstCase) ^ firstLetter;
            const Lanes b = (Load(begin + at + second) | secondCase) ^ secondLetter;
            for (Lanes found = ZeroLanes(a | b); found != 0; found &= found - 1) {
                const auto lane = static_cast<std::size_t>(std::countr_zero(found)) / 8;
                if (MatchesAt(begin + at + lane)) return at + lane;
            }
        }
    }
    for (; at < places; ++at) {
        if (MatchesAt(begin + at)) return at;
    }
    return std::string_view::npos;
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
    const SearchWord* jump = Driver();
    for (std::size_t at = 0; at < block.size();) {
        std::size_t begin = at;
        if (jump) {
            const std::size_t place = jump->Find(block, at);
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

std::size_t CountLineFeeds(std::string_view block) {
    // Each of the columns counts for itself, which goes well for 255 rows.
    constexpr std::size_t columns = 64;
    std::size_t count = 0;
    std::size_t at = 0;
    while (at + columns <= block.size()) {
        const std::size_t rows = std::min<std::size_t>((block.size() - at) / columns, 255);
        std::array<unsigned char, columns> sums{};
        for (std::size_t row = 0; row < rows; ++row, at += columns) {
            const char* place = block.data() + at;
            for (std::size_t i = 0; i < columns; ++i)
                sums[i] = static_cast<unsigned char>(sums[i] + (place[i] == '\n' ? 1 : 0));
        }
        for (const unsigned char sum : sums)
            count += sum;
    }
    return count + static_cast<std::size_t>(std::count(
                       block.begin() + static_cast<std::ptrdiff_t>(at), block.end(), '\n'));
}

}  // namespace kivu::library
