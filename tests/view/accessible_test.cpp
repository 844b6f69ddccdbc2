#include <QAccessible>
#include <memory>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

// What the toolkit has told of, as "event name".
std::vector<std::string>* told = nullptr;
void Note(QAccessibleEvent* event) {
    if (!told) return;
    const QAccessibleInterface* of = event->accessibleInterface();
    const std::string name = of ? of->text(QAccessible::Name).toStdString() : "";
    if (event->type() == QAccessible::Focus) told->push_back("focus " + name);
    if (event->type() == QAccessible::NameChanged) told->push_back("name " + name);
}

// Controls that join the form late outlive its view.
struct Late {
    template <typename Kind>
    Kind& Add(forms::Form& form, const char* name) {
        controls.push_back(std::make_unique<Kind>(&form, name));
        return static_cast<Kind&>(*controls.back());
    }
    std::vector<std::unique_ptr<forms::Control>> controls;
};

class AccessibleTest : protected Late, public ShownForm {
 protected:
    AccessibleTest() {
        QAccessible::setActive(true);
        handler = QAccessible::installUpdateHandler(Note);
        told = &events;
    }
    ~AccessibleTest() override {
        told = nullptr;
        QAccessible::installUpdateHandler(handler);
    }

    QAccessibleInterface* Of(const char* name) {
        return QAccessible::queryAccessibleInterface(Find(name));
    }
    QAccessibleInterface* Window() { return QAccessible::queryAccessibleInterface(&view.Window()); }
    static std::string Name(const QAccessibleInterface* of) {
        return of ? of->text(QAccessible::Name).toStdString() : "(nobody)";
    }
    static std::vector<std::string> Children(const QAccessibleInterface* of) {
        std::vector<std::string> names;
        for (int i = 0; i < of->childCount(); ++i) {
            const QAccessibleInterface* child = of->child(i);
            EXPECT_EQ(child->parent(), of) << Name(child);
            EXPECT_EQ(of->indexOfChild(child), i) << Name(child);
            names.push_back(Name(child));
        }
        return names;
    }
    void Do(QAccessibleInterface* of, const QString& action) {
        ASSERT_TRUE(of && of->actionInterface());
        of->actionInterface()->doAction(action);
        Settle();
    }
    void Press(QAccessibleInterface* of) { Do(of, QAccessibleActionInterface::pressAction()); }

    // Two tabs over the list; the second one is in front.
    void AddTabs() {
        int left = 300;
        for (const char* name : {"First", "Second"}) {
            auto& tab = Add<forms::Label>(form, name);
            tab.SetAutoSize(true);
            tab.Move(left, 0, 900, 270);
            tab.SetBackColor(form.BackColor());
            tab.onClick = form.Note(name);
            tabs.push_back(&tab);
            left += 1200;
        }
        tabs[0]->SetCaption(" Favourites (2) ");
        tabs[1]->SetCaption(" All ");
        tabs[1]->SetOpaque(true);
    }

    std::vector<forms::Label*> tabs;
    std::vector<std::string> events;
    QAccessible::UpdateHandler handler = nullptr;
};

TEST_F(AccessibleTest, ControlsNamesAreNotSaid) {
    Show();
    for (QWidget* widget : view.Window().findChildren<QWidget*>())
        EXPECT_TRUE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
}

TEST_F(AccessibleTest, WindowIsOneWithItsTitle) {
    Show();
    EXPECT_EQ(Window()->role(), QAccessible::Window);
    EXPECT_EQ(Name(Window()), "Sample");
    EXPECT_TRUE(Window()->state().active);
    form.SetCaption("Another");
    EXPECT_EQ(Name(Window()), "Another");
}

