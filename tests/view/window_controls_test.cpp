#include <QPlainTextEdit>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/controls.h"
#include "view/form_view.h"
#include "view/sample_form.h"
#include "view/text_lines_mirror.h"

namespace kivu::tests {
namespace {

using ::testing::ElementsAre;

// What the windows beside the main one are made of.
struct DialogForm : forms::Form {
    DialogForm() : forms::Form("Dialog", forms::Toolkit{&measure, nullptr, nullptr, nullptr}) {
        SetHasFrame(false);
        Move(1500, 1500, 9000, 7500);
        lines.SetMultiLine(true);
        lines.Move(300, 300, 4500, 2400);
        caption.SetCaption("&Path");
        caption.SetMarksLetter(true);
        caption.Move(300, 3000, 1200, 300);
        path.Move(1800, 3000, 3000, path.Height());
        link.SetCaption("More");
        link.SetLink(true);
        link.Move(300, 3600, 1500, 300);
        link.onClick = [this] { log.push_back("link"); };
        for (int i = 0; i < 2; ++i) {
            options[i].Move(300, 4200 + i * 450, 1500, 300);
            options[i].onClick = [this, i] { log.push_back("option " + std::to_string(i)); };
        }
        up.SetTakesFocus(false);
        up.SetCaption("&Up");
        up.Move(300, 5400, 1500, 450);
        up.onClick = [this] { log.push_back("up"); };
        image.Move(5100, 300, 1500, 1500);
        back.Move(5100, 2100, 1500, 900);
        front.Move(5100, 2100, 1500, 900);
    }

    forms::TextBox lines{this, "Lines"};
    forms::Label caption{this, "Caption"};
    forms::TextBox path{this, "Path"};
    forms::Label link{this, "Link"};
    forms::OptionButton options[2] = {{this, "Option", 0}, {this, "Option", 1}};
    forms::CommandButton up{this, "Up"};
    forms::Image image{this, "Image"};
    forms::PictureBox back{this, "Back"};
    forms::PictureBox front{this, "Front"};
    std::vector<std::string> log;
};

class WindowControlsTest : public ::testing::Test {
 protected:
    void SetUp() override {
        view.Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view.Window(), 20000));
        QCoreApplication::processEvents();
    }
    void Key(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(view.Window().windowHandle(), static_cast<Qt::Key>(key), modifiers);
    }
    void Type(const char* text) { QTest::keyClicks(view.Window().focusWidget(), text); }
    template <typename T = QWidget>
    T* Find(const char* name) {
        T* found = view.Window().findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void Click(const char* name) {
        QWidget* widget = Find(name);
        QTest::mouseClick(view.Window().windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(&view.Window(), widget->rect().center()));
    }

    DialogForm form;
    view::FormView view{form};
};

TEST_F(WindowControlsTest, LinesAreTypedAndEndInCrLf) {
    form.lines.SetFocus();
    int changes = 0;
    form.lines.onChange = [&] { ++changes; };
    Type("ab");
    Key(Qt::Key_Return);
    Type("c");
    EXPECT_EQ(form.lines.Text(), "ab\r\nc");
    EXPECT_EQ(form.lines.SelStart(), 5);
    EXPECT_EQ(changes, 4);
    Key(Qt::Key_Up);
    EXPECT_EQ(form.lines.SelStart(), 1);
    Key(Qt::Key_End);
    Key(Qt::Key_Delete);
    EXPECT_EQ(form.lines.Text(), "abc");
}

TEST_F(WindowControlsTest, LinesShowWhatTheModelSays) {
    form.lines.SetText("ä\rb\nc");
    auto* edit = Find<QPlainTextEdit>("Lines");
    EXPECT_EQ(edit->toPlainText(), QString::fromUtf8("ä\nb\nc"));
    form.lines.SetSelection(3, 3);
    EXPECT_EQ(edit->textCursor().selectionStart(), 2);
    EXPECT_EQ(edit->textCursor().selectionEnd(), 4);
}

TEST_F(WindowControlsTest, LinesTellTheSelectionThatTheUserMakes) {
    form.lines.SetText("one\ntwo");
    form.lines.SetFocus();
    Key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.lines.SelStart(), 0);
    EXPECT_EQ(form.lines.SelLength(), 8);
    Click("Lines");
    EXPECT_EQ(form.lines.SelLength(), 0);
    EXPECT_EQ(form.lines.SelStart(), 8);
}

