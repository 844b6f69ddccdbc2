#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "hosts/qt/dialogs_qt.h"
#include "hosts/qt/event_pump_qt.h"

namespace kivu::tests {
namespace {

using namespace platform;

// Runs once the box of that name is on the screen.
void WhenShown(const char* name, std::function<void(QDialog&)> then) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget* box = QApplication::activeModalWidget();
        if (!box || box->objectName() != QLatin1String(name)) return;
        timer->deleteLater();
        timer->stop();
        then(static_cast<QDialog&>(*box));
    });
    timer->start(1);
}

void Press(QDialog& box, const char* button) {
    auto* found = box.findChild<QPushButton*>(QLatin1String(button));
    ASSERT_TRUE(found) << button;
    QTest::mouseClick(found, Qt::LeftButton);
}

TEST(Dialogs, GiveTheAnswerOfTheirButtons) {
    hosts::QtDialogs dialogs(false);
    WhenShown("MessageBox", [](QDialog& box) { Press(box, "Yes"); });
    EXPECT_EQ(dialogs.MessageBox("Sure?", "Title", Buttons::YesNo, Icon::Question), Answer::Yes);
    WhenShown("MessageBox", [](QDialog& box) { Press(box, "No"); });
    EXPECT_EQ(dialogs.MessageBox("Sure?", "Title", Buttons::YesNo, Icon::None), Answer::No);
    WhenShown("MessageBox", [](QDialog& box) { Press(box, "Cancel"); });
    EXPECT_EQ(dialogs.MessageBox("Sure?", "Title", Buttons::OkCancel, Icon::Error), Answer::Cancel);
}

TEST(Dialogs, GiveTheCancellingAnswerWhenClosed) {
    hosts::QtDialogs dialogs(false);
    const auto escape = [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); };
    WhenShown("MessageBox", escape);
    EXPECT_EQ(dialogs.MessageBox("", "", Buttons::YesNo, Icon::None), Answer::No);
    WhenShown("MessageBox", escape);
    EXPECT_EQ(dialogs.MessageBox("", "", Buttons::OkCancel, Icon::None), Answer::Cancel);
    WhenShown("MessageBox", [](QDialog& box) { box.close(); });
    EXPECT_EQ(dialogs.MessageBox("", "", Buttons::Ok, Icon::None), Answer::Ok);
}

TEST(Dialogs, HaveRoundCorners) {
    hosts::QtDialogs dialogs(false);
    QImage picture;
    WhenShown("MessageBox", [&](QDialog& box) {
        picture = box.grab().toImage();
        Press(box, "Ok");
    });
    dialogs.MessageBox("Sure?", "Title", Buttons::Ok, Icon::None);
    const int right = picture.width() - 1, bottom = picture.height() - 1;
    for (const QPoint corner :
         {QPoint(0, 0), QPoint(right, 0), QPoint(0, bottom), QPoint(right, bottom)}) {
        EXPECT_EQ(picture.pixelColor(corner).alpha(), 0);
        // Two pixels in from both edges a radius of twelve still leaves nothing.
        const int x = corner.x() == 0 ? 2 : right - 2, y = corner.y() == 0 ? 2 : bottom - 2;
        EXPECT_EQ(picture.pixelColor(x, y).alpha(), 0);
    }
    EXPECT_EQ(picture.pixelColor(right / 2, 2).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(2, bottom / 2).alpha(), 255);
}

