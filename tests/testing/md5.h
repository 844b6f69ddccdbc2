#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <string_view>

namespace kivu::testing {

// MD5 as RFC 1321 has it: a short name for a whole file whose bytes are known elsewhere.
class Md5 {
 public:
    // 32 hexadecimal digits in small letters.
    static std::string Of(std::string_view bytes) {
        std::string padded(bytes);
        padded += '\x80';
        while (padded.size() % blockSize != blockSize - 8)
            padded += '\0';
        const std::uint64_t bits = std::uint64_t{bytes.size()} * 8;
        for (int byte = 0; byte < 8; ++byte)
            padded += static_cast<char>(bits >> (8 * byte));
        Md5 sum;
        for (std::size_t at = 0; at < padded.size(); at += blockSize)
            sum.Take(std::string_view(padded).substr(at, blockSize));
        return sum.Text();
    }

 private:
    static constexpr std::size_t blockSize = 64;
    // Whole parts of 2^32 * |sin(i + 1)|.
    static constexpr std::array<std::uint32_t, 64> sines{
        0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613,
        0xfd469501, 0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193,
        0xa679438e, 0x49b40821, 0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d,
        0x02441453, 0xd8a1e681, 0xe7d3fbc8, 0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed,
        0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a, 0xfffa3942, 0x8771f681, 0x6d9d6122,
        0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70, 0x289b7ec6, 0xeaa127fa,
        0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665, 0xf4292244,
        0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
        0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb,
        0xeb86d391};
    static constexpr std::array<std::array<int, 4>, 4> turns{
        {{7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}}};

    void Take(std::string_view block) {
        std::array<std::uint32_t, 16> words{};
        for (std::size_t i = 0; i < block.size(); ++i)
            words[i / 4] |= std::uint32_t{static_cast<unsigned char>(block[i])} << (8 * (i % 4));
        auto [a, b, c, d] = state;
        for (std::size_t i = 0; i < blockSize; ++i) {
            std::uint32_t mixed = c ^ (b | ~d);
            std::size_t word = 7 * i;
            if (i < 16)
                mixed = (b & c) | (~b & d), word = i;
            else if (i < 32)
                mixed = (d & b) | (~d & c), word = 5 * i + 1;
            else if (i < 48)
                mixed = b ^ c ^ d, word = 3 * i + 5;
            const std::uint32_t sum = a + mixed + sines[i] + words[word % 16];
            a = d;
            d = c;
            c = b;
            b += std::rotl(sum, turns[i / 16][i % 4]);
        }
        state = {state[0] + a, state[1] + b, state[2] + c, state[3] + d};
    }

    std::string Text() const {
        constexpr std::string_view digits = "0123456789abcdef";
        std::string text;
        for (const std::uint32_t word : state) {
            for (int byte = 0; byte < 4; ++byte) {
                text += digits[word >> (8 * byte + 4) & 15];
                text += digits[word >> (8 * byte) & 15];
            }
        }
        return text;
    }

    std::array<std::uint32_t, 4> state{0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
};

}  // namespace kivu::testing
