#ifdef __SSE2__

#include <algorithm>
#include <cstring>
#include <emmintrin.h>

#include "png/filters.h"

namespace kivu::png {
namespace {

using Vector = __m128i;

constexpr std::size_t vectorBytes = sizeof(Vector);

inline Vector Load(const std::uint8_t* from) {
    return _mm_loadu_si128(reinterpret_cast<const Vector*>(from));
}

inline void Store(std::uint8_t* to, Vector vector) {
    _mm_storeu_si128(reinterpret_cast<Vector*>(to), vector);
}

inline Vector All(unsigned byte) {
    return _mm_set1_epi8(static_cast<char>(byte));
}

// Bytes of the least load that holds a pixel.
template <std::size_t Step>
constexpr std::size_t wordBytes = Step <= 4 ? 4 : 8;

// A pixel at the low end, with what lies behind it; reads a whole word.
template <std::size_t Step>
inline Vector LoadWord(const std::uint8_t* from) {
    if constexpr (Step <= 4) {
        std::int32_t word;
        std::memcpy(&word, from, sizeof word);
        return _mm_cvtsi32_si128(word);
    } else {
        return _mm_loadl_epi64(reinterpret_cast<const Vector*>(from));
    }
}

template <std::size_t Step>
inline void StoreWord(std::uint8_t* to, Vector vector) {
    if constexpr (Step <= 4) {
        const std::int32_t word = _mm_cvtsi128_si32(vector);
        std::memcpy(to, &word, sizeof word);
    } else {
        _mm_storel_epi64(reinterpret_cast<Vector*>(to), vector);
    }
}

// Only the Step bytes of the pixel itself.
template <std::size_t Step>
inline void StorePixel(std::uint8_t* to, Vector vector) {
    std::uint8_t word[wordBytes<Step>];
    StoreWord<Step>(word, vector);
    std::memcpy(to, word, Step);
}

// For the ends of rows, which are too short for whole words and vectors.
inline Vector LoadSome(const std::uint8_t* from, std::size_t bytes) {
    std::uint8_t room[vectorBytes] = {};
    std::memcpy(room, from, bytes);
    return Load(room);
}

inline void StoreSome(std::uint8_t* to, Vector vector, std::size_t bytes) {
    std::uint8_t room[vectorBytes];
    Store(room, vector);
    std::memcpy(to, room, bytes);
}

void UndoUp(std::uint8_t* row, const std::uint8_t* above, std::size_t bytes) {
    std::size_t at = 0;
    for (; at + vectorBytes <= bytes; at += vectorBytes) {
        Store(row + at, _mm_add_epi8(Load(row + at), Load(above + at)));
    }
    for (; at < bytes; ++at) {
        row[at] = static_cast<std::uint8_t>(row[at] + above[at]);
    }
}

// Whole pixels in a vector, and their bytes: 15 for pixels of 3, 12 for pixels of 6.
template <std::size_t Step>
constexpr std::size_t blockBytes = vectorBytes - vectorBytes % Step;

// Each byte becomes the sum of those of its pixel and of all pixels before it.
template <std::size_t Step>
inline Vector SumsUpTo(Vector x) {
    x = _mm_add_epi8(x, _mm_slli_si128(x, Step));
    if constexpr (Step * 2 < vectorBytes) x = _mm_add_epi8(x, _mm_slli_si128(x, Step * 2));
    if constexpr (Step * 4 < vectorBytes) x = _mm_add_epi8(x, _mm_slli_si128(x, Step * 4));
    if constexpr (Step * 8 < vectorBytes) x = _mm_add_epi8(x, _mm_slli_si128(x, Step * 8));
    return x;
}

// The last whole pixel of the vector in the place of each one.
template <std::size_t Step>
inline Vector LastEverywhere(Vector x) {
    constexpr int behind = static_cast<int>(vectorBytes - blockBytes<Step>);
    x = _mm_srli_si128(_mm_slli_si128(x, behind), static_cast<int>(vectorBytes - Step));
    x = _mm_or_si128(x, _mm_slli_si128(x, Step));
    if constexpr (Step * 2 < vectorBytes) x = _mm_or_si128(x, _mm_slli_si128(x, Step * 2));
    if constexpr (Step * 4 < vectorBytes) x = _mm_or_si128(x, _mm_slli_si128(x, Step * 4));
    if constexpr (Step * 8 < vectorBytes) x = _mm_or_si128(x, _mm_slli_si128(x, Step * 8));
    return x;
}

// The pixels of a block wait for those before it in nothing but one addition.
template <std::size_t Step>
void UndoSub(std::uint8_t* row, std::size_t bytes) {
    Vector before = _mm_setzero_si128();
    const auto undoBlock = [&](Vector x) {
        const Vector sums = SumsUpTo<Step>(x);
        const Vector done = _mm_add_epi8(sums, before);
        before = _mm_add_epi8(before, LastEverywhere<Step>(sums));
        return done;
    };
    constexpr std::size_t whole = blockBytes<Step>;
    std::size_t at = 0;
    for (; at + vectorBytes <= bytes; at += whole) {
        const Vector done = undoBlock(Load(row + at));
        if constexpr (whole == vectorBytes) {
            Store(row + at, done);
        } else {
            // What lies behind the block stays for the next one.
            StoreWord<8>(row + at, done);
            StorePixel<whole - 8>(row + at + 8, _mm_srli_si128(done, 8));
        }
    }
    while (at < bytes) {
        const std::size_t count = std::min(whole, bytes - at);
        StoreSome(row + at, undoBlock(LoadSome(row + at, count)), count);
        at += count;
    }
}

// In complements the mean rounds down, as it must, and the way from pixel to pixel is two
// instructions: with A and B for 255 - left and 255 - above, 255 - (x + (left + above) / 2) is
// (A + B + 1) / 2 - x.
template <std::size_t Step>
void UndoAverage(std::uint8_t* row, const std::uint8_t* above, std::size_t bytes) {
    const Vector ones = All(0xFF);
    Vector left = ones;
    const auto undoPixel = [&](Vector x, Vector up) {
        left = _mm_sub_epi8(_mm_avg_epu8(left, _mm_xor_si128(up, ones)), x);
        return _mm_xor_si128(left, ones);
    };
    std::size_t at = 0;
    for (; at + wordBytes<Step> <= bytes; at += Step) {
        StorePixel<Step>(row + at, undoPixel(LoadWord<Step>(row + at), LoadWord<Step>(above + at)));
    }
    for (; at < bytes; at += Step) {
        const std::size_t count = std::min(Step, bytes - at);
        const Vector x = LoadSome(row + at, count);
        StoreSome(row + at, undoPixel(x, LoadSome(above + at, count)), count);
    }
}

// Paeth's predictor takes the neighbour that is nearest to left + above - aboveLeft. Seen as a
// function of left, with low and high for the lesser and the greater of above and aboveLeft, and
// gap for high - low, it is low in an interval, high in the one behind it, and left outside:
//     above >= aboveLeft: low from low - 2 gap + 1, high from low - gap / 2, left from high on
//     above < aboveLeft:  low from low + 1, high from high + gap / 2 + 1, left from high + 2 gap on
// (cut to 0 to 255, halves rounded down). All of that is known for many bytes at once before left
// is, and the way from pixel to pixel is five instructions.
class PaethTerms {
 public:
    // Whole pixels and whole vectors, for every step.
    static constexpr std::size_t mostBytes = 240;

