#include "view/colors.h"

#include <gtest/gtest.h>

namespace kivu::view {
namespace {

const QColor blue(0x00, 0x52, 0xbc), mint(0xe0, 0xff, 0xf1), paper(0xf2, 0xec, 0xdf);

TEST(ViewColors, TextCanBeReadOnEveryGrey) {
    for (int grey = 0; grey < 256; ++grey) {
        const QColor ground(grey, grey, grey);
        for (const QColor& wanted : {ground, QColor(Qt::white), QColor(Qt::black), accent})
            EXPECT_GE(Contrast(Readable(wanted, ground), ground), textContrast) << grey;
    }
}

TEST(ViewColors, TextThatCanBeReadKeepsItsColour) {
    EXPECT_EQ(Readable(Qt::white, blue), QColor(Qt::white));
    EXPECT_EQ(Readable(QColor(0x22, 0x30, 0x3c), paper), QColor(0x22, 0x30, 0x3c));
    // Light grey on white is not read; 3 to 1 is not enough.
    EXPECT_NE(Readable(QColor(0x94, 0x94, 0x94), Qt::white), QColor(0x94, 0x94, 0x94));
    EXPECT_EQ(Readable(QColor(0x94, 0x94, 0x94), Qt::white, 3), QColor(0x94, 0x94, 0x94));
}

TEST(ViewColors, AccentStaysItselfOnTheDefaultWindow) {
    EXPECT_EQ(AccentOn(blue), accent);
    EXPECT_EQ(AccentOn(QColor(0x1c, 0x12, 0x06)), accent);
}

TEST(ViewColors, AccentIsSeenOnEveryLightColour) {
    for (const QColor& light : {mint, paper, QColor(Qt::white), accent, QColor(0xf6, 0xf7, 0xd2)}) {
        EXPECT_GE(Contrast(AccentOn(light), light), shapeContrast);
        // A window's lower part is darker than its colour, and it is seen there as well.
        EXPECT_LT(Contrast(AccentOn(light), light), shapeContrast + 1.4);
    }
}

TEST(ViewColors, InkIsWhiteOnDarkAndBlackOnLight) {
    EXPECT_EQ(InkOn(blue, 40), QColor(255, 255, 255, 40));
    EXPECT_EQ(InkOn(paper, 40), QColor(0, 0, 0, 40));
}

}  // namespace
}  // namespace kivu::view
