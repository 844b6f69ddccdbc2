#include "view/list_view.h"

#include <QApplication>
#include <QHoverEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

#include "view/colors.h"
#include "view/fonts.h"
#include "view/row_delegate.h"
#include "view/text_block.h"

namespace kivu::view {

ListView::ListView(QWidget* parent) : QListView(parent) {
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setDragDropMode(QAbstractItemView::NoDragDrop);
    setContextMenuPolicy(Qt::NoContextMenu);
    viewport()->setFocusPolicy(Qt::NoFocus);
    viewport()->setAttribute(Qt::WA_Hover);
    // The frame behind it has round corners that the bar must not square.
    verticalScrollBar()->setAttribute(Qt::WA_OpaquePaintEvent, false);
    QObject::connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] {
        QScrollBar* bar = verticalScrollBar();
        bar->setSliderPosition(Snapped(bar->sliderPosition()));
    });
}

int ListView::Step() const {
    return std::max(1, RowHeight(fontMetrics()));
}

int ListView::Snapped(int value) const {
    return (value + Step() / 2) / Step() * Step();
}

void ListView::SetHint(const QString& words) {
    if (hint == words) return;
    hint = words;
    viewport()->update();
}

void ListView::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (hint.isEmpty() || (model() && model()->rowCount() > 0)) return;
    QPainter painter(viewport());
    painter.setFont(HintFont(font()));
    const QColor base = palette().color(QPalette::Base);
    painter.setPen(
        MixFor(textContrast, base, Readable(palette().color(QPalette::Text), base), 0.72));
    constexpr int air = 24;
    const QRect place = viewport()->rect().adjusted(air, air, -air, -air);
    if (place.isEmpty()) return;
    // A long path has no blank to break at.
    painter.drawText(place, int(Qt::AlignHCenter | Qt::AlignTop),
                     BreakText(hint, HintFont(font()), place.width(), place.height()).join(u'\n'));
}

void ListView::updateGeometries() {
    QScrollBar* bar = verticalScrollBar();
    // The toolkit's own range ends within a row, and takes a list back that shows its last one.
    const int before = bar->value();
    QListView::updateGeometries();
    // A page is of whole rows; the last one begins with a whole row too, and ends with some air.
    bar->setSingleStep(Step());
    bar->setPageStep(std::max(1, viewport()->height() / Step()) * Step());
    bar->setMaximum((bar->maximum() + Step() - 1) / Step() * Step());
    if (!bar->isSliderDown()) bar->setValue(Snapped(before));
}

void ListView::scrollTo(const QModelIndex& index, ScrollHint hint) {
    const QRect row = visualRect(index);
    const int room = viewport()->height();
    if (hint != EnsureVisible || !row.isValid() || (row.top() >= 0 && row.bottom() < room)) return;
    QScrollBar* bar = verticalScrollBar();
    const int top = bar->value() + row.top();
    const int whole = std::max(1, room / Step()) * Step();
    bar->setValue(row.top() < 0 ? top : top + Step() - whole);
}

// A touch pad tells of a few pixels at a time, of which each alone would come to rest where it was.
void ListView::wheelEvent(QWheelEvent* event) {
    constexpr int notch = 120;
    const int delta = event->angleDelta().y();
    if (event->modifiers() != Qt::NoModifier || delta == 0) {
        QListView::wheelEvent(event);
        return;
    }
    if ((delta < 0) != (turned < 0)) turned = 0;
    turned += delta * std::max(1, QApplication::wheelScrollLines());
    const int rows = turned / notch;
    turned -= rows * notch;
    verticalScrollBar()->setValue(verticalScrollBar()->value() - rows * Step());
    event->accept();
}

void ListView::ForgetMouse() {
    mouseRests = true;
    restingAt = QCursor::pos();
    QHoverEvent leave(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF(-1, -1));
    QListView::viewportEvent(&leave);
}

bool ListView::viewportEvent(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverEnter:
        case QEvent::HoverMove: {
            // The toolkit tells of rows that move under the mouse too.
            const QPointF at = static_cast<QHoverEvent*>(event)->globalPosition();
            if (mouseRests && (at - restingAt).manhattanLength() < 1) return true;
            mouseRests = false;
            break;
        }
        default:
            break;
    }
    return QListView::viewportEvent(event);
}

// A slim margin keeps the rows off the rounded line.
void ListView::resizeEvent(QResizeEvent* event) {
    setViewportMargins(1, 2, 1, 2);
    QListView::resizeEvent(event);
}

// The rows' pills tell of the focus.
void ListView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    viewport()->update();
}

void ListView::focusOutEvent(QFocusEvent* event) {
    QListView::focusOutEvent(event);
    viewport()->update();
}

}  // namespace kivu::view
