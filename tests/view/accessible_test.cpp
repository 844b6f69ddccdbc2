#include "view/accessible_form.h"

namespace kivu::tests {
namespace {

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

TEST_F(AccessibleTest, TellsNewWords) {
    if (ToldToNobody()) GTEST_SKIP() << "this screen has no assistive tools";
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
