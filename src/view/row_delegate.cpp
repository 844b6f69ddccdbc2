#include "view/row_delegate.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "view/colors.h"
#include "view/mirror.h"
#include "view/style_parts.h"

namespace kivu::view {

int RowHeight(const QFontMetrics& metrics) {
    // Air in proportion, but no gulfs between rows of 40 points.
    return metrics.height() + qBound(8, metrics.height() / 2, 12);
}

namespace {

QRect LineOf(const QRect& row) {
    return row.adjusted(10, 0, -8, 0);
}

QString ShownText(const QModelIndex& index) {
    QString shown = index.data().toString();
    for (QChar& c : shown) {
        if (c.category() == QChar::Other_Control) c = u' ';
    }
    // Blanks that pad a row are nothing that could be cut.
    qsizetype end = shown.size();
    while (end > 0 && shown[end - 1].isSpace())
        --end;
    shown.truncate(end);
    return shown;
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {0, RowHeight(option.fontMetrics)};
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    const bool hover = option.state.testFlag(QStyle::State_MouseOver);
    const bool current = option.state.testFlag(QStyle::State_Selected);
    const bool marked = followsCurrent ? current : source.IsMarked(index.row());
    const bool active = followsCurrent || option.state.testFlag(QStyle::State_HasFocus) ||
                        (option.widget && option.widget->hasFocus()) ||
                        (source.IsLed() && option.widget && option.widget->isActiveWindow());
    const QColor base = option.palette.color(QPalette::Base);
    const QColor text = Readable(option.palette.color(QPalette::Text), base);
    QColor writing = text;
    const QColor mark = AccentOn(base);
    const QRectF pill = QRectF(option.rect).adjusted(3, 1, -3, -1);
    if (marked) {
        const QColor fill = active ? mark : Mix(base, text, 0.14);
        writing = Readable(active ? onAccent : text, fill);
        FillRounded(*painter, pill, cornerRadius, fill, mark, 1.5);
    } else if (hover) {
        const QColor fill = Mix(base, text, 0.09);
        writing = Readable(text, fill);
        FillRounded(*painter, pill, cornerRadius, fill);
    }
    const bool standsOut = source.ShowsCurrent() && source.Selected() == index.row();
    if (!followsCurrent && (standsOut || source.Meant() == index.row())) {
        FillRounded(*painter, pill.adjusted(2, 2, -2, -2), cornerRadius - 1, Qt::transparent,
                    marked ? writing : mark, 1.5);
    }
    painter->setPen(writing);
    painter->setFont(option.font);
    const QRect line = LineOf(option.rect);
    painter->drawText(
        line, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
        option.fontMetrics.elidedText(ShownText(index), Qt::ElideRight, line.width()));
}

bool RowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                            const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QString text = ShownText(index);
    const int width = LineOf(view->visualRect(index)).width();
    const bool cut = QFontMetrics(view->font()).horizontalAdvance(text) > width;
    if (event->type() != QEvent::ToolTip || !cut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), PlainToolTip(text.trimmed()), view);
    return true;
}

}  // namespace kivu::view