TEST_F(WindowControlsTest, HandlerThatMendsTheLinesIsShown) {
    form.lines.onChange = [&] { form.lines.SetText("mended"); };
    form.lines.SetFocus();
    Type("x");
    EXPECT_EQ(Find<QPlainTextEdit>("Lines")->toPlainText(), "mended");
}

TEST_F(WindowControlsTest, CaretIsCountedOverLineEnds) {
    EXPECT_EQ(view::UnitsInLines("a\r\nb", 3), 2);
    EXPECT_EQ(view::UnitsInLines("a\r\nb", 2), 1);
    EXPECT_EQ(view::CodePointsInLines(QStringLiteral("a\nb"), 2), 3);
}

TEST_F(WindowControlsTest, TabLeavesTheLinesAndGoesByPlace) {
    form.lines.SetFocus();
    std::vector<std::string> order;
    for (int i = 0; i < 4; ++i) {
        Key(Qt::Key_Tab);
        order.push_back(form.Focus()->FullName());
    }
    EXPECT_THAT(order, ElementsAre("Path", "Link", "Option(0)", "Lines"));
    EXPECT_EQ(view.Window().focusWidget()->objectName(), "Lines");
}

TEST_F(WindowControlsTest, LinkActsOnMouseEnterAndBlank) {
    Click("Link");
    EXPECT_TRUE(form.link.HasFocus());
    EXPECT_EQ(view.Window().focusWidget()->objectName(), "Link");
    Key(Qt::Key_Return);
    Key(Qt::Key_Space);
    EXPECT_THAT(form.log, ElementsAre("link", "link", "link"));
}

TEST_F(WindowControlsTest, FocusedLinkIsSeen) {
    const QImage before = Find("Link")->grab().toImage();
    form.link.SetFocus();
    QCoreApplication::processEvents();
    EXPECT_NE(Find("Link")->grab().toImage(), before);
}