TEST(Dialogs, TakeEnterForTheFirstButton) {
    hosts::QtDialogs dialogs(false);
    WhenShown("MessageBox", [](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs.MessageBox("", "", Buttons::YesNo, Icon::None), Answer::Yes);
}

TEST(Dialogs, TakeTheLetterOfAButtonWithAltAndWithout) {
    hosts::QtDialogs english(false), german(true);
    WhenShown("MessageBox", [](QDialog& box) { QTest::keyClick(box.focusWidget(), Qt::Key_N); });
    EXPECT_EQ(english.MessageBox("", "", Buttons::YesNo, Icon::None), Answer::No);
    WhenShown("MessageBox", [](QDialog& box) {
        QTest::keyClick(box.focusWidget(), Qt::Key_Y);  // stands on no button
        QTest::keyClick(box.focusWidget(), Qt::Key_J, Qt::ControlModifier);
        EXPECT_TRUE(box.isVisible());
        QTest::keyClick(box.focusWidget(), Qt::Key_J);
    });
    EXPECT_EQ(german.MessageBox("", "", Buttons::YesNo, Icon::None), Answer::Yes);
}

TEST(Dialogs, BreakNoLineThatHasRoom) {
    hosts::QtDialogs dialogs(false);
    int height = 0, line = 0;
    WhenShown("MessageBox", [&](QDialog& box) {
        auto* label = box.findChild<QLabel*>("Text");
        height = label->heightForWidth(label->width());
        line = label->fontMetrics().lineSpacing();
        box.close();
    });
    dialogs.MessageBox("Do you want to try to repair the favorites?\r\r", "Title", Buttons::YesNo,
                       Icon::Question);
    // One line, and none for the breaks at the end.
    EXPECT_LT(height, 2 * line);
}

TEST(Dialogs, BreakLinesAtCarriageReturnsAndShowNoMarkup) {
    hosts::QtDialogs dialogs(true);
    QString text;
    Qt::TextFormat format{};
    QString cancel;
    WhenShown("MessageBox", [&](QDialog& box) {
        text = box.findChild<QLabel*>("Text")->text();
        format = box.findChild<QLabel*>("Text")->textFormat();
        cancel = box.findChild<QPushButton*>("Cancel")->text();
        box.close();
    });
    dialogs.MessageBox("File not found:\r<b>x</b>.adf", "Title", Buttons::OkCancel, Icon::Warning);
    EXPECT_EQ(text, "File not found:\n<b>x</b>.adf");
    EXPECT_EQ(format, Qt::PlainText);
    EXPECT_EQ(cancel, "Abbrechen");
}

TEST(Dialogs, GiveTheTypedText) {
    hosts::QtDialogs dialogs(false);
    WhenShown("InputBox", [](QDialog& box) {
        auto* line = box.findChild<QLineEdit*>("Input");
        EXPECT_EQ(line->selectedText(), "old");
        QTest::keyClicks(line, "new");
        QTest::keyClick(line, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputBox("New Title", "Title", "old"), "new");
    WhenShown("InputBox", [](QDialog& box) { Press(box, "Cancel"); });
    EXPECT_EQ(dialogs.InputBox("New Title", "Title", "old"), "");
}

TEST(Dialogs, StandOverAWindowThatStaysOnTop) {
    hosts::QtDialogs dialogs(false);
    QWidget window(nullptr, Qt::Window | Qt::WindowStaysOnTopHint);
    window.setGeometry(100, 100, 600, 500);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QWidget* parent = nullptr;
    bool onTop = false;
    QPoint middle;
    WhenShown("MessageBox", [&](QDialog& box) {
        parent = box.parentWidget();
        onTop = box.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        middle = box.geometry().center();
        box.close();
    });
    dialogs.MessageBox("Text", "Title", Buttons::Ok, Icon::None);
    EXPECT_EQ(parent, &window);
    EXPECT_TRUE(onTop);
    EXPECT_LE((middle - window.geometry().center()).manhattanLength(), 3);
}

TEST(Dialogs, StayOnTheScreenWithAVeryLongText) {
    hosts::QtDialogs dialogs(false);
    QRect place;
    WhenShown("MessageBox", [&](QDialog& box) {
        place = box.geometry();
        box.close();
    });
    std::string text;
    for (int i = 0; i < 500; ++i)
        text += "line " + std::to_string(i) + "\r";
    dialogs.MessageBox(text, "Title", Buttons::Ok, Icon::None);
    EXPECT_LE(place.height(), QGuiApplication::primaryScreen()->availableSize().height());
}

using BoxKey = Dialogs::BoxKey;

// Without a keyboard: what a controller does to the box that is open.
Answer AnswerBy(hosts::QtDialogs& dialogs, Buttons buttons, std::vector<BoxKey> keys) {
    WhenShown("MessageBox", [&](QDialog&) {
        for (const BoxKey key : keys)
            dialogs.PressInBox(key);
    });
    return dialogs.MessageBox("Sure?", "Title", buttons, Icon::Question);
}

TEST(PressInBox, PressesTheButtonInFocus) {
    hosts::QtDialogs dialogs(false);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::press}), Answer::Yes);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::next, BoxKey::press}), Answer::No);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::next, BoxKey::previous, BoxKey::press}),
              Answer::Yes);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::OkCancel, {BoxKey::next, BoxKey::press}), Answer::Cancel);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::Ok, {BoxKey::next, BoxKey::press}), Answer::Ok);
}

