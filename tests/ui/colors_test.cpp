#include "ui/colors.h"

#include <gtest/gtest.h>

namespace kivu::ui {
namespace {

TEST(Colors, HoldRedInTheLowestByte) {
    EXPECT_EQ(HexToLong("#0052bc"), 0xbc5200u);
    EXPECT_EQ(HexToLong("#FF0000"), 0x0000ffu);
    EXPECT_EQ(HexToLong("E0FFF1"), 0xf1ffe0u);
}

TEST(Colors, PassOverEveryHashSign) {
    EXPECT_EQ(HexToLong("##01#02#03"), 0x030201u);
}

TEST(Colors, CountMissingPartsAsBlack) {
    EXPECT_EQ(HexToLong("#FF"), 0x0000ffu);
    EXPECT_EQ(HexToLong("#FF8"), 0x0000ffu);
    EXPECT_EQ(HexToLong(""), 0u);
    EXPECT_EQ(HexToLong("#GGFF00"), 0x00ff00u);
}

TEST(Colors, AreWrittenInPaddedCapitals) {
    EXPECT_EQ(LongToHex(0xbc5200u), "#0052BC");
    EXPECT_EQ(LongToHex(0u), "#000000");
}

TEST(Colors, AskForTheMeaningOfASystemColour) {
    EXPECT_EQ(LongToHex(0x80000005u,
                        [](forms::Color color) {
                            EXPECT_EQ(color, 0x80000005u);
                            return forms::Color{0x010203u};
                        }),
              "#030201");
}

}  // namespace
}  // namespace kivu::ui