    void Prepare(const std::uint8_t* row, const std::uint8_t* above, const std::uint8_t* aboveLeft,
                 std::size_t bytes) {
        std::size_t at = 0;
        for (; at + vectorBytes <= bytes; at += vectorBytes) {
            PrepareVector(at, Load(row + at), Load(above + at), Load(aboveLeft + at));
        }
        if (at == bytes) return;
        PrepareVector(at, LoadSome(row + at, bytes - at), LoadSome(above + at, bytes - at),
                      LoadSome(aboveLeft + at, bytes - at));
    }

    // The pixel that begins at that byte.
    template <std::size_t Step>
    Vector Undo(std::size_t at, Vector left) const {
        const Vector place = _mm_sub_epi8(left, LoadWord<Step>(start + at));
        const Vector isOther = _mm_cmpgt_epi8(LoadWord<Step>(length + at), place);
        const Vector isLow = _mm_cmpgt_epi8(LoadWord<Step>(lowLength + at), place);
        const Vector toHigh = _mm_sub_epi8(LoadWord<Step>(high + at), left);
        const Vector toLow = _mm_and_si128(isLow, LoadWord<Step>(gap + at));
        const Vector sum = _mm_sub_epi8(_mm_add_epi8(LoadWord<Step>(filtered + at), left), toLow);
        return _mm_add_epi8(sum, _mm_and_si128(isOther, toHigh));
    }

