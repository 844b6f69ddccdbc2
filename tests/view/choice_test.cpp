#include <QHelpEvent>
#include <QToolTip>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

class ChoiceTest : public ShownForm {
 protected:
    void SetUp() override {
        // A release this soon after the opening would be taken for the end of the opening click.
        QApplication::setDoubleClickInterval(0);
        for (const char* row : {"Amiga", "Atari", "C64", "ZX"})
            form.choice.AddItem(row);
        form.choice.SetVisible(true);
        form.choice.onClick = form.Note("click");
    }
    void TearDown() override { QApplication::setDoubleClickInterval(interval); }

    const int interval = QApplication::doubleClickInterval();
    QComboBox* Choice() { return Find<QComboBox>("Choice"); }
    QPoint Arrow() { return Choice()->mapTo(&view.Window(), QPoint(Choice()->width() - 10, 10)); }
    // Where the field has other colours than without a text.
    int Ink() {
        const QImage drawn = Choice()->grab().toImage();
        int columns = 0;
        for (int x = 4; x < drawn.width() - 40; ++x) {
            bool ink = false;
            for (int y = 6; y < drawn.height() - 6; ++y)
                ink = ink || drawn.pixel(x, y) != drawn.pixel(drawn.width() - 34, 6);
            columns += ink;
        }
        return columns;
    }
};

TEST_F(ChoiceTest, HasNoCaretAndTheArrowForACursor) {
    form.choice.SetText("Select Emulator:");
    form.choice.SetFocus();
    Show();
    EXPECT_FALSE(Choice()->lineEdit());
    EXPECT_EQ(Choice()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_GT(Ink(), 20);
}

TEST_F(ChoiceTest, OpensByAClickAnywhereAndChooses) {
    Show();
    Click(Middle(Choice()));
    ASSERT_TRUE(Choice()->view()->isVisible());
    EXPECT_TRUE(form.choice.HasFocus());
    QAbstractItemView* popup = Choice()->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(popup->window()));
    const QPoint at = popup->visualRect(popup->model()->index(2, 0)).center();
    QTest::mouseMove(popup->viewport(), at);
    QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, at);
    Settle();
    EXPECT_EQ(form.choice.Text(), "C64");
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(ChoiceTest, TakesNoTypingButTellsItsKeyHandlers) {
    form.choice.SetText("Select Emulator:");
    form.choice.onChange = form.Note("change");
    form.choice.onKeyDown = [this](forms::Key&) { form.log.push_back("down"); };
    form.choice.onKeyPress = [this](forms::Character& typed) {
        form.log.push_back(std::string(1, char(typed.code)));
    };
    form.choice.SetFocus();
    Show();
    Key(Qt::Key_5);
    EXPECT_EQ(form.choice.Text(), "Select Emulator:");
    EXPECT_EQ(form.log, (std::vector<std::string>{"down", "5"}));
    form.log.clear();
    Key(Qt::Key_Backspace);
    EXPECT_EQ(form.choice.Text(), "Select Emulator:");
    EXPECT_EQ(form.log.front(), "down");
    EXPECT_EQ(form.choice.ListIndex(), -1);
}

TEST_F(ChoiceTest, MovesByHomeEndAndTheArrows) {
    form.choice.SetFocus();
    Show();
    Key(Qt::Key_End);
    EXPECT_EQ(form.choice.Text(), "ZX");
    Key(Qt::Key_Home);
    EXPECT_EQ(form.choice.Text(), "Amiga");
    Key(Qt::Key_Down);
    EXPECT_EQ(form.choice.Text(), "Atari");
    EXPECT_EQ(form.log.size(), 3U);
}

TEST_F(ChoiceTest, LeavesItsRowsToAProgramThatShowsThemItself) {
    form.choice.onDropDown = form.Note("rows");
    form.choice.onDblClick = form.Note("double");
    form.choice.onGotFocus = form.Note("focus");
    Show();
    Click(Arrow());
    EXPECT_EQ(form.log, std::vector<std::string>{"rows"});
    Click(Middle(Choice()));
    EXPECT_EQ(form.log, (std::vector<std::string>{"rows", "focus"}));
    Key(Qt::Key_F4);
    Key(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(form.log, (std::vector<std::string>{"rows", "focus", "rows", "rows"}));
    form.log.clear();
    QApplication::setDoubleClickInterval(interval);
    DoubleClick(Middle(Choice()));
    EXPECT_EQ(form.log, std::vector<std::string>{"double"});
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(ChoiceTest, CutsALongTextWithDotsAndTellsItWhole) {
    const auto tip = [this] {
        QToolTip::hideText();
        const QPoint at = Choice()->rect().center();
        QHelpEvent event(QEvent::ToolTip, at, Choice()->mapToGlobal(at));
        QCoreApplication::sendEvent(Choice(), &event);
        return QToolTip::text();
    };
    form.choice.SetToolTipText("Choose");
    form.choice.SetText("short");
    Show();
    EXPECT_EQ(tip(), "Choose");
    form.choice.SetText("A name that is far too long for the field & all <b> that it holds");
    EXPECT_EQ(
        tip(),
        "<qt>A name that is far too long for the field &amp; all &lt;b&gt; that it holds</qt>");
    // Cut, and not run into the arrow.
    const int whole = QFontMetrics(Choice()->font()).horizontalAdvance(QString(QChar(0x2026)));
    EXPECT_LE(Ink(), Choice()->width() - 28 - whole / 2);
    QToolTip::hideText();
}

// Widths in whole pixels may add up to more than a share of the text's.
TEST_F(ChoiceTest, SetsATextNarrowerBeforeItCutsIt) {
    Show();
    const QString text = QStringLiteral("Emulator auswählen:");
    form.choice.SetText(text.toStdString());
    QFont narrow = Choice()->font();
    narrow.setStretch(75);
    if (QFontMetrics(narrow).horizontalAdvance(text) >=
        QFontMetrics(Choice()->font()).horizontalAdvance(text)) {
        GTEST_SKIP() << "The fonts of this host cannot be set narrower.";
    }
    for (int points = 8; points <= 40; ++points) {
        const std::string tip = "Choose " + std::to_string(points);
        form.choice.SetToolTipText(tip);
        form.choice.SetFontSize(points);
        const int whole = QFontMetrics(Choice()->font()).horizontalAdvance(text);
        // Field, arrow and edges, of which the text is to fill all but a sixth.
        form.choice.SetWidth((whole * 5 / 6 + 38) * 15);
        const QPoint at = Choice()->rect().center();
        QHelpEvent event(QEvent::ToolTip, at, Choice()->mapToGlobal(at));
        QCoreApplication::sendEvent(Choice(), &event);
        EXPECT_EQ(QToolTip::text().toStdString(), tip);
    }
    QToolTip::hideText();
}

TEST_F(ChoiceTest, IsShownNoWiderThanTheProgramLetsIt) {
    Show();
    EXPECT_EQ(Choice()->width(), 200);
    form.choice.SetMostShownWidth(1500);
    EXPECT_EQ(Choice()->geometry(), QRect(20, 440, 100, Choice()->height()));
    EXPECT_EQ(form.choice.Width(), 3000);
    form.choice.SetWidth(1200);
    EXPECT_EQ(Choice()->width(), 80);
    form.choice.SetWidth(3000);
    EXPECT_EQ(Choice()->width(), 100);
    form.choice.SetMostShownWidth(0);
    EXPECT_EQ(Choice()->width(), 200);
}

}  // namespace
}  // namespace kivu::tests