TEST(PressInBox, TheRowOfButtonsHasEnds) {
    hosts::QtDialogs dialogs(false);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::previous, BoxKey::press}), Answer::Yes);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::next, BoxKey::next, BoxKey::press}),
              Answer::No);
}

TEST(PressInBox, GivesTheCancellingAnswer) {
    hosts::QtDialogs dialogs(false);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::YesNo, {BoxKey::cancel}), Answer::No);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::OkCancel, {BoxKey::cancel}), Answer::Cancel);
    EXPECT_EQ(AnswerBy(dialogs, Buttons::Ok, {BoxKey::cancel}), Answer::Ok);
}

TEST(PressInBox, TheStepIsSeen) {
    hosts::QtDialogs dialogs(false);
    QString first, second;
    WhenShown("MessageBox", [&](QDialog& box) {
        first = box.focusWidget()->objectName();
        dialogs.PressInBox(BoxKey::next);
        second = box.focusWidget()->objectName();
        // Enter presses it, as after a step by the keyboard.
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.MessageBox("Sure?", "Title", Buttons::YesNo, Icon::None), Answer::No);
    EXPECT_EQ(first, "Yes");
    EXPECT_EQ(second, "No");
}

TEST(PressInBox, ALineWithTheFocusLeavesTheButtonsAsTheyAre) {
    hosts::QtDialogs dialogs(false);
    const auto ask = [&](std::vector<BoxKey> keys) {
        WhenShown("InputBox", [&, keys](QDialog& box) {
            EXPECT_EQ(box.focusWidget()->objectName(), "Input");
            for (const BoxKey key : keys)
                dialogs.PressInBox(key);
        });
        return dialogs.InputBox("New Title", "Title", "old");
    };
    EXPECT_EQ(ask({BoxKey::press}), "old");
    EXPECT_EQ(ask({BoxKey::previous, BoxKey::press}), "old");
    EXPECT_EQ(ask({BoxKey::next, BoxKey::press}), "");
    EXPECT_EQ(ask({BoxKey::next, BoxKey::previous, BoxKey::press}), "old");
    EXPECT_EQ(ask({BoxKey::cancel}), "");
}

TEST(PressInBox, OfTwoBoxesTheUpperOneTakesIt) {
    hosts::QtDialogs dialogs(false);
    std::vector<Answer> answers;
    WhenShown("MessageBox", [&](QDialog&) {
        answers.push_back(AnswerBy(dialogs, Buttons::OkCancel, {BoxKey::press}));
        dialogs.PressInBox(BoxKey::cancel);
    });
    answers.push_back(dialogs.MessageBox("Sure?", "Title", Buttons::YesNo, Icon::None));
    EXPECT_EQ(answers, (std::vector<Answer>{Answer::Ok, Answer::No}));
}

TEST(PressInBox, WithoutABoxNothingHappens) {
    hosts::QtDialogs dialogs(false);
    AnswerBy(dialogs, Buttons::Ok, {BoxKey::press});
    for (const BoxKey key : {BoxKey::previous, BoxKey::next, BoxKey::press, BoxKey::cancel})
        dialogs.PressInBox(key);
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST(EventPump, RunsWhatWaits) {
    hosts::QtEventPump pump;
    bool ran = false;
    QTimer::singleShot(0, [&] { ran = true; });
    pump.DoEvents();
    EXPECT_TRUE(ran);
}

TEST(EventPump, EndsTheDescentOfEventsThatPump) {
    hosts::QtEventPump pump;
    int depth = 0;
    int deepest = 0;
    QObject waiting;  // what has not run by the end never will
    std::function<void()> again = [&] {
        deepest = std::max(deepest, ++depth);
        if (deepest < 1000) {
            QTimer::singleShot(0, &waiting, [&] { again(); });
            pump.DoEvents();
        }
        --depth;
    };
    again();
    EXPECT_LT(deepest, 100);
}

}  // namespace
}  // namespace kivu::tests