 private:
    // With room for the word of the last pixel, of which only the pixel itself counts.
    using Bytes = std::uint8_t[mostBytes + vectorBytes];

    void PrepareVector(std::size_t at, Vector row, Vector above, Vector aboveLeft) {
        const Vector sign = All(0x80);
        const Vector highs = _mm_max_epu8(above, aboveLeft);
        const Vector lows = _mm_min_epu8(above, aboveLeft);
        const Vector gaps = _mm_sub_epi8(highs, lows);
        const Vector aboveIsHigh = _mm_cmpeq_epi8(highs, above);
        const Vector halfGap = _mm_and_si128(_mm_srli_epi16(gaps, 1), All(0x7F));
        // 2 gap - 1, or 0 where there is no gap.
        const Vector reach = _mm_subs_epu8(_mm_adds_epu8(gaps, gaps), All(1));
        const Vector bottom = _mm_subs_epu8(lows, _mm_and_si128(aboveIsHigh, reach));
        const Vector top = _mm_adds_epu8(highs, _mm_andnot_si128(aboveIsHigh, reach));
        const Vector middle =
            _mm_or_si128(_mm_and_si128(aboveIsHigh, _mm_subs_epu8(lows, halfGap)),
                         _mm_andnot_si128(aboveIsHigh, _mm_adds_epu8(highs, halfGap)));
        Store(filtered + at, row);
        Store(high + at, highs);
        Store(gap + at, gaps);
        // A mask counts as -1: only where above is not high, the interval begins behind bottom.
        Store(start + at, _mm_add_epi8(_mm_add_epi8(bottom, aboveIsHigh), All(129)));
        Store(length + at, _mm_xor_si128(_mm_sub_epi8(top, bottom), sign));
        Store(lowLength + at, _mm_xor_si128(_mm_sub_epi8(middle, bottom), sign));
    }

    Bytes filtered;
    Bytes high;
    Bytes gap;
    // The start of low's interval plus 128, and, less 128, the length of both and of low's alone:
    // vectors are compared with a sign.
    Bytes start;
    Bytes length;
    Bytes lowLength;
};

template <std::size_t Step>
void UndoPaeth(std::uint8_t* row, const std::uint8_t* above, std::size_t bytes) {
    // Without neighbours to the left it takes the one above.
    UndoUp(row, above, std::min(Step, bytes));
    if (bytes <= Step) return;
    Vector left = LoadSome(row, Step);
    PaethTerms terms;
    for (std::size_t begin = Step; begin < bytes; begin += PaethTerms::mostBytes) {
        std::uint8_t* const part = row + begin;
        const std::size_t count = std::min(PaethTerms::mostBytes, bytes - begin);
        terms.Prepare(part, above + begin, above + begin - Step, count);
        std::size_t at = 0;
        for (; at + wordBytes<Step> <= count; at += Step) {
            left = terms.Undo<Step>(at, left);
            // What this writes beyond the pixel is in terms, and written anew with the next one.
            StoreWord<Step>(part + at, left);
        }
        for (; at < count; at += Step) {
            left = terms.Undo<Step>(at, left);
            StoreSome(part + at, left, std::min(Step, count - at));
        }
    }
}

template <std::size_t Step>
void UndoWithStep(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                  std::size_t bytes) {
    switch (filter) {
        case 1:
            return UndoSub<Step>(row, bytes);
        case 2:
            return UndoUp(row, above, bytes);
        case 3:
            return UndoAverage<Step>(row, above, bytes);
        case 4:
            return UndoPaeth<Step>(row, above, bytes);
        default:
            return;
    }
}

}  // namespace

void UndoFilter(std::uint8_t filter, std::uint8_t* row, const std::uint8_t* above,
                std::size_t bytes, std::size_t step) {
    switch (step) {
        case 1:
            return UndoWithStep<1>(filter, row, above, bytes);
        case 2:
            return UndoWithStep<2>(filter, row, above, bytes);
        case 3:
            return UndoWithStep<3>(filter, row, above, bytes);
        case 4:
            return UndoWithStep<4>(filter, row, above, bytes);
        case 6:
            return UndoWithStep<6>(filter, row, above, bytes);
        case 8:
            return UndoWithStep<8>(filter, row, above, bytes);
        default:
            return;
    }
}

}  // namespace kivu::png

#endif
