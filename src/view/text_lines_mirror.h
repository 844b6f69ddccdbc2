#pragma once

#include <QPlainTextEdit>

#include "forms/controls.h"
#include "view/mirror.h"

namespace kivu::view {

// Several lines of text, broken at the box's edge. The toolkit edits; the model hears of each
// change.
class TextLinesMirror : public Mirror {
 public:
    TextLinesMirror(forms::TextBox& box, QWidget* parent, MirrorHost& host);

    void Apply(forms::Aspect aspect) override;
    QWidget* Editor() const override { return edit; }
    bool UsesMouse() const override { return true; }

 private:
    void ShowText();
    void ShowSelection();
    void Edited();
    void TellSelection();

    forms::TextBox& box;
    QPointer<QPlainTextEdit> edit;
    bool showing = false;
};

// The model's lines end in CR LF, the toolkit's in LF. Places in the one as code points and in the
// other as UTF-16 units.
QString ShownLines(const std::string& text);
int UnitsInLines(const std::string& text, int codePoints);
int CodePointsInLines(const QString& shown, int units);

}  // namespace kivu::view
