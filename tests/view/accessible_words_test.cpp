// What is told of things that show their meaning to the eye alone.

#include "view/accessible_form.h"

namespace kivu::tests {
namespace {

QString Described(const QAccessibleInterface* of) {
    return of->text(QAccessible::Description);
}

// Two pictures that take turns, as a pin's do.
class Switch : public AccessibleTest {
 protected:
    Switch() {
        int n = 0;
        for (forms::Image* picture : {&on, &off}) {
            picture->Move(0, 0, 300, 300);
            picture->SetToolTipText("Always on top");
            picture->onClick = [this, turned = n++ == 0 ? 0 : 1] { Turn(turned != 0); };
        }
        form.frame.SetVisible(false);
        ground.Move(0, 0, 300, 300);
        Turn(false);
    }
    void Turn(bool value) {
        on.SetVisible(value);
        off.SetVisible(!value);
    }

    forms::Frame& ground = Add<forms::Frame>(form, "Ground");
    forms::Image &on = AddPicture("On"), &off = AddPicture("Off");

 private:
    forms::Image& AddPicture(const char* name) {
        controls.push_back(std::make_unique<forms::Image>(&ground, name));
        return static_cast<forms::Image&>(*controls.back());
    }
};

TEST_F(Switch, TellsWhetherItIsOn) {
    Show();
    QAccessibleInterface* pin = Of("Ground");
    EXPECT_EQ(pin->role(), QAccessible::CheckBox);
    EXPECT_EQ(Name(pin), "Always on top");
    EXPECT_EQ(Described(pin), "");
    EXPECT_GE(Window()->indexOfChild(pin), 0);
    EXPECT_EQ(pin->childCount(), 0);
    EXPECT_TRUE(pin->state().checkable);
    EXPECT_FALSE(pin->state().checked);
    Do(pin, QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(on.Visible());
    EXPECT_TRUE(pin->state().checked);
    Do(pin, QAccessibleActionInterface::toggleAction());
    EXPECT_FALSE(on.Visible());
    EXPECT_FALSE(pin->state().checked);
}

TEST_F(Switch, TellsOfAChange) {
    if (ToldToNobody()) GTEST_SKIP() << "this screen has no assistive tools";
    Show();
    events.clear();
    Turn(true);
    EXPECT_EQ(events, std::vector<std::string>{"checked Always on top"});
    Turn(true);
    EXPECT_EQ(events.size(), 1U);
    Turn(false);
    EXPECT_EQ(events.size(), 2U);
}

// A session that has no such thing shows neither.
TEST_F(Switch, IsNothingWhereNoPictureShows) {
    on.SetVisible(false);
    off.SetVisible(false);
    Show();
    EXPECT_EQ(Window()->indexOfChild(Of("Ground")), -1);
}

TEST_F(AccessibleTest, ListWithoutRowsIsDescribedByTheWordsInTheirPlace) {
    form.list.SetHint("No games yet.\rPress \"Options\".");
    form.list.SetLeader(form.choice);
    form.choice.SetVisible(true);
    form.choice.SetToolTipText("Select emulator");
    Show();
    EXPECT_EQ(Described(Of("List")), "No games yet. Press \"Options\".");
    // Who stands on the drop-down moves the list's rows.
    EXPECT_EQ(Described(Of("Choice")), "No games yet. Press \"Options\".");
    form.list.SetToolTipText("Games");
    EXPECT_EQ(Described(Of("List")), "Games No games yet. Press \"Options\".");
    form.Fill(1);
    EXPECT_EQ(Described(Of("List")), "Games");
    EXPECT_EQ(Described(Of("Choice")), "");
}

TEST_F(AccessibleTest, NewWordsForNoRowsAreTold) {
    if (ToldToNobody()) GTEST_SKIP() << "this screen has no assistive tools";
    Show();
    events.clear();
    form.list.SetHint("Nothing found.");
    EXPECT_EQ(events, std::vector<std::string>{"description "});
}

TEST_F(AccessibleTest, FirstStepsAreToldWhereTheFocusIs) {
    form.label.SetCaption("Sample");
    form.label.SetHint("Press\r\"Go\".");
    form.button.SetToolTipText("Starts it");
    Show();
    EXPECT_EQ(Described(Of("Button")), "Starts it");
    form.button.SetFocus();
    EXPECT_EQ(Described(Of("Button")), "Starts it Press \"Go\".");
    EXPECT_EQ(Described(Of("Check(0)")), "");
    form.label.SetCaption("Another");
    EXPECT_EQ(Described(Of("Button")), "Starts it");
}

TEST_F(AccessibleTest, LabelThatExplainsItselfNamesNothingElse) {
    auto& label = Add<forms::Label>(form, "Of");
    auto& other = Add<forms::Label>(form, "Other label");
    label.SetCaption("Size:");
    label.Move(100, form.text.Top(), 100, form.text.Height());
    other.SetCaption("(800 x 600)");
    other.Move(200, form.text.Top(), 100, form.text.Height());
    Show();
    EXPECT_EQ(Name(Of("Text")), "(800 x 600)");
    other.SetToolTipText("Of the screen");
    EXPECT_EQ(Name(Of("Text")), "Size:");
}

TEST_F(AccessibleTest, LabelThatDoesNotTellWhatItsClickDoesIsText) {
    form.label.onClick = form.Note("label");
    Show();
    EXPECT_EQ(Of("Label")->role(), QAccessible::StaticText);
    EXPECT_TRUE(Of("Label")->actionInterface()->actionNames().isEmpty());
    form.label.SetToolTipText("Home page");
    EXPECT_EQ(Of("Label")->role(), QAccessible::Button);
    EXPECT_EQ(Name(Of("Label")), "Label");
    EXPECT_EQ(Described(Of("Label")), "Home page");
}

TEST_F(AccessibleTest, PictureWithoutANameIsNothing) {
    auto& picture = Add<forms::Image>(form, "Picture");
    picture.Move(0, 0, 300, 300);
    picture.onClick = form.Note("picture");
    Show();
    EXPECT_EQ(Window()->indexOfChild(Of("Picture")), -1);
    picture.SetPicture(
        {"Bee.png", std::make_shared<const forms::Bitmap>(forms::Bitmap{1, 1, {0}, true})});
    EXPECT_EQ(Name(Of("Picture")), "Bee");
    EXPECT_GE(Window()->indexOfChild(Of("Picture")), 0);
    // Where a click anywhere does the same, it is an ornament.
    form.onClick = form.Note("window");
    EXPECT_EQ(Window()->indexOfChild(Of("Picture")), -1);
    form.onMouseDown = [](const forms::Mouse&) {};
    EXPECT_GE(Window()->indexOfChild(Of("Picture")), 0);
}

}  // namespace
}  // namespace kivu::tests
