#include <QPainter>
#include <QSessionManager>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

using WindowTest = ShownForm;

TEST_F(WindowTest, HasTheFormsSizeTitleAndFrame) {
    Show();
    EXPECT_EQ(view.Window().geometry(), QRect(100, 100, 800, 600));
    EXPECT_EQ(view.Window().windowTitle(), "Sample");
    EXPECT_TRUE(Native()->flags() & Qt::FramelessWindowHint);
    form.SetCaption("50 % [*] <b>");
    EXPECT_EQ(view.Window().windowTitle(), "50 % [*][*] <b>");
}

TEST_F(WindowTest, TakesTheToolkitsDefaultSizeAsAnyOther) {
    form.Move(1500, 1500, 9600, 7200);
    Show();
    EXPECT_EQ(view.Window().size(), QSize(640, 480));
}

TEST_F(WindowTest, ChangesItsFlagsWithoutHidingItself) {
    Show();
    form.SetTopmost(true);
    EXPECT_TRUE(view.Window().isVisible());
    EXPECT_TRUE(Native()->flags() & Qt::WindowStaysOnTopHint);
    form.SetHasFrame(true);
    EXPECT_TRUE(view.Window().isVisible());
    EXPECT_FALSE(Native()->flags() & Qt::FramelessWindowHint);
    form.SetTopmost(false);
    EXPECT_FALSE(Native()->flags() & Qt::WindowStaysOnTopHint);
}

TEST_F(WindowTest, FollowsTheModelsSizeAndWritesNoPixelsBack) {
    Show();
    form.Move(1507, 1511, 12007, 9011);
    Settle();
    EXPECT_EQ(view.Window().geometry(), QRect(100, 101, 801, 600));
    EXPECT_EQ(form.Left(), 1507);
    EXPECT_EQ(form.Width(), 12007);
    EXPECT_EQ(form.Height(), 9011);
}

TEST_F(WindowTest, TellsTheModelWhatTheWindowManagerChanges) {
    form.Move(1507, 1511, 12007, 9011);
    form.onResize = form.Note("resize");
    Show();
    QRect place = Native()->geometry();
    place.setWidth(900);
    Native()->setGeometry(place);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.Width() == 13500; }));
    // What did not change keeps its twips.
    EXPECT_EQ(form.Height(), 9011);
    EXPECT_EQ(form.Left(), 1507);
    EXPECT_EQ(form.log, std::vector<std::string>{"resize"});
}

TEST_F(WindowTest, ComesBackFromMaximisedWithTheSameTwips) {
    form.Move(1507, 1511, 12007, 9011);
    Show();
    form.SetState(forms::WindowState::maximized);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.Width() != 12007; }));
    EXPECT_TRUE(view.Window().isMaximized());
    form.SetState(forms::WindowState::normal);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.Width() == 12007; }));
    EXPECT_EQ(form.Left(), 1507);
    EXPECT_EQ(form.Height(), 9011);
}

TEST_F(WindowTest, TellsTheModelItsState) {
    Show();
    view.Window().showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.State() == forms::WindowState::maximized; }));
    view.Window().showNormal();
    ASSERT_TRUE(QTest::qWaitFor([&] { return form.State() == forms::WindowState::normal; }));
}

TEST_F(WindowTest, OpensMaximisedWhenTheModelSaysSo) {
    form.SetState(forms::WindowState::maximized);
    Show();
    EXPECT_TRUE(view.Window().isMaximized());
}

TEST_F(WindowTest, OpensInSightWhereItsScreenHasGone) {
    form.Move(900000, 900000, 12000, 9000);
    Show();
    EXPECT_TRUE(view.Window().screen()->geometry().intersects(view.Window().geometry()));
    // Seen elsewhere, but that is no wish of the user's.
    EXPECT_EQ(form.Left(), 900000);
}

TEST_F(WindowTest, HasRoundCornersUnlessMaximised) {
    Show();
    const QRegion round = view.Window().mask();
    EXPECT_FALSE(round.contains(QPoint(1, 1)));
    EXPECT_TRUE(round.contains(QPoint(15, 15)));
    EXPECT_TRUE(round.contains(QPoint(400, 1)));
    EXPECT_FALSE(round.contains(QPoint(798, 598)));
    form.SetState(forms::WindowState::maximized);
    Settle();
    EXPECT_TRUE(view.Window().mask().isEmpty());
}

