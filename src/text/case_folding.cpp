#include "text/text.h"

namespace kivu::text::detail {

namespace {

// Capitals from `first` to `last` in steps of `step`, each `distance` away from its small letter:
// the simple lower-case mappings of the Unicode Character Database, version 14, without those that
// end in ASCII.
struct Capitals {
    char16_t first;
    char16_t last;
    int step;
    int distance;
};

// clang-format off
constexpr Capitals kCapitals[] = {
    {0x00C0, 0x00D6, 1, 32}, {0x00D8, 0x00DE, 1, 32}, {0x0100, 0x012E, 2, 1},
    {0x0132, 0x0136, 2, 1}, {0x0139, 0x0147, 2, 1}, {0x014A, 0x0176, 2, 1},
    {0x0178, 0x0178, 1, -121}, {0x0179, 0x017D, 2, 1}, {0x0181, 0x0181, 1, 210},
    {0x0182, 0x0184, 2, 1}, {0x0186, 0x0186, 1, 206}, {0x0187, 0x0187, 1, 1},
    {0x0189, 0x018A, 1, 205}, {0x018B, 0x018B, 1, 1}, {0x018E, 0x018E, 1, 79},
    {0x018F, 0x018F, 1, 202}, {0x0190, 0x0190, 1, 203}, {0x0191, 0x0191, 1, 1},
    {0x0193, 0x0193, 1, 205}, {0x0194, 0x0194, 1, 207}, {0x0196, 0x0196, 1, 211},
    {0x0197, 0x0197, 1, 209}, {0x0198, 0x0198, 1, 1}, {0x019C, 0x019C, 1, 211},
    {0x019D, 0x019D, 1, 213}, {0x019F, 0x019F, 1, 214}, {0x01A0, 0x01A4, 2, 1},
    {0x01A6, 0x01A6, 1, 218}, {0x01A7, 0x01A7, 1, 1}, {0x01A9, 0x01A9, 1, 218},
    {0x01AC, 0x01AC, 1, 1}, {0x01AE, 0x01AE, 1, 218}, {0x01AF, 0x01AF, 1, 1},
    {0x01B1, 0x01B2, 1, 217}, {0x01B3, 0x01B5, 2, 1}, {0x01B7, 0x01B7, 1, 219},
    {0x01B8, 0x01B8, 1, 1}, {0x01BC, 0x01BC, 1, 1}, {0x01C4, 0x01C4, 1, 2},
    {0x01C5, 0x01C5, 1, 1}, {0x01C7, 0x01C7, 1, 2}, {0x01C8, 0x01C8, 1, 1},
    {0x01CA, 0x01CA, 1, 2}, {0x01CB, 0x01DB, 2, 1}, {0x01DE, 0x01EE, 2, 1},
    {0x01F1, 0x01F1, 1, 2}, {0x01F2, 0x01F4, 2, 1}, {0x01F6, 0x01F6, 1, -97},
    {0x01F7, 0x01F7, 1, -56}, {0x01F8, 0x021E, 2, 1}, {0x0220, 0x0220, 1, -130},
    {0x0222, 0x0232, 2, 1}, {0x023A, 0x023A, 1, 10795}, {0x023B, 0x023B, 1, 1},
    {0x023D, 0x023D, 1, -163}, {0x023E, 0x023E, 1, 10792}, {0x0241, 0x0241, 1, 1},
    {0x0243, 0x0243, 1, -195}, {0x0244, 0x0244, 1, 69}, {0x0245, 0x0245, 1, 71},
    {0x0246, 0x024E, 2, 1}, {0x0370, 0x0372, 2, 1}, {0x0376, 0x0376, 1, 1},
    {0x037F, 0x037F, 1, 116}, {0x0386, 0x0386, 1, 38}, {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64}, {0x038E, 0x038F, 1, 63}, {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32}, {0x03CF, 0x03CF, 1, 8}, {0x03D8, 0x03EE, 2, 1},
    {0x03F4, 0x03F4, 1, -60}, {0x03F7, 0x03F7, 1, 1}, {0x03F9, 0x03F9, 1, -7},
    {0x03FA, 0x03FA, 1, 1}, {0x03FD, 0x03FF, 1, -130}, {0x0400, 0x040F, 1, 80},
    {0x0410, 0x042F, 1, 32}, {0x0460, 0x0480, 2, 1}, {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 15}, {0x04C1, 0x04CD, 2, 1}, {0x04D0, 0x052E, 2, 1},
    {0x0531, 0x0556, 1, 48}, {0x1E00, 0x1E94, 2, 1}, {0x1E9E, 0x1E9E, 1, -7615},
    {0x1EA0, 0x1EFE, 2, 1},
};
// clang-format on

// Latin-1 to Armenian, then Latin Extended Additional; the full-width letters are one plain range.
constexpr std::size_t kLowEnd = 0x557;
constexpr std::size_t kAdditional = 0x1E00;
constexpr std::size_t kAdditionalEnd = 0x1F00;

template <std::size_t Begin, std::size_t End>
constexpr std::array<char16_t, End - Begin> MakeTable() {
    std::array<char16_t, End - Begin> table{};
    for (std::size_t c = Begin; c < End; ++c)
        table[c - Begin] = static_cast<char16_t>(c);
    for (const Capitals& range : kCapitals) {
        for (int c = range.first; c <= range.last; c += range.step) {
            const auto index = static_cast<std::size_t>(c);
            if (index < Begin || index >= End) continue;
            table[index - Begin] = static_cast<char16_t>(c + range.distance);
        }
    }
    return table;
}

constexpr auto kLow = MakeTable<0, kLowEnd>();
constexpr auto kHigh = MakeTable<kAdditional, kAdditionalEnd>();

}  // namespace

char32_t FoldCaseBeyondAscii(char32_t codePoint) {
    if (codePoint < kLowEnd) return kLow[codePoint];
    if (codePoint >= kAdditional && codePoint < kAdditionalEnd)
        return kHigh[codePoint - kAdditional];
    if (codePoint - 0xFF21 < 26) return codePoint + 32;
    return codePoint;
}

}  // namespace kivu::text::detail
