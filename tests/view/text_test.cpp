#include "view/text.h"

#include <QFontMetricsF>

#include "forms/controls.h"
#include "view/colors.h"
#include "view/fonts.h"
#include "view/geometry.h"
#include "view/sample_form.h"
#include "view/text_block.h"

namespace kivu::tests {
namespace {

using view::ToQt;

TEST(ViewText, IsUtf8) {
    EXPECT_EQ(ToQt("Größe \xf0\x9f\x8e\xae"), QString::fromUtf8("Größe \xf0\x9f\x8e\xae"));
    EXPECT_EQ(ToQt(std::string_view("a\0b", 3)).size(), 3);
}

TEST(ViewText, ShowsEachStrayByteByItself) {
    EXPECT_EQ(ToQt("\xe4"), QString::fromUtf8("ä"));
    // Overlong, surrogate, cut off, too high.
    EXPECT_EQ(ToQt("\xc0\xaf").size(), 2);
    EXPECT_EQ(ToQt("\xed\xa0\x80").size(), 3);
    EXPECT_EQ(ToQt("x\xe2\x82").size(), 3);
    EXPECT_EQ(ToQt("\xf5\x80\x80\x80").size(), 4);
    EXPECT_EQ(ToQt("\x80\x9f"), QString::fromUtf8("€Ÿ"));
}

TEST(ViewText, CountsCaretsInCodePoints) {
    const QString text = QString::fromUtf8(
        "a\xf0\x9f\x8e\xae"
        "b");
    EXPECT_EQ(view::UnitsOf(text, 2), 3);
    EXPECT_EQ(view::CodePointsOf(text, 3), 2);
    EXPECT_EQ(view::UnitsOf(text, 99), 4);
    EXPECT_EQ(view::CodePointsOf(text, 99), 3);
}

TEST(ViewText, MeasuresWhatIsDrawn) {
    const forms::Font font{"", 24, true};
    const QFontMetricsF metrics(ToQt(font));
    const int width = measure.Width(font, "Favoriten (12)");
    EXPECT_GE(width, metrics.horizontalAdvance("Favoriten (12)") * 15);
    EXPECT_LT(width, metrics.horizontalAdvance("Favoriten (12)") * 15 + 15);
    EXPECT_GE(measure.LineHeight(font), metrics.height() * 15);
    EXPECT_EQ(measure.Width(font, ""), 0);
    EXPECT_GT(measure.Width(font, "a "), measure.Width(font, "a"));
}

TEST(ViewText, LeavesNothingOutOfALabelThatSizesItself) {
    forms::Form form("F", forms::Toolkit{&measure, nullptr, nullptr});
    forms::Label label(&form, "L");
    label.SetAutoSize(true);
    for (const double size : {8.0, 11.0, 13.0, 24.0, 40.0}) {
        label.SetFontSize(size);
        label.SetCaption("Suchergebnisse (31999)\rzwei");
        const QRect place = view::PixelRect(label);
        const QStringList lines = view::BreakText(ToQt(label.Caption()), ToQt(label.GetFont()),
                                                  place.width() - 2, place.height());
        EXPECT_EQ(lines, (QStringList{"Suchergebnisse (31999)", "zwei"})) << size;
    }
}

TEST(ViewText, BreaksLinesAtEveryKindOfEnd) {
    EXPECT_EQ(view::SplitLines("a\rb\nc\r\nd"), (QStringList{"a", "b", "c", "d"}));
}

TEST(ViewText, BreaksBetweenWordsAndCutsTheLastLine) {
    const QFont font = ToQt(forms::Font{});
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance("mmmm mmmm ");
    const QStringList lines =
        view::BreakText("mmmm mmmm mmmm mmmm mmmm mmmm", font, width, metrics.height() * 2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0].trimmed(), "mmmm mmmm");
    EXPECT_TRUE(lines[1].endsWith(QChar(0x2026)));
    EXPECT_LE(metrics.horizontalAdvance(lines[1]), width);
}

TEST(ViewText, ShowsTheFirstLineInAPlaceThatIsTooLow) {
    const QStringList lines = view::BreakText("one\rtwo", ToQt(forms::Font{}), 400, 2);
    EXPECT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith("one"));
}

TEST(ViewText, FindsAColourThatCanBeRead) {
    EXPECT_EQ(view::Readable(Qt::white, Qt::black), QColor(Qt::white));
    EXPECT_NE(view::Readable(Qt::white, Qt::white), QColor(Qt::white));
    EXPECT_EQ(ToQt(forms::Rgb(1, 2, 3)), QColor(1, 2, 3));
}

TEST(ViewText, RoundsTwipsToTheNearestPixel) {
    EXPECT_EQ(view::ToPixels(7), 0);
    EXPECT_EQ(view::ToPixels(8), 1);
    EXPECT_EQ(view::ToPixels(-8), -1);
    EXPECT_LT(view::ToPixels(2147483647), 100000);
}

}  // namespace
}  // namespace kivu::tests
