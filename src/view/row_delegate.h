#pragma once

#include <QStyledItemDelegate>

#include "view/rows.h"

namespace kivu::view {

// Draws one row: all rows are of one height, and the control's selected row is marked whether its
// list has the focus or not.
class RowDelegate : public QStyledItemDelegate {
 public:
    // `followsCurrent`: in a popup the row under the mouse or the keys is the marked one.
    RowDelegate(const RowSource& source, bool followsCurrent, QObject* parent)
        : QStyledItemDelegate(parent), source(source), followsCurrent(followsCurrent) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // A row that is cut can be read whole by its tool tip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
    const RowSource& source;
    bool followsCurrent;
};

// Pixels of one row in a font.
int RowHeight(const QFontMetrics& metrics);

}  // namespace kivu::view
