// What the user's hands cannot reach no assistive tool reaches for them: a window behind a modal
// one or a question, and what lies beside a list that is dropped down.

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <gmock/gmock.h>

#include "view/accessible_form.h"

namespace kivu::tests {
namespace {

class BehindModal : public AccessibleTest {
 protected:
    BehindModal() {
        form.Fill(3);
        form.list.onClick = form.list.onDblClick = form.Note("list");
        form.button.onClick = form.Note("button");
        form.text.onChange = form.Note("text");
        form.text.onGotFocus = form.Note("focus");
        form.slider.onChange = form.Note("slider");
        form.check.onClick = form.Note("check");
    }

    // Everything that a tool can do in the window.
    void TryEverything() {
        for (const char* name : {"List", "Text", "Button", "Check(0)", "Slider"}) {
            for (const QString& action : Of(name)->actionInterface()->actionNames())
                Do(Of(name), action);
        }
        for (const QString& action : Of("List")->child(1)->actionInterface()->actionNames())
            Do(Of("List")->child(1), action);
        Of("Text")->editableTextInterface()->replaceText(0, 0, QStringLiteral("x"));
        Of("Slider")->valueInterface()->setCurrentValue(7);
        Settle();
    }
    void ExpectTold(bool disabled) {
        for (const char* name : {"List", "Text", "Button", "Check(0)", "Slider"})
            EXPECT_EQ(Of(name)->state().disabled, disabled) << name;
        EXPECT_EQ(Of("List")->child(1)->state().disabled, disabled);
    }
    void ExpectClosed() {
        ExpectTold(true);
        form.log.clear();
        TryEverything();
        EXPECT_EQ(form.log, std::vector<std::string>());
        EXPECT_EQ(form.Focus(), nullptr);
    }
    void ExpectOpen() {
        ExpectTold(false);
        TryEverything();
        for (const char* done : {"list", "button", "text", "focus", "slider", "check"})
            EXPECT_THAT(form.log, testing::Contains(done));
    }
};

TEST_F(BehindModal, WindowIsOutOfReachUntilItHasGone) {
    Show();
    SampleForm other;
    other.button.onClick = other.Note("other");
    view::FormView modal(other);
    modal.StandOver(&view, true);
    modal.Show();
    Settle();
    ExpectClosed();
    // The one in front is reached, and so is what stands over it.
    auto* button = modal.Window().findChild<QWidget*>(QStringLiteral("Button"));
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(button)->state().disabled);
    Press(QAccessible::queryAccessibleInterface(button));
    EXPECT_EQ(other.log, std::vector<std::string>{"other"});
    SampleForm third;
    view::FormView over(third);
    over.StandOver(&modal, false);
    over.Show();
    button = over.Window().findChild<QWidget*>(QStringLiteral("Button"));
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(button)->state().disabled);
    over.Hide();
    modal.Hide();
    Settle();
    ExpectOpen();
}

TEST_F(BehindModal, WindowIsOutOfReachUntilTheQuestionIsAnswered) {
    Show();
    QDialog question(&view.Window());
    question.setModal(true);
    question.show();
    Settle();
    ExpectClosed();
    question.reject();
    Settle();
    ExpectOpen();
}

// What a tool asks for is done a little later, and a question may have come up meanwhile.
TEST_F(BehindModal, QuestionBetweenAskingAndDoingKeepsItOff) {
    Show();
    QDialog question(&view.Window());
    question.setModal(true);
    Of("Button")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Of("List")->child(1)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    question.show();
    Settle();
    EXPECT_EQ(form.log, std::vector<std::string>());
    question.reject();
}

TEST_F(BehindModal, ListThatIsDroppedDownIsReachedAlone) {
    form.choice.SetVisible(true);
    form.choice.AddItem("One");
    form.choice.AddItem("Two");
    form.choice.onClick = form.Note("choice");
    Show();
    Do(Of("Choice"), QAccessibleActionInterface::showMenuAction());
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    ExpectTold(true);
    Press(Of("Button"));
    EXPECT_EQ(form.log, std::vector<std::string>());
    EXPECT_FALSE(Of("Choice")->state().disabled);
    Press(Of("Choice")->child(1));
    EXPECT_EQ(form.log, std::vector<std::string>{"choice"});
    EXPECT_EQ(form.choice.ListIndex(), 1);
    static_cast<QComboBox*>(Find("Choice"))->hidePopup();
    Settle();
    ExpectTold(false);
}

}  // namespace
}  // namespace kivu::tests
