#include "view/list_mirror.h"

#include <algorithm>
#include <utility>

#include "view/row_delegate.h"
#include "view/text.h"
#include "view/text_block.h"

namespace kivu::view {

ListMirror::ListMirror(forms::Control& control, std::unique_ptr<RowSource> rowSource,
                       QWidget* parent, MirrorHost& host)
    : Mirror(control, host), source(std::move(rowSource)), list(new ListView(parent)) {
    // A list that is made when it is shown may have its leader in front already.
    wasLed = source->IsLed();
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
    list->SetHint(SplitLines(ToQt(box->Hint())).join(u'\n'));
}

void ListMirror::Flush() {
    // A hidden list waits until it is shown: nobody sorts or lays out what nobody sees.
    if (!list || !list->isVisible()) return;
    if (std::exchange(rowsChanged, false)) {
        rows->Refresh();
        // The toolkit would lay them out behind the next picture, which would show none.
        list->doItemsLayout();
    }
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

void ListMirror::ForgetMouse() {
    if (list && list->isVisible()) list->ForgetMouse();
}

void ListMirror::FocusMoved() {
    const bool led = source->IsLed();
    if (std::exchange(wasLed, led) != led && list) list->viewport()->update();
}

std::optional<int> ListMirror::RowAt(QPoint global) const {
    const QModelIndex index = list->indexAt(list->viewport()->mapFromGlobal(global));
    return index.isValid() ? std::optional(index.row()) : std::nullopt;
}

QRect ListMirror::RowRect(int row) const {
    if (!list) return {};
    const QRect place = list->visualRect(rows->index(row, 0));
    return {list->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int ListMirror::PageRows() const {
    return std::max(1, list->viewport()->height() / RowHeight(list->fontMetrics()));
}

}  // namespace kivu::view
