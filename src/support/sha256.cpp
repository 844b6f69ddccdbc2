#include "support/sha256.h"

#include <algorithm>
#include <bit>

namespace kivu::support {

namespace {

constexpr std::size_t blockSize = 64;

// The first 32 bits of the fractions of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> roots{
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t BigEndian(const unsigned char* bytes) {
    return std::uint32_t{bytes[0]} << 24 | std::uint32_t{bytes[1]} << 16 |
           std::uint32_t{bytes[2]} << 8 | std::uint32_t{bytes[3]};
}

}  // namespace

void Sha256::TakeBlock(const unsigned char* block) {
    std::array<std::uint32_t, 64> words{};
    for (std::size_t i = 0; i < 16; ++i)
        words[i] = BigEndian(block + 4 * i);
    for (std::size_t i = 16; i < words.size(); ++i) {
        const std::uint32_t early = words[i - 15], late = words[i - 2];
        words[i] = words[i - 16] + words[i - 7] +
                   (std::rotr(early, 7) ^ std::rotr(early, 18) ^ early >> 3) +
                   (std::rotr(late, 17) ^ std::rotr(late, 19) ^ late >> 10);
    }
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                    ((e & f) ^ (~e & g)) + roots[i] + words[i];
        const std::uint32_t second =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + first;
        d = c;
        c = b;
        b = a;
        a = first + second;
    }
    const std::array<std::uint32_t, 8> mixed{a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i)
        state[i] += mixed[i];
}

void Sha256::Take(std::string_view bytes) {
    length += bytes.size();
    while (!bytes.empty()) {
        const std::size_t part = std::min(bytes.size(), blockSize - waitingCount);
        std::copy_n(bytes.begin(), part,
                    waiting.begin() + static_cast<std::ptrdiff_t>(waitingCount));
        bytes.remove_prefix(part);
        waitingCount += part;
        if (waitingCount < blockSize) break;
        TakeBlock(waiting.data());
        waitingCount = 0;
    }
}

std::string Sha256::Result() {
    const std::uint64_t bits = length * 8;
    std::string padding(1, '\x80');
    padding.append((2 * blockSize - 9 - waitingCount) % blockSize, '\0');
    for (int shift = 56; shift >= 0; shift -= 8)
        padding += static_cast<char>(bits >> shift);
    Take(padding);
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint32_t word : state) {
        for (int shift = 28; shift >= 0; shift -= 4)
            text += digits[word >> shift & 15];
    }
    return text;
}

std::string Sha256::Of(std::string_view bytes) {
    Sha256 sum;
    sum.Take(bytes);
    return sum.Result();
}

std::optional<std::string> Sha256::OfFile(const platform::FileSystem& files,
                                          const std::string& path) {
    const auto reader = files.OpenFile(path);
    if (!reader) return std::nullopt;
    Sha256 sum;
    std::string block(std::size_t{1} << 16, '\0');
    while (const std::size_t read = reader->Read(block.data(), block.size()))
        sum.Take(std::string_view(block).substr(0, read));
    return sum.Result();
}

}  // namespace kivu::support
