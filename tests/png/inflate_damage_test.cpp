#include <gtest/gtest.h>
#include <random>

#include "png/inflate_outcome.h"

namespace kivu::png {
namespace {

using testing::Bytes;
using testing::Deflated;
using testing::ExpectLikePlain;
using testing::Mixture;

TEST(InflateDamage, TruncatedAnywhereItIsLikeThePlainOne) {
    for (const int strategy : {0, 2, 4}) {
        const Bytes packed = Deflated(Mixture(3000, 77), strategy == 2 ? 9 : 6, strategy);
        for (std::size_t size = 0; size <= packed.size(); ++size) {
            ExpectLikePlain({packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(size)},
                            3000);
        }
    }
}

TEST(InflateDamage, DamagedAnywhereItIsLikeThePlainOne) {
    std::mt19937 random(5);
    for (int round = 0; round < 3000; ++round) {
        Bytes packed = Deflated(Mixture(random() % 2500, static_cast<std::uint32_t>(random())),
                                static_cast<int>(random() % 10), static_cast<int>(random() % 5));
        for (unsigned damages = random() % 4; damages-- > 0 && !packed.empty();) {
            packed[random() % packed.size()] ^= static_cast<std::uint8_t>(1U << random() % 8);
        }
        ExpectLikePlain(packed, random() % 3000);
        if (::testing::Test::HasFailure()) break;
    }
}

TEST(InflateDamage, NoiseIsLikeThePlainOne) {
    std::mt19937 random(6);
    for (int round = 0; round < 20000; ++round) {
        Bytes noise(random() % 200 + 1);
        for (std::uint8_t& byte : noise) {
            byte = static_cast<std::uint8_t>(random());
        }
        // Compressed blocks; the others end too soon to tell anything.
        noise[0] = static_cast<std::uint8_t>((noise[0] & 0xF8) | (round % 2 == 0 ? 2 : 4));
        ExpectLikePlain(noise, random() % 2000);
        ExpectLikePlain(noise, random() % 2000, true);
        if (::testing::Test::HasFailure()) break;
    }
}

}  // namespace
}  // namespace kivu::png
