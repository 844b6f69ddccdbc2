#pragma once

#include <QLineEdit>
#include <QPointer>
#include <utility>

#include "forms/text_field.h"
#include "view/text.h"

namespace kivu::view {

// Joins a line edit to a control with a text and a selection (a text box, a combo box): what the
// user edits goes to the model, what the model says goes to the line, and nothing comes back as an
// echo.
template <typename Box>
class FieldEditor {
 public:
    FieldEditor(Box& box, QLineEdit* line) : box(box), line(line) {
        QObject::connect(line, &QLineEdit::textEdited, line,
                         [this](const QString& text) { Edited(text); });
        const auto moved = [this] { TellSelection(); };
        QObject::connect(line, &QLineEdit::cursorPositionChanged, line, moved);
        QObject::connect(line, &QLineEdit::selectionChanged, line, moved);
    }

    void ShowText() {
        if (!line) return;
        const QString text = ToQt(box.Text());
        const bool before = std::exchange(showing, true);
        if (line->text() != text) line->setText(text);
        showing = before;
        ShowSelection();
    }

    void ShowSelection() {
        if (!line) return;
        const bool before = std::exchange(showing, true);
        const QString text = line->text();
        const int start = UnitsOf(text, box.SelStart());
        const int end = UnitsOf(text, box.SelStart() + box.SelLength());
        const bool same =
            end > start ? line->selectionStart() == start && line->selectionLength() == end - start
                        : !line->hasSelectedText() && line->cursorPosition() == start;
        if (!same && end > start) {
            line->setSelection(start, end - start);
        } else if (!same) {
            line->deselect();
            line->setCursorPosition(start);
        }
        showing = before;
    }

 private:
    void Edited(const QString& text) {
        // Text and caret go in together: the change handler may ask for both.
        const bool before = std::exchange(showing, true);
        const int caret = CodePointsOf(text, line->cursorPosition());
        box.SetField(forms::TextField(FromQt(text), caret, 0));
        showing = before;
    }

    void TellSelection() {
        if (showing || !line) return;
        const bool before = std::exchange(showing, true);
        const QString text = line->text();
        const int start = line->hasSelectedText() ? line->selectionStart() : line->cursorPosition();
        const int length = static_cast<int>(line->selectedText().size());
        const int from = CodePointsOf(text, start);
        box.SetSelection(from, CodePointsOf(text, start + length) - from);
        showing = before;
    }

    Box& box;
    QPointer<QLineEdit> line;
    bool showing = false;
};

}  // namespace kivu::view
