#include "view/shown_form.h"

namespace kivu::tests {
namespace {

class FocusTest : public ShownForm {
 protected:
    void LogFocus(forms::Control& control) {
        control.onGotFocus = form.Note("+" + control.FullName());
        control.onLostFocus = form.Note("-" + control.FullName());
    }
    QString Focused() {
        QWidget* focus = view.Window().focusWidget();
        return focus ? focus->objectName() : QString();
    }
};

TEST_F(FocusTest, TakesTheModelsFocusAtFirstShowWithoutAHandler) {
    form.text.SetFocus();
    LogFocus(form.text);
    LogFocus(form.list);
    Show();
    EXPECT_EQ(Focused(), "Text");
    EXPECT_TRUE(Find("Text")->hasFocus());
    EXPECT_TRUE(form.log.empty());
}

TEST_F(FocusTest, TakesNoFocusWhereTheModelHasNone) {
    LogFocus(form.list);
    Show();
    EXPECT_EQ(Focused(), "");
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_TRUE(form.log.empty());
}

TEST_F(FocusTest, FollowsTheModel) {
    Show();
    LogFocus(form.text);
    form.text.SetFocus();
    EXPECT_TRUE(Find("Text")->hasFocus());
    EXPECT_EQ(form.log, std::vector<std::string>{"+Text"});
}

TEST_F(FocusTest, HandsTheFocusOfAHiddenControlToNobody) {
    form.text.SetFocus();
    Show();
    for (forms::Control* control : form.Controls()) {
        LogFocus(*control);
    }
    form.text.SetVisible(false);
    Settle();
    EXPECT_EQ(form.log, std::vector<std::string>{"-Text"});
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(FocusTest, HandsTheFocusOfADisabledControlToNobody) {
    form.text.SetFocus();
    Show();
    for (forms::Control* control : form.Controls()) {
        LogFocus(*control);
    }
    form.text.SetEnabled(false);
    Settle();
    EXPECT_EQ(form.log, std::vector<std::string>{"-Text"});
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(FocusTest, DropsTheFocusInsideAHiddenContainer) {
    form.inner.SetFocus();
    Show();
    LogFocus(form.inner);
    form.frame.SetVisible(false);
    Settle();
    EXPECT_EQ(form.log, std::vector<std::string>{"-Inner"});
    EXPECT_EQ(QApplication::focusWidget(), nullptr);
}

TEST_F(FocusTest, StaysThroughAnotherWindowsTurn) {
    form.text.SetFocus();
    Show();
    LogFocus(form.text);
    QWidget stranger;
    stranger.show();
    stranger.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&stranger));
    EXPECT_TRUE(form.text.HasFocus());
    stranger.hide();
    view.Window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view.Window()));
    EXPECT_TRUE(form.log.empty());
    EXPECT_TRUE(Find("Text")->hasFocus());
}

// Some sessions leave the keyboard with the window.
TEST_F(FocusTest, KeysAreTheOpenDropDowns) {
    for (const char* row : {"One", "Two", "Three"})
        form.combo.AddItem(row);
    form.combo.SetListIndex(0);
    form.onPreviewKeyDown = [this](forms::Key&) { form.log.push_back("key"); };
    Show();
    form.combo.SetFocus();
    auto* combo = Find<QComboBox>("Combo");
    const auto strike = [&](int key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(combo, &press);
        EXPECT_TRUE(press.isAccepted());
    };
    combo->showPopup();
    ASSERT_TRUE(QApplication::activePopupWidget());
    strike(Qt::Key_Down);
    EXPECT_EQ(combo->view()->currentIndex().row(), 1);
    strike(Qt::Key_Escape);
    EXPECT_FALSE(QApplication::activePopupWidget());
    EXPECT_EQ(form.combo.ListIndex(), 0);
    EXPECT_TRUE(form.log.empty());
    // The next one is the window's again.
    strike(Qt::Key_Escape);
    EXPECT_EQ(form.log.size(), 1U);
}

