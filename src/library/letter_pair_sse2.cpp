#ifdef __SSE2__

#include <algorithm>
#include <emmintrin.h>

#include "library/letter_pair.h"

namespace kivu::library {

namespace {

using Vector = __m128i;

constexpr std::size_t vectorBytes = sizeof(Vector);
constexpr std::size_t vectors = LetterPair::step / vectorBytes;

inline Vector Load(const char* from) {
    return _mm_loadu_si128(reinterpret_cast<const Vector*>(from));
}

inline std::uint64_t BitsOf(Vector lanes) {
    return static_cast<std::uint32_t>(_mm_movemask_epi8(lanes));
}

}  // namespace

std::uint64_t NextPlaces(const char* text, std::size_t& at, std::size_t end,
                         const LetterPair& pair) {
    const Vector caseA = _mm_set1_epi8(pair.a.caseBit), letterA = _mm_set1_epi8(pair.a.folded);
    const Vector caseB = _mm_set1_epi8(pair.b.caseBit), letterB = _mm_set1_epi8(pair.b.folded);
    const auto both = [&](const char* place) {
        const Vector a = _mm_or_si128(Load(place + pair.a.offset), caseA);
        const Vector b = _mm_or_si128(Load(place + pair.b.offset), caseB);
        return _mm_and_si128(_mm_cmpeq_epi8(a, letterA), _mm_cmpeq_epi8(b, letterB));
    };
    for (; at + LetterPair::step <= end; at += LetterPair::step) {
        const char* place = text + at;
        const Vector found[vectors] = {both(place), both(place + vectorBytes),
                                       both(place + 2 * vectorBytes),
                                       both(place + 3 * vectorBytes)};
        const Vector any =
            _mm_or_si128(_mm_or_si128(found[0], found[1]), _mm_or_si128(found[2], found[3]));
        if (BitsOf(any) == 0) continue;
        return BitsOf(found[0]) | BitsOf(found[1]) << 16 | BitsOf(found[2]) << 32 |
               BitsOf(found[3]) << 48;
    }
    return 0;
}

std::size_t CountLineFeeds(std::string_view block) {
    const Vector feed = _mm_set1_epi8('\n');
    Vector sums = _mm_setzero_si128();
    std::size_t at = 0;
    for (; at + LetterPair::step <= block.size(); at += LetterPair::step) {
        // A lane is -1 for each line feed.
        const auto feeds = [&](std::size_t i) {
            return _mm_cmpeq_epi8(Load(block.data() + at + i * vectorBytes), feed);
        };
        const Vector four =
            _mm_add_epi8(_mm_add_epi8(feeds(0), feeds(1)), _mm_add_epi8(feeds(2), feeds(3)));
        const Vector zero = _mm_setzero_si128();
        sums = _mm_add_epi64(sums, _mm_sad_epu8(_mm_sub_epi8(zero, four), zero));
    }
    std::uint64_t halves[2];
    _mm_storeu_si128(reinterpret_cast<Vector*>(halves), sums);
    return halves[0] + halves[1] +
           static_cast<std::size_t>(
               std::count(block.begin() + static_cast<std::ptrdiff_t>(at), block.end(), '\n'));
}

}  // namespace kivu::library

#endif
