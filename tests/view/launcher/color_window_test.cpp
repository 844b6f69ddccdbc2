// The colour picker under real hands, and what it makes of the launcher's window.

#include "testing/color_window.h"

#include <QCoreApplication>
#include <QSlider>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <utility>

#include "scenarios/scenario.h"
#include "view/colors.h"
#include "view/form_view.h"

namespace kivu::scenarios {
namespace {

class ColorWindowTest : public LoadedScenario {
 protected:
    void TearDown() override {
        view.reset();
        main.reset();
        window.reset();
        LoadedScenario::TearDown();
    }
    void Show() {
        Start();
        window = std::make_unique<testing::ColorWindow>(session->Routines());
        main = std::make_unique<view::FormView>(Form());
        main->Show();
        view = std::make_unique<view::FormView>(*window);
        view->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view->Window(), 20000));
        QCoreApplication::processEvents();
    }
    QWidget* Find(const char* name) {
        auto* found = view->Window().findChild<QWidget*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    QPoint Middle(QWidget* widget) {
        return widget->mapTo(&view->Window(), widget->rect().center());
    }
    void Key(Qt::Key key) {
        QTest::keyClick(view->Window().windowHandle(), key);
        QCoreApplication::processEvents();
    }
    void Click(const char* name) {
        QTest::mouseClick(view->Window().windowHandle(), Qt::LeftButton, {}, Middle(Find(name)));
        QCoreApplication::processEvents();
    }
    // Between the lists and the window's edge.
    QColor Surface() {
        QImage picture = main->Window().grab().toImage();
        return picture.pixelColor(8, 300);
    }

    std::unique_ptr<testing::ColorWindow> window;
    std::unique_ptr<view::FormView> main, view;
};

TEST_F(ColorWindowTest, DraggedSliderChangesTheWindowWithEachStep) {
    Show();
    window->picker.SetBackColor(0);
    auto* slider = qobject_cast<QSlider*>(Find("ColSlider1(0)"));
    ASSERT_TRUE(slider);
    const QPoint left = slider->mapTo(&view->Window(), QPoint(8, slider->height() / 2));
    QWindow* native = view->Window().windowHandle();
    QTest::mousePress(native, Qt::LeftButton, {}, left);
    QTest::mouseMove(native, Middle(slider));
    QCoreApplication::processEvents();
    const int half = window->controls.ColSlider1[0].Value();
    EXPECT_GT(half, 80);
    EXPECT_LT(half, 180);
    EXPECT_EQ(Form().BackColor(), static_cast<forms::Color>(half));
    QTest::mouseMove(native, left + QPoint(slider->width(), 0));
    QTest::mouseRelease(native, Qt::LeftButton, {}, left + QPoint(slider->width(), 0));
    QCoreApplication::processEvents();
    EXPECT_EQ(Form().BackColor(), 255u);
    EXPECT_GE(window->changes, 2);
}

TEST_F(ColorWindowTest, ArrowsMoveTheSliderInFocus) {
    Show();
    window->picker.SetBackColor(33023);
    window->controls.ColSlider1[2].SetFocus();
    Key(Qt::Key_Right);
    EXPECT_EQ(Form().BackColor(), 0x0180ffu);
    EXPECT_EQ(window->changes, 1);
}

TEST_F(ColorWindowTest, ClickOnTheOtherOptionBringsItsColour) {
    Show();
    window->picker.SetBackColor(0);
    window->picker.SetForeColor(0xffffff);
    Click("Option2");
    EXPECT_EQ(window->controls.ColSlider1[0].Value(), 255);
    EXPECT_EQ(qobject_cast<QSlider*>(Find("ColSlider1(0)"))->value(), 255);
    EXPECT_EQ(window->changes, 0);
}

TEST_F(ColorWindowTest, WindowIsSeenInItsColour) {
    Show();
    Form().SetPicture({});
    session->Routines().windowColors.SetColors(Form(), 0x0000c8, 0xffffff);
    QCoreApplication::processEvents();
    EXPECT_GT(Surface().red(), 90);
    EXPECT_LT(Surface().blue(), 60);
    session->Routines().windowColors.SetColors(Form(), 0xc80000, 0xffffff);
    QCoreApplication::processEvents();
    EXPECT_GT(Surface().blue(), 90);
    EXPECT_LT(Surface().red(), 60);
}

TEST_F(ColorWindowTest, PictureLetsTheColourThroughWhereItIsSeeThrough) {
    Show();
    auto veil = std::make_shared<forms::Bitmap>();
    veil->width = veil->height = 8;
    veil->pixels.assign(64, 0x40000000u);
    Form().SetPicture({"", veil});
    session->Routines().windowColors.SetColors(Form(), 0x0000c8, 0xffffff);
    QCoreApplication::processEvents();
    EXPECT_NEAR(Surface().red(), 0xc8 * 3 / 4, 3);
    EXPECT_EQ(Surface().blue(), 0);
    session->Routines().windowColors.SetColors(Form(), 0xc80000, 0xffffff);
    QCoreApplication::processEvents();
    EXPECT_NEAR(Surface().blue(), 0xc8 * 3 / 4, 3);
    // One that covers all is the same in every colour.
    auto wall = std::make_shared<forms::Bitmap>(*veil);
    wall->pixels.assign(64, 0xff102030u);
    Form().SetPicture({"", wall});
    session->Routines().windowColors.SetColors(Form(), 0x0000c8, 0xffffff);
    QCoreApplication::processEvents();
    EXPECT_EQ(Surface(), QColor(0x10, 0x20, 0x30));
}

TEST_F(ColorWindowTest, ButtonsFollowTheWindowsColour) {
    Show();
    auto* exit = main->Window().findChild<QWidget*>("ExitBtn");
    ASSERT_TRUE(exit);
    const auto face = [exit] { return exit->palette().color(QPalette::Button); };
    const QColor onBlue = face();
    session->Routines().windowColors.SetColors(Form(), 0xdfecf2, 0x3c3022);
    QCoreApplication::processEvents();
    EXPECT_NE(face(), onBlue);
    EXPECT_LT(view::Contrast(face(), QColor(0xf2, 0xec, 0xdf)), 2);
    EXPECT_GT(view::Contrast(face(), QColor(0xf2, 0xec, 0xdf)), 1.1);
}

TEST_F(ColorWindowTest, WritingIsReadWhateverTheColours) {
    Show();
    Form().SetPicture({});
    for (const auto& [back, fore] : {std::pair<int, int>{0x808080, 0x808080},
                                     {0x0000ff, 0x0000ff},
                                     {0xffffff, 0xf0f0f0},
                                     {0x000000, 0x101010}}) {
        session->Routines().windowColors.SetColors(Form(), back, fore);
        QCoreApplication::processEvents();
        const QImage picture = main->Window().grab().toImage();
        for (const char* name :
             {"MyCaptionLabel", "Label2", "ExitBtn", "UAE_Short", "EmuListbox"}) {
            auto* widget = main->Window().findChild<QWidget*>(QString::fromUtf8(name));
            if (!widget || !widget->isVisible()) continue;
            const QRect place(widget->mapTo(&main->Window(), QPoint(0, 0)), widget->size());
            const QColor ground = picture.pixelColor(place.topLeft() + QPoint(2, 2));
            double most = 0;
            for (int y = place.top(); y < place.bottom(); ++y) {
                for (int x = place.left(); x < place.right(); ++x)
                    most = std::max(most, view::Contrast(picture.pixelColor(x, y), ground));
            }
            EXPECT_GT(most, 3) << name << " in " << fore << " on " << back;
        }
    }
}

}  // namespace
}  // namespace kivu::scenarios
