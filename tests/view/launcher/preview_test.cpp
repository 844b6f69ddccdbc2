// The game's picture in the real window, under a user's hand.

#include "testing/picture_files.h"
#include "view/launcher/drives_window.h"

namespace kivu::scenarios {
namespace {

class PreviewWindow : public DrivesWindow {
 protected:
    static constexpr QRgb ink = 0xff884422;

    PreviewWindow() {
        tree.Write("Config/Amiga/Pictures/Amiga.png", testing::PngFile(400, 200, ink));
    }
    QColor ColorAt(QPoint at) {
        Settle();
        const QImage shot = view->Window().grab().toImage();
        return shot.pixelColor(at * shot.devicePixelRatio());
    }
    // In the upper part of the frame, where a wide picture stands.
    QPoint OnPicture() {
        QWidget* frame = Find("VorschauBild");
        return frame->mapTo(&view->Window(), QPoint(frame->width() / 2, 30));
    }
};

TEST_F(PreviewWindow, ShowsThePictureAtTheTopOfItsFrameInItsProportions) {
    Show();
    EXPECT_EQ(ColorAt(OnPicture()), QColor(ink));
    QWidget* frame = Find("VorschauBild");
    const QPoint below =
        frame->mapTo(&view->Window(), QPoint(frame->width() / 2, frame->height() - 10));
    EXPECT_NE(ColorAt(below), QColor(ink));
}

TEST_F(PreviewWindow, ClickZoomsItOverTheListsAndAnotherOnePutsItBack) {
    Show();
    const QRect before = Find("VorschauBild")->geometry();
    ClickAt(OnPicture());
    ASSERT_TRUE(Form().GamePicture.Visible());
    EXPECT_EQ(Find("VorschauBild")->size(), QSize(400, 200));
    const QPoint edge = Find("VorschauBild")->geometry().topLeft() + QPoint(5, 5);
    EXPECT_EQ(ColorAt(edge), QColor(ink)) << "it lies in front of the lists";
    ClickAt(edge);
    EXPECT_FALSE(Form().GamePicture.Visible());
    EXPECT_EQ(Find("VorschauBild")->geometry(), before);
    EXPECT_EQ(ColorAt(OnPicture()), QColor(ink));
}

TEST_F(PreviewWindow, PressOnAnEmulatorsPictureAsksWhetherToStartIt) {
    tree.Write("Config/Amiga/Skin/Amiga.png", testing::PngFile(300, 200, ink));
    Show();
    Do("focus", "Form1.EmuListbox");
    Settle();
    ASSERT_TRUE(Form().EmulatorLongListbox.Visible());
    Do("boxes");
    ClickAt(OnPicture());
    EXPECT_EQ(Do("boxes")["value"].size(), 1U);
    EXPECT_FALSE(Form().GamePicture.Visible());
}

TEST_F(PreviewWindow, DoubleClickOnTheFrameBelowMinimisesTheWindow) {
    Show();
    QWidget* frame = Find("SettingsFrame");
    QTest::mouseDClick(Native(), Qt::LeftButton, {}, frame->mapTo(&view->Window(), QPoint(3, 3)));
    Settle();
    EXPECT_EQ(Form().State(), forms::WindowState::minimized);
}

}  // namespace
}  // namespace kivu::scenarios
