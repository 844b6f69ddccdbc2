#pragma once

#include <memory>

#include "view/list_view.h"
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
    const RowSource* RowsShown() const override { return source.get(); }
    QRect RowRect(int row) const override;
    int SelectedRow() const override { return source->Selected(); }
    void ClickRow(int row, int shift) override { source->Click(row, shift); }
    void SelectRow(int row) override { source->Select(row); }
    int PageRows() const override;
    void ForgetMouse() override;
    void FocusMoved() override;

 private:
    void ShowHint();

    std::unique_ptr<RowSource> source;
    QPointer<ListView> list;
    Rows* rows = nullptr;
    bool rowsChanged = true;
    bool selectionChanged = true;
    bool emptied = false;
    bool wasLed = false;
};

}  // namespace kivu::view
