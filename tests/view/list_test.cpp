#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

using ListTest = ShownForm;
using testing::Test;

QString RowText(QAbstractItemView* list, int row) {
    return list->model()->index(row, 0).data().toString();
}

TEST_F(ListTest, ShowsTheControlsRows) {
    form.Fill(3);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    ASSERT_EQ(list->model()->rowCount(), 3);
    EXPECT_EQ(RowText(list, 2), "Row 2");
}

TEST_F(ListTest, ReadsRowsFromTheControlAndHoldsNoCopy) {
    form.Fill(3);
    Show();
    form.list.SetList(1, "changed");
    // Nothing has run since: the text can only come from the control itself.
    EXPECT_EQ(RowText(Find<QAbstractItemView>("List"), 1), "changed");
}

TEST_F(ListTest, ReadsARowThatHasGoneAsEmpty) {
    form.Fill(3);
    Show();
    form.list.Clear();
    EXPECT_EQ(RowText(Find<QAbstractItemView>("List"), 1), "");
}

TEST_F(ListTest, TakesThirtyTwoThousandRowsInOneStep) {
    Show();
    QSignalSpy inserted(Find<QAbstractItemView>("List")->model(),
                        &QAbstractItemModel::rowsInserted);
    form.Fill(31999);
    Settle();
    EXPECT_EQ(inserted.count(), 1);
    EXPECT_EQ(Find<QAbstractItemView>("List")->model()->rowCount(), 31999);
}

TEST_F(ListTest, LeavesAHiddenListAloneUntilItIsShown) {
    form.list.SetVisible(false);
    Show();
    form.Fill(5);
    Settle();
    auto* list = Find<QAbstractItemView>("List");
    EXPECT_EQ(list->model()->rowCount(), 0);
    form.list.SetVisible(true);
    EXPECT_EQ(list->model()->rowCount(), 5);
}

TEST_F(ListTest, ShowsStrayBytesAsWindows1252) {
    form.list.AddItem("Gr\xf6\xdf\x65 \x80 caf\xc3\xa9");
    Show();
    EXPECT_EQ(RowText(Find<QAbstractItemView>("List"), 0), QString::fromUtf8("Größe € café"));
}

