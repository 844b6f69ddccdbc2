#pragma once

#include "forms/controls.h"
#include "view/field_editor.h"
#include "view/mirror.h"

namespace kivu::view {

// One line of text. The toolkit edits; the model hears of each change.
class TextBoxMirror : public Mirror {
 public:
    TextBoxMirror(forms::TextBox& box, QWidget* parent, MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    QWidget* Editor() const override { return line; }
    bool UsesMouse() const override { return true; }

 private:
    QPointer<QLineEdit> line;
    FieldEditor<forms::TextBox> editor;
};

}  // namespace kivu::view
