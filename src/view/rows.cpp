#include "view/rows.h"

#include "view/text.h"

namespace kivu::view {

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
