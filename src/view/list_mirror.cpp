#include "view/list_mirror.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "view/colors.h"
#include "view/fonts.h"
#include "view/row_delegate.h"
#include "view/text.h"
#include "view/text_block.h"

namespace kivu::view {

namespace {

class ListView : public QListView {
 public:
    using QListView::QListView;

    void SetHint(const QString& words) {
        if (hint == words) return;
        hint = words;
        viewport()->update();
    }

 protected:
    void paintEvent(QPaintEvent* event) override {
        QListView::paintEvent(event);
        if (hint.isEmpty() || (model() && model()->rowCount() > 0)) return;
        QPainter painter(viewport());
        painter.setFont(HintFont(font()));
        const QColor base = palette().color(QPalette::Base);
        painter.setPen(Mix(base, Readable(palette().color(QPalette::Text), base), 0.72));
        constexpr int air = 24;
        painter.drawText(viewport()->rect().adjusted(air, air, -air, -air),
                         int(Qt::AlignHCenter | Qt::AlignTop) | Qt::TextWordWrap, hint);
    }
    // A slim margin keeps the rows off the rounded line.
    void resizeEvent(QResizeEvent* event) override {
        setViewportMargins(1, 2, 1, 2);
        QListView::resizeEvent(event);
    }
    // The rows' pills tell of the focus.
    void focusInEvent(QFocusEvent* event) override {
        QListView::focusInEvent(event);
        viewport()->update();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QListView::focusOutEvent(event);
        viewport()->update();
    }

 private:
    QString hint;
};

ListView* MakeView(QWidget* parent) {
    auto* view = new ListView(parent);
    view->setUniformItemSizes(true);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setDragDropMode(QAbstractItemView::NoDragDrop);
    view->setContextMenuPolicy(Qt::NoContextMenu);
    view->viewport()->setFocusPolicy(Qt::NoFocus);
    // The frame behind it has round corners that the bar must not square.
    view->verticalScrollBar()->setAttribute(Qt::WA_OpaquePaintEvent, false);
    return view;
}

}  // namespace

ListMirror::ListMirror(forms::Control& control, std::unique_ptr<RowSource> rowSource,
                       QWidget* parent, MirrorHost& host)
    : Mirror(control, host), source(std::move(rowSource)), list(MakeView(parent)) {
    rows = new Rows(*source, list);
    list->setModel(rows);
    list->setItemDelegate(new RowDelegate(*source, false, list));
    Adopt(list);
    host.Watch(list->viewport(), *this);
}

void ListMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (!list) return;
    switch (aspect) {
        case forms::Aspect::rows:
            rowsChanged = true;
            emptied = emptied || source->Count() == 0;
            break;
        case forms::Aspect::font:
            list->verticalScrollBar()->setSingleStep(RowHeight(list->fontMetrics()));
            break;
        case forms::Aspect::selection:
            break;
        case forms::Aspect::text:
            ShowHint();
            return;
        default:
            return;
    }
    // With the rows the selected one may have moved.
    selectionChanged = true;
    host.FlushSoon(*this);
}

void ListMirror::ShowHint() {
    const auto* box = dynamic_cast<const forms::ListBox*>(&control);
    if (!box) return;
    static_cast<ListView*>(list.data())->SetHint(SplitLines(ToQt(box->Hint())).join(u'\n'));
}

void ListMirror::Flush() {
    // A hidden list waits until it is shown: nobody sorts or lays out what nobody sees.
    if (!list || !list->isVisible()) return;
    if (std::exchange(rowsChanged, false)) rows->Refresh();
    if (std::exchange(emptied, false)) list->scrollToTop();
    if (!std::exchange(selectionChanged, false)) return;
    const QModelIndex index = rows->index(source->Selected(), 0);
    if (index.isValid()) {
        list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        list->scrollTo(index);
    } else {
        list->selectionModel()->clear();
    }
    list->viewport()->update();
}

std::optional<int> ListMirror::RowAt(QPoint global) const {
    const QModelIndex index = list->indexAt(list->viewport()->mapFromGlobal(global));
    return index.isValid() ? std::optional(index.row()) : std::nullopt;
}

int ListMirror::PageRows() const {
    return std::max(1, list->viewport()->height() / RowHeight(list->fontMetrics()));
}

}  // namespace kivu::view
