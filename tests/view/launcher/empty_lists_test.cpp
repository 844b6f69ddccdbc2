#include <QFontMetricsF>

#include "view/box_fonts.h"
#include "view/fonts.h"
#include "view/launcher/search_window.h"
#include "view/text.h"
#include "view/text_block.h"
#include "view/text_measure.h"

namespace kivu::scenarios {
namespace {

class QuietWords : public SearchWindow {
 protected:
    QuietWords() {
        tree.AddEmulator("Alpha");
        tree.WriteCache("Alpha",
                        {{"/Roms/Brick Bay (1992)(Kivu)(Disk 1 of 3).com", "Brick Bay (1992)"},
                         {"/Roms/Second (1992).com", "Second (1992)"}});
        tree.WriteProgramProfile({{"LastEmulator", "Alpha"}});
        options.language = "English";
        options.measure = &measure;
    }
    const view::TextMeasure measure;

    // Something is drawn there.
    static bool HasDrawing(QWidget& widget) {
        const QImage image = widget.grab().toImage();
        // Off the frame's line and the corners.
        const QRect inner = image.rect().adjusted(8, 8, -8, -8);
        const QRgb back = image.pixel(inner.topLeft());
        for (int y = inner.top(); y <= inner.bottom(); ++y)
            for (int x = inner.left(); x <= inner.right(); ++x)
                if (image.pixel(x, y) != back) return true;
        return false;
    }
};

TEST_F(QuietWords, StandInAListWithoutRowsOnly) {
    Show();
    Type("qqx");
    auto* hits = Find<QAbstractItemView>("SuchErgList");
    ASSERT_TRUE(hits->isVisible());
    EXPECT_EQ(hits->model()->rowCount(), 0);
    EXPECT_TRUE(HasDrawing(*hits->viewport()));
    Form().SuchErgList.SetHint("");
    Settle();
    EXPECT_FALSE(HasDrawing(*hits->viewport()));
}

TEST_F(QuietWords, StandBelowTheTitleOfAFirstStart) {
    tree.WriteProgramProfile({});
    Show();
    auto* title = Find<QWidget>("LoadingBtn");
    ASSERT_TRUE(title->isVisible());
    const QImage with = title->grab().toImage();
    ASSERT_FALSE(Form().LoadingBtn.Hint().empty());
    Form().LoadingBtn.SetHint("");
    Settle();
    const QImage without = title->grab().toImage();
    EXPECT_NE(with, without);
    // The title itself is the same.
    const int line = static_cast<int>(QFontMetricsF(title->font()).height());
    EXPECT_EQ(with.copy(0, 0, with.width(), line), without.copy(0, 0, with.width(), line));
}

TEST_F(QuietWords, NameLosesNoLetterOnTheScreen) {
    if (tests::FontsAreBoxes()) GTEST_SKIP() << "this host has no fonts";
    Show();
    for (const int width : {14400, 12000, 9600, 28800}) {
        Form().Move(0, 0, width, 10200);
        Form().Current_ProgramNameFull.SetCaption("");
        const std::string whole = "Brick Bay (1992)(Kivu)(Disk 1 of 3).com";
        Form().Current_ProgramNameFull.SetCaption(whole);
        Settle();
        auto* name = Find<QWidget>("Current_ProgramNameFull");
        const forms::Label& label = Form().Current_ProgramNameFull;
        const std::string& shown = label.ShownText().empty() ? label.Caption() : label.ShownText();
        EXPECT_EQ(shown, whole);
        EXPECT_EQ(name->font(), view::ToQt(label.ShownFont()));
        const QStringList lines =
            view::BreakText(view::ToQt(shown), name->font(), name->width() - 2, name->height());
        EXPECT_EQ(lines.join("").toStdString(), whole) << width;
        // As the layout has counted them, so that there is room for all and no more.
        EXPECT_EQ(lines.size(), measure.LinesWithin(label.ShownFont(), whole, label.Width()));
    }
}

TEST_F(QuietWords, FirstLetterOfASearchLeavesTheNameWhole) {
    Show();
    Click("Label3");
    Form().UAE_Short.ClickRow(0);
    Settle();
    auto* name = Find<QWidget>("Current_ProgramNameFull");
    ASSERT_FALSE(Form().Current_ProgramNameFull.Caption().empty());
    const auto fits = [&] {
        const forms::Label& label = Form().Current_ProgramNameFull;
        const int lines = label.ShownLines(label.Width());
        return name->height() + 1 >= QFontMetricsF(name->font()).height() * lines;
    };
    EXPECT_TRUE(fits());
    const QFont before = name->font();
    Type("b");
    EXPECT_TRUE(fits());
    EXPECT_EQ(name->font(), before);
}

}  // namespace
}  // namespace kivu::scenarios
