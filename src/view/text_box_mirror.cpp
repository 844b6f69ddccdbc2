#include "view/text_box_mirror.h"

namespace kivu::view {

TextBoxMirror::TextBoxMirror(forms::TextBox& box, QWidget* parent, MirrorHost& host)
    : Mirror(box, host), line(new QLineEdit(parent)), editor(box, line) {
    line->setTextMargins(4, 0, 4, 0);
    Adopt(line);
}

void TextBoxMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (aspect == forms::Aspect::text) editor.ShowText();
    if (aspect == forms::Aspect::selection) editor.ShowSelection();
}

}  // namespace kivu::view
