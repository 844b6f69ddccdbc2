#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include "view/shown_form.h"

namespace kivu::tests {
namespace {

// What a list shows at each moment, and where it stands.
using ListLook = ShownForm;

TEST_F(ListLook, AlwaysBeginsWithAWholeRow) {
    form.Fill(200);
    form.list.SetFocus();
    Show();
    auto* list = Find<QAbstractItemView>("List");
    QScrollBar* bar = list->verticalScrollBar();
    const int row = bar->singleStep();
    // 15 twips are a pixel.
    if (list->viewport()->height() % row == 0) form.list.SetHeight(form.list.Height() + 5 * 15);
    Settle();
    ASSERT_NE(list->viewport()->height() % row, 0);
    Key(Qt::Key_PageDown);
    for (int i = 0; i < 5; ++i) {
        Key(Qt::Key_Down);
        Settle();
        EXPECT_EQ(bar->value() % row, 0);
        const QRect place = list->visualRect(list->currentIndex());
        EXPECT_TRUE(list->viewport()->rect().contains(place));
    }
    EXPECT_GT(bar->value(), 0);
    bar->setSliderPosition(row * 20 + 5);
    bar->triggerAction(QAbstractSlider::SliderMove);
    EXPECT_EQ(bar->value(), row * 20);
    Key(Qt::Key_End);
    Settle();
    EXPECT_EQ(bar->value() % row, 0);
    EXPECT_TRUE(list->viewport()->rect().contains(list->visualRect(list->currentIndex())));
    form.list.SetHeight(form.list.Height() + 100);
    Settle();
    EXPECT_EQ(bar->value() % row, 0);
}

TEST_F(ListLook, StaysAtItsEndWhateverItsHeight) {
    form.Fill(100);
    form.list.SetFocus();
    Show();
    auto* list = Find<QAbstractItemView>("List");
    QScrollBar* bar = list->verticalScrollBar();
    Key(Qt::Key_End);
    Settle();
    EXPECT_EQ(bar->value(), bar->maximum());
    for (int pixel = 0; pixel < bar->singleStep(); ++pixel) {
        form.list.SetHeight(form.list.Height() + 15);
        Settle();
        list->doItemsLayout();
        EXPECT_EQ(bar->value(), bar->maximum());
        const QRect last = list->visualRect(list->model()->index(99, 0));
        EXPECT_TRUE(list->viewport()->rect().contains(last));
    }
}

// A touch pad tells of a notch in many small pieces.
TEST_F(ListLook, ScrollsByTheSmallPiecesOfATouchPad) {
    form.Fill(200);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    QScrollBar* bar = list->verticalScrollBar();
    const QPointF at(list->viewport()->rect().center());
    const auto turn = [&](int delta, int times) {
        for (int i = 0; i < times; ++i) {
            QWheelEvent event(at, list->viewport()->mapToGlobal(at), QPoint(), QPoint(0, delta),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(list->viewport(), &event);
        }
    };
    turn(-8, 15);
    const int notch = QApplication::wheelScrollLines() * bar->singleStep();
    EXPECT_EQ(bar->value(), notch);
    turn(-120, 1);
    EXPECT_EQ(bar->value(), 2 * notch);
    turn(8, 15);
    EXPECT_EQ(bar->value(), notch);
}

TEST_F(ListLook, GoesWhereItsGrooveIsClicked) {
    form.Fill(31999);
    Show();
    QScrollBar* bar = Find<QAbstractItemView>("List")->verticalScrollBar();
    EXPECT_GE(bar->width(), 14);
    const QPoint half(bar->width() / 2, bar->height() / 2);
    Click(bar->mapTo(&view.Window(), half));
    EXPECT_NEAR(bar->value(), bar->maximum() / 2, bar->maximum() / 50);
    const int page = bar->value();
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_LE(bar->value() - page, Find<QAbstractItemView>("List")->viewport()->height() + 1);
    EXPECT_GT(bar->value(), page);
}

TEST_F(ListLook, LightsNoRowUnderAMouseThatRests) {
    form.Fill(20);
    form.list.SetFocus();
    Show();
    auto* list = Find<QAbstractItemView>("List");
    const auto lit = [&](int row) {
        const QImage rows = list->viewport()->grab().toImage();
        const QRect at = list->visualRect(list->model()->index(row, 0));
        const QRect free = list->visualRect(list->model()->index(9, 0));
        return rows.pixel(at.right() - 12, at.center().y()) !=
               rows.pixel(free.right() - 12, free.center().y());
    };
    const auto move = [&](int row, int by) {
        const QPoint at = RowPoint("List", row) + QPoint(by, 0);
        QCursor::setPos(view.Window().mapToGlobal(at));
        QTest::mouseMove(Native(), at);
        Settle();
    };
    move(5, 0);
    EXPECT_TRUE(lit(5));
    Key(Qt::Key_Down);
    Settle();
    EXPECT_TRUE(lit(0));
    EXPECT_FALSE(lit(5));
    // The toolkit makes moves of its own when something changes under the mouse.
    QTest::mouseMove(Native(), RowPoint("List", 5));
    Settle();
    EXPECT_FALSE(lit(5));
    move(5, 3);
    EXPECT_TRUE(lit(5));
}

TEST_F(ListLook, LooksFocusedWithTheControlThatMovesItsRow) {
    form.Fill(5);
    form.list.SetListIndex(2);
    form.list.SetLeader(form.combo);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    const auto pill = [&] {
        const QRect row = list->visualRect(list->model()->index(2, 0));
        return list->viewport()->grab().toImage().pixelColor(row.right() - 12, row.center().y());
    };
    form.text.SetFocus();
    const QColor quiet = pill();
    form.combo.SetFocus();
    EXPECT_NE(pill(), quiet);
    form.list.SetFocus();
    const QColor own = pill();
    form.combo.SetFocus();
    EXPECT_EQ(pill(), own);
}

// Counts the rows of each picture.
class CountingDelegate : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter*, const QStyleOptionViewItem&, const QModelIndex&) const override {
        ++painted;
    }
    mutable int painted = 0;
};

class Paints : public QObject {
 public:
    Paints(QAbstractItemView& list, CountingDelegate& delegate) : list(list), delegate(delegate) {
        list.viewport()->installEventFilter(this);
    }
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Paint || within) return false;
        const QScopedValueRollback<bool> once(within, true);
        delegate.painted = 0;
        QCoreApplication::sendEvent(object, event);
        rows.push_back(delegate.painted);
        return true;
    }
    QAbstractItemView& list;
    CountingDelegate& delegate;
    bool within = false;
    std::vector<int> rows;
};

TEST_F(ListLook, PaintsItsRowsInTheFirstPictureAfterAChange) {
    form.Fill(300);
    Show();
    auto* list = Find<QAbstractItemView>("List");
    CountingDelegate counting;
    list->setItemDelegate(&counting);
    Paints paints(*list, counting);
    for (int rows = 299; rows > 200; rows -= 7) {
        form.list.Clear();
        form.Fill(rows);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !paints.rows.empty(); }));
        Settle();
        for (const int painted : std::exchange(paints.rows, {}))
            EXPECT_GE(painted, 8);
    }
}

}  // namespace
}  // namespace kivu::tests
