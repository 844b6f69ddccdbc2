#include "ui/colors.h"

#include <gtest/gtest.h>

#include "testing/scripted_host.h"

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

TEST(Colors, OfATextAreItsFirstSixDigits) {
    EXPECT_EQ(HexToLong("#0052bc"), 12341760u);
    EXPECT_EQ(HexToLong("#FFFFFF"), 16777215u);
    EXPECT_EQ(HexToLong("#E0FFF1"), 15859680u);
    EXPECT_EQ(HexToLong("#F6F7D2"), 13826038u);
    EXPECT_EQ(HexToLong("#FF8000"), 33023u);
    EXPECT_EQ(HexToLong("#FF8000FF"), 33023u);
    EXPECT_EQ(HexToLong("red"), 0u);
    EXPECT_EQ(HexToLong("##01#02#03"), 197121u);
    // Half a part is missing.
    EXPECT_EQ(HexToLong("#FFF"), 255u);
}

TEST(Colors, AreWrittenInPaddedCapitals) {
    EXPECT_EQ(LongToHex(12341760u), "#0052BC");
    EXPECT_EQ(LongToHex(0u), "#000000");
    EXPECT_EQ(LongToHex(0x030201u), "#010203");
}

TEST(Colors, OfANegativeNumberAreTheSystems) {
    const kivu::testing::ScriptedColors system;
    const auto text = [&](int number) {
        return LongToHex(static_cast<forms::Color>(number), system);
    };
    EXPECT_EQ(text(33023), "#FF8000");
    EXPECT_EQ(text(-2147483643), "#FFFFFF");  // windows
    EXPECT_EQ(text(-2147483633), "#C0C0C0");  // faces of buttons
    EXPECT_EQ(text(-2147483624), "#FFFFE1");  // tool tips
    EXPECT_EQ(RealColor(0x8000000du, system), 0x800000u);
    // No such index.
    EXPECT_EQ(text(-1), "#000000");
    EXPECT_EQ(text(-2147483623), "#000000");
}

}  // namespace
}  // namespace kivu::ui