TEST_F(AccessibleTest, WindowHoldsWhatIsSeenAndNothingElse) {
    form.combo.SetVisible(false);
    form.list.SetToolTipText("Games");
    form.frame.SetCaption("Group");
    form.options[0].SetCaption("&One");
    form.options[1].SetCaption("Two");
    Show();
    // No grips of the edges, no scroll bars, no timer.
    EXPECT_EQ(Children(Window()),
              (std::vector<std::string>{"Games", "", "", "Label", "Go", "Check", "", "Group"}));
    EXPECT_EQ(Children(Of("Frame")), (std::vector<std::string>{"", "One", "Two"}));
    EXPECT_EQ(Of("Frame")->role(), QAccessible::Grouping);
    EXPECT_EQ(Of("Option(0)")->text(QAccessible::Accelerator), "Alt+O");
}

TEST_F(AccessibleTest, GroundWithoutWordsGivesItsControlsToWhatLiesAroundIt) {
    Show();
    const std::vector<std::string> before = Children(Window());
    form.options[0].SetCaption("One");
    EXPECT_EQ(Of("Option(0)")->parent(), Window());
    form.frame.SetVisible(false);
    EXPECT_LT(Children(Window()).size(), before.size());
}

TEST_F(AccessibleTest, TabsAreInAListOfThem) {
    AddTabs();
    Show();
    const QAccessibleInterface* list = Of("First")->parent();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::PageTabList);
    EXPECT_EQ(Children(list), (std::vector<std::string>{"Favourites (2)", "All"}));
    EXPECT_EQ(list->parent(), Window());
    EXPECT_GE(Window()->indexOfChild(list), 0);
    EXPECT_EQ(Of("First")->role(), QAccessible::PageTab);
    EXPECT_FALSE(Of("First")->state().selected);
    EXPECT_TRUE(Of("Second")->state().selected);
    Press(Of("First"));
    EXPECT_EQ(form.log, std::vector<std::string>{"First"});
}

TEST_F(AccessibleTest, ListIsNamedByItsTab) {
    AddTabs();
    Show();
    EXPECT_EQ(Name(Of("List")), "All");
    tabs[1]->SetOpaque(false);
    tabs[0]->SetOpaque(true);
    EXPECT_EQ(Name(Of("List")), "Favourites (2)");
    EXPECT_TRUE(Of("First")->state().selected);
    // Cut where there is no room.
    tabs[0]->SetAutoSize(false);
    tabs[0]->SetShownText("Favourites");
    tabs[0]->SetToolTipText("Favourites (2)");
    EXPECT_EQ(Of("First")->role(), QAccessible::PageTab);
    EXPECT_EQ(Name(Of("List")), "Favourites (2)");
}

TEST_F(AccessibleTest, LabelBesideAFieldNamesIt) {
    auto& label = Add<forms::Label>(form, "Of");
    label.SetCaption("Directory:");
    label.Move(form.text.Left() - 200, form.text.Top(), 150, form.text.Height());
    form.text.SetToolTipText("Where the games lie");
    Show();
    EXPECT_EQ(Name(Of("Text")), "Directory:");
    EXPECT_EQ(Of("Text")->text(QAccessible::Description), "Where the games lie");
    label.SetVisible(false);
    EXPECT_EQ(Name(Of("Text")), "Where the games lie");
    EXPECT_EQ(Of("Text")->text(QAccessible::Description), "");
}

TEST_F(AccessibleTest, MarkedLetterNamesTheControlBehindIt) {
    SampleForm other;
    forms::Label label(&other, "Of");
    forms::TextBox field(&other, "Field");
    label.SetMarksLetter(true);
    label.SetCaption("&Parameters");
    field.Move(0, 0, 900, 300);
    view::FormView shown(other);
    shown.Show();
    auto* widget = shown.Window().findChild<QWidget*>(QStringLiteral("Field"));
    EXPECT_EQ(Name(QAccessible::queryAccessibleInterface(widget)), "Parameters");
}

