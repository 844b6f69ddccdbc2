#include "view/shown_form.h"

namespace kivu::tests {
namespace {

class ComboTest : public ShownForm {
 protected:
    void SetUp() override {
        // A release this soon after the opening would be taken for the end of the opening click.
        QApplication::setDoubleClickInterval(0);
        for (const char* row : {"Amiga", "Atari", "C64"}) {
            form.combo.AddItem(row);
        }
    }
    void TearDown() override { QApplication::setDoubleClickInterval(interval); }
    const int interval = QApplication::doubleClickInterval();
    QComboBox* Combo() { return Find<QComboBox>("Combo"); }

    // Opens the popup and chooses a row by the mouse.
    void Choose(int row) {
        Combo()->showPopup();
        QAbstractItemView* popup = Combo()->view();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(popup->window()));
        const QPoint at = popup->visualRect(popup->model()->index(row, 0)).center();
        QTest::mouseMove(popup->viewport(), at);
        QTest::mouseClick(popup->viewport(), Qt::LeftButton, {}, at);
        Settle();
    }
};

TEST_F(ComboTest, ClicksTheRowChosenInThePopup) {
    form.combo.onClick = form.Note("click");
    form.combo.onChange = form.Note("change");
    Show();
    Choose(1);
    EXPECT_EQ(form.combo.ListIndex(), 1);
    EXPECT_EQ(form.combo.Text(), "Atari");
    EXPECT_EQ(Combo()->currentText(), "Atari");
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(ComboTest, ClicksTheSelectedRowAgain) {
    form.combo.SetListIndex(1);
    form.combo.onClick = form.Note("click");
    Show();
    Choose(1);
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(ComboTest, ShowsATextThatIsNoRow) {
    form.combo.SetListIndex(1);
    form.combo.SetText("Select Emulator:");
    Show();
    EXPECT_EQ(Combo()->currentText(), "Select Emulator:");
    form.combo.AddItem("ZX");
    Settle();
    EXPECT_EQ(Combo()->currentText(), "Select Emulator:");
    EXPECT_EQ(form.combo.ListIndex(), 1);
}

TEST_F(ComboTest, ChoosesNothingWhenItsTextIsARowAndTheFocusLeaves) {
    form.combo.onClick = form.Note("click");
    form.combo.SetText("C64");
    form.combo.SetFocus();
    Show();
    form.list.SetFocus();
    Settle();
    EXPECT_TRUE(form.log.empty());
    EXPECT_EQ(form.combo.ListIndex(), -1);
}

TEST_F(ComboTest, ChoosesAndInsertsNothingByEnter) {
    form.combo.onClick = form.Note("click");
    form.combo.SetFocus();
    Show();
    for (const char key : {'C', '6', '4'}) {
        QTest::keyClick(Native(), key);
    }
    EXPECT_EQ(form.combo.Text(), "C64");
    Key(Qt::Key_Return);
    EXPECT_TRUE(form.log.empty());
    EXPECT_EQ(Combo()->count(), 3);
    EXPECT_EQ(form.combo.ListCount(), 3);
}

TEST_F(ComboTest, CompletesNothing) {
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_A);
    EXPECT_EQ(form.combo.Text(), "a");
    EXPECT_EQ(Combo()->currentText(), "a");
    EXPECT_FALSE(Combo()->completer());
}

TEST_F(ComboTest, TellsTypingAsAChange) {
    form.combo.onChange = form.Note("change");
    form.combo.onClick = form.Note("click");
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_X);
    EXPECT_EQ(form.log, std::vector<std::string>{"change"});
}

TEST_F(ComboTest, MovesByTheArrowKeys) {
    form.combo.onClick = form.Note("click");
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_Down);
    Key(Qt::Key_Down);
    EXPECT_EQ(form.combo.ListIndex(), 1);
    Settle();
    EXPECT_EQ(Combo()->currentText(), "Atari");
    EXPECT_EQ(form.log.size(), 2U);
}

TEST_F(ComboTest, OpensByF4) {
    form.combo.SetFocus();
    Show();
    Key(Qt::Key_F4);
    EXPECT_TRUE(Combo()->view()->isVisible());
    Combo()->hidePopup();
    EXPECT_EQ(form.combo.ListIndex(), -1);
}

TEST_F(ComboTest, StaysAsItIsUnderTheWheel) {
    form.combo.SetListIndex(1);
    form.combo.SetFocus();
    form.combo.onClick = form.Note("click");
    Show();
    Wheel(Combo(), -120);
    EXPECT_EQ(form.combo.ListIndex(), 1);
    EXPECT_TRUE(form.log.empty());
}

TEST_F(ComboTest, ShowsTheModelsSelectionOfItsText) {
    form.combo.SetListIndex(0);
    form.combo.SetFocus();
    Show();
    form.combo.SetSelection(1, 2);
    EXPECT_EQ(Combo()->lineEdit()->selectedText(), "mi");
    form.combo.SetSelection(0, 0);
    EXPECT_EQ(Combo()->lineEdit()->selectedText(), "");
}

TEST_F(ComboTest, SurvivesAClickThatClearsAndRefillsIt) {
    form.combo.onClick = [this] {
        form.combo.Clear();
        form.combo.AddItem("new");
        form.combo.SetText("prompt");
    };
    Show();
    Choose(2);
    EXPECT_EQ(Combo()->count(), 1);
    EXPECT_EQ(Combo()->currentText(), "prompt");
}

}  // namespace
}  // namespace kivu::tests