// As the session hands them to the window: offered as a shortcut first, then pressed.
TEST_F(FocusTest, KeyThatClosesADropDownDoesNothingElse) {
    for (forms::ComboBox* box : {&form.combo, &form.choice}) {
        for (const char* row : {"One", "Two"})
            box->AddItem(row);
    }
    form.choice.SetVisible(true);
    Show();
    for (forms::ComboBox* box : {&form.combo, &form.choice}) {
        box->SetFocus();
        auto* combo = Find<QComboBox>(box->FullName().c_str());
        for (const int key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_F4, Qt::Key_Down}) {
            SCOPED_TRACE(box->FullName() + ": " + std::to_string(key));
            const Qt::KeyboardModifiers held =
                key == Qt::Key_Down ? Qt::AltModifier : Qt::NoModifier;
            box->SetListIndex(0);
            form.onPreviewKeyDown = nullptr;
            combo->showPopup();
            ASSERT_TRUE(QApplication::activePopupWidget());
            form.log.clear();
            form.onPreviewKeyDown = [this](forms::Key&) { form.log.push_back("key"); };
            QTest::keyClick(view.Window().windowHandle(), Qt::Key_Down);
            EXPECT_TRUE(QApplication::activePopupWidget());
            QTest::keyClick(view.Window().windowHandle(), static_cast<Qt::Key>(key), held);
            EXPECT_FALSE(QApplication::activePopupWidget());
            EXPECT_TRUE(form.log.empty());
            EXPECT_EQ(box->ListIndex(), key == Qt::Key_Return ? 1 : 0);
            // The next one is the window's again.
            QTest::keyClick(view.Window().windowHandle(), Qt::Key_Escape);
            EXPECT_EQ(form.log, std::vector<std::string>{"key"});
        }
    }
}

TEST_F(FocusTest, StaysWhileAPopupIsOpen) {
    form.combo.AddItem("a");
    form.combo.AddItem("b");
    form.combo.SetFocus();
    Show();
    LogFocus(form.combo);
    Find<QComboBox>("Combo")->showPopup();
    Settle();
    Find<QComboBox>("Combo")->hidePopup();
    Settle();
    EXPECT_TRUE(form.log.empty());
    EXPECT_TRUE(form.combo.HasFocus());
}

TEST_F(FocusTest, HearsAScreenReaderThatMovesIt) {
    Show();
    LogFocus(form.text);
    Find("Text")->setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(form.log, std::vector<std::string>{"+Text"});
}

TEST_F(FocusTest, GoesToTheClickedControlBeforeItsHandlersRun) {
    LogFocus(form.text);
    LogFocus(form.list);
    form.text.onMouseDown = [this](const forms::Mouse&) { form.log.push_back("down"); };
    form.list.SetFocus();
    form.log.clear();
    Show();
    Click(Middle(Find("Text")));
    const std::vector<std::string> order{"-List", "+Text", "down"};
    EXPECT_EQ(form.log, order);
}

TEST_F(FocusTest, LeavesLabelsWithoutIt) {
    form.list.SetFocus();
    form.label.onClick = form.Note("click");
    Show();
    Click(Middle(Find("Label")));
    EXPECT_TRUE(form.list.HasFocus());
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(FocusTest, SurvivesAGotFocusHandlerThatHidesItsControl) {
    form.combo.onGotFocus = [this] { form.combo.SetVisible(false); };
    Show();
    Click(Middle(Find("Combo")));
    Settle();
    EXPECT_FALSE(Find("Combo")->isVisible());
    EXPECT_EQ(form.Focus(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(FocusTest, MovesOnFromALostFocusHandler) {
    form.text.onLostFocus = [this] { form.combo.SetFocus(); };
    form.text.SetFocus();
    Show();
    form.list.SetFocus();
    EXPECT_TRUE(form.combo.HasFocus());
    EXPECT_EQ(Focused(), "Combo");
}

}  // namespace
}  // namespace kivu::tests