TEST_F(AccessibleTest, RowsAreMadeWhenTheyAreAskedFor) {
    form.Fill(30000);
    Show();
    QAccessibleInterface* list = Of("List");
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->childCount(), 30000);
    QAccessibleInterface* row = list->child(29999);
    EXPECT_EQ(row->role(), QAccessible::ListItem);
    EXPECT_EQ(Name(row), "Row 29999");
    EXPECT_TRUE(row->state().offscreen);
    EXPECT_FALSE(list->child(0)->state().offscreen);
    EXPECT_EQ(list->child(29999), row);
    EXPECT_EQ(list->indexOfChild(row), 29999);
    EXPECT_EQ(list->child(30000), nullptr);
    form.list.Clear();
    EXPECT_FALSE(row->isValid());
    EXPECT_TRUE(row->state().invalid);
    EXPECT_EQ(Name(row), "");
    Press(row);
    EXPECT_EQ(list->childCount(), 0);
}

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

TEST_F(AccessibleTest, RowOfAListThatCannotBeReachedIsNotClicked) {
    form.Fill(5);
    Show();
    form.list.SetEnabled(false);
    Press(Of("List")->child(2));
    EXPECT_EQ(form.list.ListIndex(), -1);
    EXPECT_TRUE(Of("List")->child(2)->state().disabled);
}

TEST_F(AccessibleTest, TellsTheRowThatTheFocusIsOn) {
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

TEST_F(AccessibleTest, TellsNewWords) {
    Show();
    events.clear();
    form.label.SetCaption("Loading...");
    EXPECT_EQ(events, std::vector<std::string>{"name Loading..."});
    EXPECT_EQ(Of("Label")->role(), QAccessible::StaticText);
    events.clear();
    form.check.SetCaption("Df0:");
    form.check.SetToolTipText("Bee.adf");
    EXPECT_EQ(events.back(), "name Df0: Bee.adf");
}

TEST_F(AccessibleTest, DriveIsNamedWithItsFile) {
    form.check.SetCaption("Df0:");
    form.check.SetToolTipText("Bee (1991)(Maker)(Disk 1 of 2).adf");
    Show();
    EXPECT_EQ(Name(Of("Check(0)")), "Df0: Bee (1991)(Maker)(Disk 1 of 2).adf");
    EXPECT_EQ(Of("Check(0)")->role(), QAccessible::CheckBox);
    EXPECT_EQ(Of("Check(0)")->text(QAccessible::Description), "");
    EXPECT_FALSE(Of("Check(0)")->state().checked);
    form.check.onClick = form.Note("click");
    Do(Of("Check(0)"), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(form.check.Value(), 1);
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
    EXPECT_TRUE(Of("Check(0)")->state().checked);
    form.check.SetValue(2);
    EXPECT_TRUE(Of("Check(0)")->state().checkStateMixed);
    form.check.SetToolTipText("");
    EXPECT_EQ(Name(Of("Check(0)")), "Df0:");
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

TEST_F(AccessibleTest, PlaceFindsTheControl) {
    form.Fill(5);
    Show();
    const QPoint at = Of("List")->child(1)->rect().center();
    QAccessibleInterface* list = Window()->childAt(at.x(), at.y());
    EXPECT_EQ(list, Of("List"));
    EXPECT_EQ(list->childAt(at.x(), at.y()), list->child(1));
}

// Tools that run already ask of widgets that no control is known for yet.
TEST_F(AccessibleTest, WindowMadeWhileToolsListenIsTheControls) {
    SampleForm other;
    view::FormView shown(other);
    shown.Show();
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&shown.Window())->role(), QAccessible::Window);
    auto* list = shown.Window().findChild<QWidget*>(QStringLiteral("List"));
    other.Fill(3);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(list)->childCount(), 3);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(list)->tableInterface(), nullptr);
}

// A tool keeps what it has been given.
TEST_F(AccessibleTest, WindowThatHasGoneAnswersNothing) {
    auto other = std::make_unique<SampleForm>();
    other->Fill(3);
    auto shown = std::make_unique<view::FormView>(*other);
    shown->Show();
    auto* widget = shown->Window().findChild<QWidget*>(QStringLiteral("List"));
    const QAccessible::Id list =
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(widget));
    const QAccessible::Id row =
        QAccessible::uniqueId(QAccessible::accessibleInterface(list)->child(0));
    shown.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(list), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(row), nullptr);
}

}  // namespace
}  // namespace kivu::tests