TEST_F(WindowControlsTest, LetterOfALabelLeadsToTheFieldBehindIt) {
    form.lines.SetFocus();
    Key(Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(form.path.HasFocus());
    Type("x");
    EXPECT_EQ(form.path.Text(), "x");
}

TEST_F(WindowControlsTest, MarkedLetterIsUnderlinedAndThePlainSignIsRead) {
    const QImage marked = Find("Caption")->grab().toImage();
    form.caption.SetCaption("Path");
    const QImage plain = Find("Caption")->grab().toImage();
    EXPECT_NE(marked, plain);
    form.caption.SetMarksLetter(false);
    EXPECT_EQ(Find("Caption")->grab().toImage(), plain);
    form.caption.SetCaption("&Path");
    EXPECT_NE(Find("Caption")->grab().toImage(), marked);
}

TEST_F(WindowControlsTest, ArrowsGoThroughTheOptions) {
    form.options[0].SetValue(1);
    form.options[0].SetFocus();
    form.log.clear();
    Key(Qt::Key_Down);
    EXPECT_THAT(form.log, ElementsAre("option 1"));
    EXPECT_EQ(view.Window().focusWidget()->objectName(), "Option(1)");
    Key(Qt::Key_Down);
    EXPECT_EQ(form.options[0].Value(), 1);
}

TEST_F(WindowControlsTest, ButtonWithoutTheFocusLeavesItWhereItIs) {
    form.path.SetFocus();
    Click("Up");
    Key(Qt::Key_U, Qt::AltModifier);
    EXPECT_THAT(form.log, ElementsAre("up", "up"));
    EXPECT_TRUE(form.path.HasFocus());
}

TEST_F(WindowControlsTest, PictureKeepsItsProportionsAtTheTop) {
    auto pixels = std::make_shared<forms::Bitmap>();
    pixels->width = 40;
    pixels->height = 20;
    pixels->pixels.assign(800, 0xffff0000);
    form.image.SetPicture({"", pixels});
    const auto isRed = [&](int x, int y) {
        return Find("Image")->grab().toImage().pixelColor(x, y) == QColor(255, 0, 0);
    };
    EXPECT_TRUE(isRed(50, 5));
    form.image.SetKeepsProportions(true);
    EXPECT_TRUE(isRed(50, 5));
    EXPECT_TRUE(isRed(2, 45));
    EXPECT_FALSE(isRed(50, 55));
    EXPECT_FALSE(isRed(50, 95));
}

TEST_F(WindowControlsTest, PictureOfWhatCanBeDraggedHasItsRoundCorners) {
    auto pixels = std::make_shared<forms::Bitmap>();
    pixels->width = pixels->height = 4;
    pixels->pixels.assign(16, 0xffff0000);
    form.front.SetPicture({"", pixels});
    const auto isRed = [&](int x, int y) {
        return Find("Front")->grab().toImage().pixelColor(x, y) == QColor(255, 0, 0);
    };
    EXPECT_TRUE(isRed(0, 0));
    EXPECT_TRUE(isRed(50, 30));
    form.front.SetTag("Pic");
    form.front.onMouseDown = [](const forms::Mouse&) {};
    EXPECT_FALSE(isRed(0, 0));
    EXPECT_TRUE(isRed(50, 30));
}

TEST_F(WindowControlsTest, PictureGetsSmoothWhenItsPlaceRests) {
    auto stripes = std::make_shared<forms::Bitmap>();
    stripes->width = 400;
    stripes->height = 100;
    stripes->opaque = true;
    for (int i = 0; i < 40000; ++i)
        stripes->pixels.push_back(i % 2 == 0 ? 0xff000000 : 0xffffffff);
    form.image.SetPicture({"", stripes});
    const auto isSmooth = [&] {
        const int red = Find("Image")->grab().toImage().pixelColor(50, 20).red();
        return red > 100 && red < 156;
    };
    EXPECT_TRUE(isSmooth());
    form.image.Move(5100, 300, 1485, 1500);
    EXPECT_TRUE(QTest::qWaitFor(isSmooth, 20000));
}

TEST_F(WindowControlsTest, ControlSentToTheBackLiesBehindTheOthers) {
    const QPoint place = Find("Front")->geometry().center();
    EXPECT_EQ(view.Window().childAt(place)->objectName(), "Front");
    form.front.SendToBack();
    EXPECT_EQ(view.Window().childAt(place)->objectName(), "Back");
    form.front.BringToFront();
    EXPECT_EQ(view.Window().childAt(place)->objectName(), "Front");
}

TEST_F(WindowControlsTest, KeyThatIsHeldDownSaysSo) {
    form.path.SetFocus();
    std::vector<bool> repeats;
    form.path.onKeyDown = [&](forms::Key& key) { repeats.push_back(key.repeat); };
    for (const bool held : {false, true}) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_A, {}, QStringLiteral("a"), held);
        QCoreApplication::sendEvent(view.Window().focusWidget(), &event);
    }
    EXPECT_THAT(repeats, ElementsAre(false, true));
    EXPECT_EQ(form.path.Text(), "aa");
}

TEST_F(WindowControlsTest, SurfaceThatNobodyListensToDragsTheWindow) {
    QWindow* native = view.Window().windowHandle();
    const QPoint before = view.Window().pos();
    QTest::mousePress(native, Qt::LeftButton, {}, QPoint(550, 450));
    QTest::mouseMove(native, QPoint(560, 470));
    QTest::mouseMove(native, QPoint(590, 480));
    QTest::mouseRelease(native, Qt::LeftButton, {}, QPoint(590, 480));
    EXPECT_NE(view.Window().pos(), before);
}

}  // namespace
}  // namespace kivu::tests