TEST_F(ListTest, TellsTheWholeTextOfARowThatIsCut) {
    form.list.AddItem("short");
    form.list.AddItem("long <b> " + std::string(500, 'x'));
    form.list.AddItem("Tom & " + std::string(500, 'x'));
    form.list.AddItem("padded" + std::string(500, ' '));
    Show();
    auto* list = Find<QAbstractItemView>("List");
    const auto pointAt = [&](int row) {
        const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
        QHelpEvent event(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(list->viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(pointAt(0), "");
    EXPECT_EQ(pointAt(3), "");
    EXPECT_TRUE(pointAt(1).startsWith("<qt>long &lt;b&gt; xxx"));
    EXPECT_TRUE(pointAt(2).startsWith("Tom & xxx"));
    QToolTip::hideText();
}

TEST_F(ListTest, ClicksTheRowUnderTheMouse) {
    form.Fill(5);
    form.list.onClick = form.Note("click");
    Show();
    Click(RowPoint("List", 2));
    EXPECT_EQ(form.list.ListIndex(), 2);
    EXPECT_TRUE(form.list.HasFocus());
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(ListTest, RunsTheClickAgainOnTheSelectedRow) {
    form.Fill(5);
    Show();
    Click(RowPoint("List", 2));
    form.list.onClick = form.Note("click");
    Click(RowPoint("List", 2));
    EXPECT_EQ(form.log.size(), 1U);
}

TEST_F(ListTest, ClicksNothingBelowTheLastRow) {
    form.Fill(2);
    form.list.onClick = form.Note("click");
    Show();
    QWidget* list = Find("List");
    Click(list->mapTo(&view.Window(), QPoint(20, list->height() - 20)));
    EXPECT_TRUE(form.list.HasFocus());
    EXPECT_TRUE(form.log.empty());
}

TEST_F(ListTest, TellsADoubleClickBehindItsClick) {
    form.Fill(5);
    form.list.onGotFocus = form.Note("focus");
    form.list.onMouseDown = [this](const forms::Mouse&) { form.log.push_back("down"); };
    form.list.onClick = form.Note("click");
    form.list.onDblClick = form.Note("double");
    Show();
    DoubleClick(RowPoint("List", 1));
    const std::vector<std::string> order{"focus", "down", "click", "double"};
    EXPECT_EQ(form.log, order);
}

TEST_F(ListTest, TakesTwoQuickClicksOnTwoControlsForTwoClicks) {
    form.Fill(5);
    form.list.onClick = [this] {
        form.list.SetVisible(false);
        form.other.Move(form.list.Left(), form.list.Top(), 4500, 4500);
    };
    form.other.AddItem("a");
    form.other.onClick = form.Note("click");
    form.other.onDblClick = form.Note("double");
    Show();
    const QPoint at = RowPoint("List", 0);
    // The second comes at once and at the same place, where now another list is.
    DoubleClick(at);
    EXPECT_EQ(form.log, std::vector<std::string>{"click"});
}

TEST_F(ListTest, SelectsTheRowBeforeARightButtonGoesDown) {
    form.Fill(5);
    int rowAtDown = -2;
    int button = 0;
    form.list.onMouseDown = [&](const forms::Mouse& mouse) {
        rowAtDown = form.list.ListIndex();
        button = mouse.button;
    };
    Show();
    Click(RowPoint("List", 3), Qt::RightButton);
    EXPECT_EQ(rowAtDown, 3);
    EXPECT_EQ(button, forms::buttons::right);
}

TEST_F(ListTest, ChoosesSeveralRowsByCtrlAndShift) {
    form.Fill(9);
    form.list.SetMultiSelect(true);
    Show();
    Click(RowPoint("List", 1));
    QTest::mouseClick(Native(), Qt::LeftButton, Qt::ControlModifier, RowPoint("List", 3));
    EXPECT_EQ(form.list.SelectedRows(), (std::vector<int>{1, 3}));
    QTest::mouseClick(Native(), Qt::LeftButton, Qt::ShiftModifier, RowPoint("List", 5));
    EXPECT_EQ(form.list.SelectedRows(), (std::vector<int>{3, 4, 5}));
}

TEST_F(ListTest, MovesTheSelectionByKeysAndPages) {
    form.Fill(200);
    form.list.onClick = form.Note("click");
    form.list.SetFocus();
    Show();
    Key(Qt::Key_Down);
    EXPECT_EQ(form.list.ListIndex(), 0);
    Key(Qt::Key_PageDown);
    auto* list = Find<QAbstractItemView>("List");
    const int rowHeight = list->visualRect(list->model()->index(0, 0)).height();
    const int page = list->viewport()->height() / rowHeight;
    EXPECT_EQ(form.list.ListIndex(), page - 1);
    Key(Qt::Key_End);
    EXPECT_EQ(form.list.ListIndex(), 199);
    EXPECT_EQ(form.log.size(), 3U);
}

TEST_F(ListTest, BringsTheSelectedRowIntoSight) {
    form.Fill(1000);
    Show();
    form.list.SetListIndex(700);
    Settle();
    auto* list = Find<QAbstractItemView>("List");
    const QRect row = list->visualRect(list->model()->index(700, 0));
    EXPECT_TRUE(list->viewport()->rect().contains(row));
}

TEST_F(ListTest, StartsAtTheTopAfterAnEmptyMoment) {
    form.Fill(1000);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum());
    form.list.Clear();
    form.Fill(1000);
    Settle();
    EXPECT_EQ(list->verticalScrollBar()->value(), 0);
}

TEST_F(ListTest, KeepsItsPlaceWhenOneRowChanges) {
    form.Fill(1000);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    const int place = 20 * list->verticalScrollBar()->singleStep();
    list->verticalScrollBar()->setValue(place);
    form.list.SetList(3, "x");
    Settle();
    EXPECT_EQ(list->verticalScrollBar()->value(), place);
}

TEST_F(ListTest, SurvivesAHandlerThatClearsTheListUnderTheClick) {
    form.Fill(5);
    form.list.onMouseDown = [this](const forms::Mouse&) { form.list.Clear(); };
    form.list.onClick = form.Note("click");
    Show();
    Click(RowPoint("List", 3));
    Settle();
    EXPECT_TRUE(form.log.empty());
    EXPECT_EQ(Find<QAbstractItemView>("List")->model()->rowCount(), 0);
}

TEST_F(ListTest, SurvivesAClickHandlerThatHidesItsList) {
    form.Fill(5);
    form.list.onClick = [this] { form.list.SetVisible(false); };
    Show();
    Click(RowPoint("List", 3));
    Settle();
    EXPECT_FALSE(Find("List")->isVisible());
    EXPECT_EQ(form.Focus(), nullptr);
}

TEST_F(ListTest, SurvivesAHandlerThatRunsEventsInside) {
    form.Fill(5);
    form.list.onClick = [this] {
        form.list.Clear();
        QCoreApplication::processEvents();
        form.Fill(2);
        QCoreApplication::processEvents();
    };
    Show();
    Click(RowPoint("List", 4));
    EXPECT_EQ(Find<QAbstractItemView>("List")->model()->rowCount(), 2);
}

TEST_F(ListTest, TurnsByTheWheelWithoutTouchingTheSelection) {
    form.Fill(1000);
    form.list.onClick = form.Note("click");
    Show();
    auto* list = Find<QAbstractItemView>("List");
    Wheel(list->viewport(), -240);
    EXPECT_GT(list->verticalScrollBar()->value(), 0);
    EXPECT_TRUE(form.log.empty());
}

}  // namespace
}  // namespace kivu::tests
