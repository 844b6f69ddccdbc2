#pragma once

#include <QComboBox>
#include <optional>

#include "forms/list_control.h"
#include "view/field_editor.h"
#include "view/mirror.h"
#include "view/rows.h"

namespace kivu::view {

// A text field over a drop-down list, or a choice among its rows alone. A row chosen in the popup
// is the user's click on it; the field inserts nothing and completes nothing.
class ComboBoxMirror : public Mirror {
 public:
    ComboBoxMirror(forms::ComboBox& box, QWidget* parent, MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    void Flush() override;
    QWidget* Editor() const override { return combo ? combo->lineEdit() : nullptr; }
    bool HasRows() const override { return true; }
    const RowSource* RowsShown() const override { return &source; }
    bool UsesMouse() const override { return true; }
    // Shown narrower than it is, it reaches less far.
    QMargins Overhang() const override;
    bool IsOnArrow(QPoint global) const override;
    void ShowRows() override;

 private:
    void ShowText();
    void ShowSelectedRow();

    forms::ComboBox& box;
    ListRowSource source;
    QPointer<QComboBox> combo;
    Rows* rows = nullptr;
    std::optional<FieldEditor<forms::ComboBox>> editor;  // none for a choice
    bool rowsChanged = true;
};

}  // namespace kivu::view