TEST_F(WindowTest, PaintsItsCornersWholeWhereNothingBlendsThem) {
    bool composited = true;
    view.SetCompositing([&] { return composited; });
    Show();
    const auto corner = [this] {
        QImage picture(view.Window().size(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        view.Window().render(&picture, {}, {}, QWidget::DrawChildren);
        // The outermost pixel of a line that the shape still holds.
        int x = 0;
        while (!view.Window().mask().contains(QPoint(x, 2)))
            ++x;
        return picture.pixelColor(x, 2);
    };
    EXPECT_LT(corner().alpha(), 255);
    composited = false;
    view.SetCompositing([&] { return composited; });
    EXPECT_EQ(corner().alpha(), 255);
    EXPECT_GT(corner().blue(), 60);
    // It asks again when it comes to the front.
    composited = true;
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&view.Window(), &activate);
    EXPECT_LT(corner().alpha(), 255);
}

TEST_F(WindowTest, StaysOpenWhileSomebodyObjects) {
    bool refuse = true;
    form.onQueryClose = [&](bool& cancel) { cancel = refuse; };
    bool closed = false;
    view.onClosed = [&] { closed = true; };
    Show();
    EXPECT_FALSE(view.Window().close());
    EXPECT_TRUE(view.Window().isVisible());
    EXPECT_FALSE(closed);
    refuse = false;
    EXPECT_TRUE(view.Window().close());
    EXPECT_FALSE(view.Window().isVisible());
    EXPECT_TRUE(closed);
}

TEST_F(WindowTest, AsksForTheCloseKeyThatNobodySwallowed) {
    form.onQueryClose = [this](bool& cancel) {
        form.log.push_back("close");
        cancel = true;
    };
    Show();
    Key(Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(form.log, std::vector<std::string>{"close"});
    form.onPreviewKeyDown = [](forms::Key& key) { key.code = 0; };
    Key(Qt::Key_F4, Qt::AltModifier);
    EXPECT_EQ(form.log.size(), 1U);
}

TEST_F(WindowTest, CloseRequestWhileAltIsHeldIsAltF4) {
    forms::Key struck;
    bool swallow = true;
    form.onPreviewKeyDown = [&](forms::Key& key) {
        struck = key;
        if (swallow) key = {};
    };
    form.onQueryClose = [this](bool& cancel) {
        form.log.push_back("close");
        cancel = true;
    };
    Show();
    // What another test has held down.
    QTest::keyRelease(view.Window().windowHandle(), Qt::Key_Alt, Qt::NoModifier);
    EXPECT_FALSE(view.Window().close());
    EXPECT_EQ(struck.code, 0);
    EXPECT_EQ(form.log.size(), 1U);
    // The toolkit learns of held keys by the window system.
    QTest::keyPress(view.Window().windowHandle(), Qt::Key_Alt, Qt::AltModifier);
    struck = {};
    EXPECT_FALSE(view.Window().close());
    EXPECT_EQ(struck, (forms::Key{forms::keys::f4, forms::shifts::alt}));
    EXPECT_EQ(form.log.size(), 1U);
    // Nobody swallows it, and it is asked for once.
    swallow = false;
    EXPECT_FALSE(view.Window().close());
    EXPECT_EQ(form.log.size(), 2U);
    QTest::keyRelease(view.Window().windowHandle(), Qt::Key_Alt, Qt::NoModifier);
}

TEST_F(WindowTest, CloseRequestSoonAfterAltIsAltF4) {
    std::chrono::milliseconds now{1000};
    view.SetClock([&] { return now; });
    std::vector<forms::Key> struck;
    form.onPreviewKeyDown = [&](forms::Key& key) {
        struck.push_back(key);
        key = {};
    };
    form.onQueryClose = [this](bool& cancel) {
        form.log.push_back("close");
        cancel = true;
    };
    Show();
    const auto altThenClose = [&](int later) {
        QTest::keyPress(Native(), Qt::Key_Alt, Qt::AltModifier);
        QTest::keyRelease(Native(), Qt::Key_Alt, Qt::NoModifier);
        struck.clear();
        now += std::chrono::milliseconds(later);
        EXPECT_FALSE(view.Window().close());
    };
    altThenClose(500);
    EXPECT_EQ(struck, (std::vector{forms::Key{forms::keys::f4, forms::shifts::alt}}));
    EXPECT_TRUE(form.log.empty());
    // Later it is a panel's, and so it is after another key.
    altThenClose(501);
    EXPECT_TRUE(struck.empty());
    EXPECT_EQ(form.log.size(), 1U);
    QTest::keyPress(Native(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyRelease(Native(), Qt::Key_Alt, Qt::NoModifier);
    Key(Qt::Key_X);
    EXPECT_FALSE(view.Window().close());
    EXPECT_EQ(form.log.size(), 2U);
    // Alt that was held for another key is let go after it.
    QTest::keyPress(Native(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(Native(), Qt::Key_Right, Qt::AltModifier);
    QTest::keyRelease(Native(), Qt::Key_Alt, Qt::NoModifier);
    EXPECT_FALSE(view.Window().close());
    EXPECT_EQ(form.log.size(), 3U);
}

TEST_F(WindowTest, QuestionOverAMinimisedWindowIsSeen) {
    Show();
    form.SetState(forms::WindowState::minimized);
    QCoreApplication::processEvents();
    ASSERT_TRUE(view.Window().isMinimized());
    bool minimised = true;
    form.onQueryClose = [&](bool& cancel) {
        minimised = view.Window().isMinimized();
        cancel = true;
    };
    EXPECT_FALSE(view.Window().close());
    EXPECT_FALSE(minimised);
}

TEST_F(WindowTest, HandMakesItNoSmallerThanCanBeHandled) {
    Show();
    EXPECT_EQ(Native()->minimumSize(), QSize(240, 160));
    // What the program says is taken, and is not made larger by a hand that only moves it.
    form.Move(form.Left(), form.Top(), 1500, 600);
    Settle();
    EXPECT_EQ(view.Window().size(), QSize(100, 40));
    EXPECT_EQ(form.Width(), 1500);
    EXPECT_EQ(Native()->minimumSize(), QSize(100, 40));
    form.Move(form.Left(), form.Top(), 9000, 600);
    Settle();
    EXPECT_EQ(Native()->minimumSize(), QSize(240, 40));
}

TEST_F(WindowTest, CornersAreGrippedAlongTheirRoundLine) {
    Show();
    const auto isGrip = [this](int x, int y) {
        const QWidget* at = view.Window().childAt(x, y);
        return at && at->cursor().shape() == Qt::SizeFDiagCursor;
    };
    // The line goes through (9, 9); what lies outside of it is not seen.
    EXPECT_TRUE(isGrip(11, 11));
    EXPECT_TRUE(isGrip(3, 24));
    EXPECT_TRUE(isGrip(24, 3));
    EXPECT_FALSE(isGrip(18, 18));
    const QSize size = view.Window().size();
    EXPECT_TRUE(isGrip(size.width() - 12, size.height() - 12));
    EXPECT_FALSE(isGrip(size.width() - 19, size.height() - 19));
    form.SetCornerRadius(0);
    Settle();
    EXPECT_TRUE(isGrip(5, 5));
    EXPECT_FALSE(isGrip(12, 12));
}

TEST_F(WindowTest, HidesAndComesBackByTheFormsOwnFlag) {
    Show();
    form.SetVisible(false);
    EXPECT_FALSE(view.Window().isVisible());
    form.SetVisible(true);
    EXPECT_TRUE(view.Window().isVisible());
}

TEST_F(WindowTest, StaysWhereItIsUnderAClickThatAsksForADrag) {
    form.onMouseDown = [this](const forms::Mouse&) { form.BeginDrag(); };
    form.onClick = form.Note("click");
    form.onDblClick = form.Note("double");
    Show();
    DoubleClick(QPoint(700, 500));
    const std::vector<std::string> order{"click", "double"};
    EXPECT_EQ(form.log, order);
    EXPECT_EQ(view.Window().pos(), QPoint(100, 100));
}

TEST_F(WindowTest, EndsWithItsFormStillThere) {
    SampleForm later;
    {
        view::FormView short_lived(later);
        short_lived.Show();
        later.Fill(3);
    }
    // Nobody listens any more, and nothing is told to a view that has gone.
    later.Fill(3);
    later.list.SetFocus();
    Settle();
    EXPECT_EQ(later.list.ListCount(), 6);
}

}  // namespace
}  // namespace kivu::tests
