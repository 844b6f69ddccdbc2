#pragma once

#include <QAbstractListModel>
#include <string_view>

#include "forms/directory_controls.h"
#include "forms/list_control.h"

namespace kivu::view {

// The rows of any control that has some.
class RowSource {
 public:
    virtual ~RowSource() = default;
    virtual int Count() const = 0;
    // As it is shown.
    virtual std::string_view Text(int row) const = 0;
    virtual int Selected() const = 0;
    // Chosen, where several rows can be.
    virtual bool IsMarked(int row) const { return Selected() == row; }
    // The selected row is to stand out among those chosen.
    virtual bool ShowsCurrent() const { return false; }
    // The row that a key pressed elsewhere would select; -1 for none.
    virtual int Meant() const { return -1; }
    // Another control that moves these rows has the focus.
    virtual bool IsLed() const { return false; }
    // With the shift state of the mouse.
    virtual void Click(int row, int shift) = 0;
    virtual void Select(int row) = 0;
};

class ListRowSource : public RowSource {
 public:
    explicit ListRowSource(forms::ListControl& list) : list(list) {}
    int Count() const override { return list.ListCount(); }
    std::string_view Text(int row) const override { return list.List(row); }
    int Selected() const override { return list.ListIndex(); }
    bool IsMarked(int row) const override;
    bool ShowsCurrent() const override;
    int Meant() const override;
    bool IsLed() const override;
    void Click(int row, int shift) override;
    void Select(int row) override { list.SetListIndex(row); }

 private:
    forms::ListControl& list;
};

class DirectoryRowSource : public RowSource {
 public:
    explicit DirectoryRowSource(forms::DirectoryControl& list) : list(list) {}
    int Count() const override { return list.ListCount(); }
    std::string_view Text(int row) const override;
    int Selected() const override { return list.ListIndex(); }
    void Click(int row, int) override { list.ClickRow(row); }
    void Select(int row) override { list.SetListIndex(row); }

 private:
    forms::DirectoryControl& list;
};

// The toolkit's look at the rows: it reads them from the control whenever it draws one and holds
// none itself. Between a change of the control and Refresh a row that has gone reads as empty.
class Rows : public QAbstractListModel {
 public:
    Rows(const RowSource& source, QObject* parent) : QAbstractListModel(parent), source(source) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // Tells the views that the rows may have changed, as cheaply as can be.
    void Refresh();

 private:
    const RowSource& source;
    int shown = 0;
};

}  // namespace kivu::view
