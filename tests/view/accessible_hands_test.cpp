// What an assistive tool does reaches the model as the user's hands do.

#include "view/accessible_form.h"

namespace kivu::tests {
namespace {

TEST_F(AccessibleTest, ChosenRowIsClicked) {
    form.Fill(5);
    form.list.onClick = [this] {
        form.log.push_back("click " + std::to_string(form.list.ListIndex()));
    };
    form.list.onGotFocus = form.Note("focus");
    Show();
    QAccessibleInterface* row = Of("List")->child(2);
    EXPECT_FALSE(row->state().selected);
    Press(row);
    EXPECT_EQ(form.log, (std::vector<std::string>{"focus", "click 2"}));
    EXPECT_TRUE(row->state().selected);
    EXPECT_TRUE(row->state().focused);
    EXPECT_FALSE(Of("List")->child(1)->state().selected);
    EXPECT_EQ(Window()->focusChild(), row);
    // Enter takes the same row.
    std::string started;
    form.list.onKeyPress = [&](forms::Character&) { started = form.list.SelectedText(); };
    Key(Qt::Key_Return);
    EXPECT_EQ(started, "Row 2");
    Do(Of("List")->child(4), QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(form.list.ListIndex(), 4);
}

TEST_F(AccessibleTest, RowIsActivatedByADoubleClick) {
    form.Fill(5);
    QString activate = QStringLiteral("Activate");
    const auto row = [&] { return Of("List")->child(2); };
    Show();
    // It would do nothing.
    EXPECT_FALSE(row()->actionInterface()->actionNames().contains(activate));
    Do(row(), activate);
    EXPECT_EQ(form.list.ListIndex(), -1);
    form.list.onClick = form.Note("click");
    form.list.onDblClick = [this] { form.log.push_back("start " + form.list.SelectedText()); };
    ASSERT_EQ(row()->actionInterface()->actionNames().size(), 3);
    Do(row(), activate);
    EXPECT_EQ(form.log, (std::vector<std::string>{"click", "start Row 2"}));
    form.list.SetEnabled(false);
    Do(row(), activate);
    EXPECT_EQ(form.log.size(), 2U);
}

TEST_F(AccessibleTest, RowOfAListThatCannotBeReachedIsNotClicked) {
    form.Fill(5);
    Show();
    form.list.SetEnabled(false);
    Press(Of("List")->child(2));
    EXPECT_EQ(form.list.ListIndex(), -1);
    EXPECT_TRUE(Of("List")->child(2)->state().disabled);
}

TEST_F(AccessibleTest, TellsTheRowThatTheFocusIsOn) {
    if (ToldToNobody()) GTEST_SKIP() << "this screen has no assistive tools";
    form.Fill(5);
    form.list.SetListIndex(3);
    Show();
    events.clear();
    form.list.SetFocus();
    Settle();
    EXPECT_EQ(events.back(), "focus Row 3");
    events.clear();
    Key(Qt::Key_Up);
    Settle();
    ASSERT_FALSE(events.empty());
    EXPECT_EQ(events.back(), "focus Row 2");
}

TEST_F(AccessibleTest, ClickablePictureIsAButtonNamedByItsToolTip) {
    SampleForm other;
    forms::Image picture(&other, "Picture"), decoration(&other, "Decoration");
    picture.Move(0, 0, 300, 300);
    picture.SetToolTipText("Always on top");
    picture.onClick = other.Note("click");
    view::FormView shown(other);
    shown.Show();
    const auto of = [&](const char* name) {
        return QAccessible::queryAccessibleInterface(
            shown.Window().findChild<QWidget*>(QString::fromUtf8(name)));
    };
    EXPECT_EQ(of("Picture")->role(), QAccessible::Button);
    EXPECT_EQ(Name(of("Picture")), "Always on top");
    Press(of("Picture"));
    EXPECT_EQ(other.log, std::vector<std::string>{"click"});
    EXPECT_TRUE(of("Decoration")->state().invisible);
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&shown.Window())->indexOfChild(of("Decoration")), -1);
}

TEST_F(AccessibleTest, ButtonIsPressedThroughTheModel) {
    form.button.onClick = form.Note("go");
    Show();
    EXPECT_EQ(Name(Of("Button")), "Go");
    EXPECT_EQ(Of("Button")->role(), QAccessible::Button);
    Press(Of("Button"));
    EXPECT_EQ(form.log, std::vector<std::string>{"go"});
    EXPECT_TRUE(form.button.HasFocus());
    form.button.SetEnabled(false);
    EXPECT_TRUE(Of("Button")->state().disabled);
    Press(Of("Button"));
    EXPECT_EQ(form.log.size(), 1U);
}

TEST_F(AccessibleTest, TextIsWrittenAsIfItWereTyped) {
    form.text.SetText("Search..");
    form.text.onGotFocus = [this] { form.text.SetText(""); };
    form.text.onChange = [this] { form.log.push_back(form.text.Text()); };
    Show();
    QAccessibleInterface* field = Of("Text");
    EXPECT_EQ(field->role(), QAccessible::EditableText);
    EXPECT_TRUE(field->state().editable);
    EXPECT_EQ(field->text(QAccessible::Value), "Search..");
    ASSERT_TRUE(field->editableTextInterface());
    field->editableTextInterface()->replaceText(0, 8, QStringLiteral("b\u00e4r"));
    EXPECT_EQ(form.text.Text(), "b\u00e4r");
    EXPECT_EQ(form.log, (std::vector<std::string>{"", "b\u00e4r"}));
    EXPECT_TRUE(form.text.HasFocus());
    EXPECT_EQ(field->textInterface()->cursorPosition(), 3);
    field->editableTextInterface()->insertText(3, QStringLiteral("s"));
    EXPECT_EQ(form.text.Text(), "b\u00e4rs");
    field->editableTextInterface()->deleteText(0, 2);
    EXPECT_EQ(form.text.Text(), "rs");
    field->textInterface()->setSelection(0, 0, 1);
    EXPECT_EQ(form.text.SelLength(), 1);
    EXPECT_EQ(field->textInterface()->text(0, 99), "rs");
}

TEST_F(AccessibleTest, FocusCanBeMoved) {
    Show();
    form.text.onGotFocus = form.Note("text");
    Do(Of("Text"), QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(form.log, std::vector<std::string>{"text"});
    EXPECT_TRUE(Find("Text")->hasFocus());
    EXPECT_TRUE(Of("Text")->state().focused);
    EXPECT_EQ(Window()->focusChild(), Of("Text"));
    EXPECT_FALSE(Of("Label")->state().focusable);
}

TEST_F(AccessibleTest, DropDownHasItsRowsAndItsText) {
    form.choice.SetVisible(true);
    form.choice.AddItem("One");
    form.choice.AddItem("Two");
    form.choice.SetToolTipText("Select emulator");
    form.choice.onClick = form.Note("click");
    Show();
    QAccessibleInterface* choice = Of("Choice");
    EXPECT_EQ(choice->role(), QAccessible::ComboBox);
    EXPECT_EQ(Name(choice), "Select emulator");
    EXPECT_EQ(Children(choice), (std::vector<std::string>{"One", "Two"}));
    Press(choice->child(1));
    EXPECT_EQ(form.choice.ListIndex(), 1);
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
    EXPECT_EQ(choice->text(QAccessible::Value), "Two");
}

TEST_F(AccessibleTest, SliderHasItsNumber) {
    Show();
    QAccessibleValueInterface* value = Of("Slider")->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->maximumValue(), 10);
    form.slider.onChange = form.Note("change");
    value->setCurrentValue(7);
    EXPECT_EQ(form.slider.Value(), 7);
    EXPECT_EQ(form.log, std::vector<std::string>{"change"});
    value->setCurrentValue(70);
    EXPECT_EQ(value->currentValue(), 7);
}

}  // namespace
}  // namespace kivu::tests
