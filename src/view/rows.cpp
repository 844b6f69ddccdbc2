#include "view/rows.h"

#include "view/text.h"

namespace kivu::view {

bool ListRowSource::IsMarked(int row) const {
    const auto* box = dynamic_cast<const forms::ListBox*>(&list);
    return box && box->MultiSelect() ? box->Selected(row) : list.ListIndex() == row;
}

bool ListRowSource::ShowsCurrent() const {
    const auto* box = dynamic_cast<const forms::ListBox*>(&list);
    // One row that is chosen alone stands out as it is.
    return box && box->MultiSelect() && (box->SelCount() != 1 || !box->Selected(box->ListIndex()));
}

int ListRowSource::Meant() const {
    const auto* box = dynamic_cast<const forms::ListBox*>(&list);
    return box ? box->MeantRow() : -1;
}

bool ListRowSource::IsLed() const {
    const auto* box = dynamic_cast<const forms::ListBox*>(&list);
    return box && box->Leader() && box->Leader()->HasFocus();
}

void ListRowSource::Click(int row, int shift) {
    using forms::Choice;
    const bool range = (shift & forms::shifts::shift) != 0;
    const bool toggle = (shift & forms::shifts::ctrl) != 0;
    list.ClickRow(row, toggle && range ? Choice::addRange
                       : toggle        ? Choice::toggle
                       : range         ? Choice::extend
                                       : Choice::only);
}

std::string_view DirectoryRowSource::Text(int row) const {
    const auto* directories = dynamic_cast<const forms::DirListBox*>(&list);
    return directories ? directories->Name(row) : list.List(row);
}

int Rows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown;
}

QVariant Rows::data(const QModelIndex& index, int role) const {
    const bool text = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
    if (!text || index.row() >= source.Count()) return {};
    return ToQt(source.Text(index.row()));
}

void Rows::Refresh() {
    const int now = source.Count();
    // Views keep nothing of a row, so that it is all one where rows came and went.
    if (now > shown) {
        beginInsertRows({}, shown, now - 1);
        shown = now;
        endInsertRows();
    } else if (now < shown) {
        beginRemoveRows({}, now, shown - 1);
        shown = now;
        endRemoveRows();
    }
    if (now > 0) emit dataChanged(index(0), index(now - 1));
}

}  // namespace kivu::view
