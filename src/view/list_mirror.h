#pragma once

#include <QListView>
#include <memory>

#include "view/mirror.h"
#include "view/rows.h"

namespace kivu::view {

// A list box, or one of the directory lists. Its mouse and keys go through the model alone.
class ListMirror : public Mirror {
 public:
    ListMirror(forms::Control& control, std::unique_ptr<RowSource> source, QWidget* parent,
               MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    void Flush() override;
    std::optional<int> RowAt(QPoint global) const override;
    bool HasRows() const override { return true; }
    int SelectedRow() const override { return source->Selected(); }
    void ClickRow(int row, int shift) override { source->Click(row, shift); }
    void SelectRow(int row) override { source->Select(row); }
    int PageRows() const override;

 private:
    void ShowHint();

    std::unique_ptr<RowSource> source;
    QPointer<QListView> list;
    Rows* rows = nullptr;
    bool rowsChanged = true;
    bool selectionChanged = true;
    bool emptied = false;
};

}  // namespace kivu::view
