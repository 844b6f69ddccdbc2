#include "view/text_lines_mirror.h"

#include <QTextCursor>
#include <utility>

#include "view/text.h"

namespace kivu::view {

namespace {

const QString lineFeed = QStringLiteral("\n");
const QString lineEnd = QStringLiteral("\r\n");

std::string ModelLines(QString shown) {
    return FromQt(shown.replace(lineFeed, lineEnd));
}

}  // namespace

QString ShownLines(const std::string& text) {
    return ToQt(text).replace(lineEnd, lineFeed);
}

int UnitsInLines(const std::string& text, int codePoints) {
    const QString whole = ToQt(text);
    QString front = whole.left(UnitsOf(whole, codePoints));
    // A caret within a line end stands before it.
    if (front.endsWith(u'\r')) front.chop(1);
    return static_cast<int>(front.replace(lineEnd, lineFeed).size());
}

int CodePointsInLines(const QString& shown, int units) {
    QString front = shown.left(units);
    front.replace(lineFeed, lineEnd);
    return CodePointsOf(front, static_cast<int>(front.size()));
}

TextLinesMirror::TextLinesMirror(forms::TextBox& control, QWidget* parent, MirrorHost& host)
    : Mirror(control, host), box(control), edit(new QPlainTextEdit(parent)) {
    // Tab goes to the next control.
    edit->setTabChangesFocus(true);
    edit->setFrameShape(QFrame::StyledPanel);
    QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [this] { Edited(); });
    const auto moved = [this] { TellSelection(); };
    QObject::connect(edit, &QPlainTextEdit::cursorPositionChanged, edit, moved);
    QObject::connect(edit, &QPlainTextEdit::selectionChanged, edit, moved);
    Adopt(edit);
    host.Watch(edit->viewport(), *this);
    edit->viewport()->setCursor(Qt::IBeamCursor);
}

void TextLinesMirror::Apply(forms::Aspect aspect) {
    Mirror::Apply(aspect);
    if (aspect == forms::Aspect::text) ShowText();
    if (aspect == forms::Aspect::selection) ShowSelection();
}

void TextLinesMirror::ShowText() {
    if (!edit) return;
    const QString text = ShownLines(box.Text());
    const bool before = std::exchange(showing, true);
    if (edit->toPlainText() != text) edit->setPlainText(text);
    showing = before;
    ShowSelection();
}

void TextLinesMirror::ShowSelection() {
    if (!edit) return;
    const int start = UnitsInLines(box.Text(), box.SelStart());
    const int end = UnitsInLines(box.Text(), box.SelStart() + box.SelLength());
    QTextCursor cursor = edit->textCursor();
    if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
    const bool before = std::exchange(showing, true);
    cursor.setPosition(start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit->setTextCursor(cursor);
    showing = before;
}

void TextLinesMirror::Edited() {
    if (showing || !edit) return;
    // Text and caret go in together: the change handler may ask for both.
    const bool before = std::exchange(showing, true);
    const QString text = edit->toPlainText();
    const int caret = CodePointsInLines(text, edit->textCursor().position());
    box.SetField(forms::TextField(ModelLines(text), caret, 0, true));
    showing = before;
}

void TextLinesMirror::TellSelection() {
    if (showing || !edit) return;
    const QString text = edit->toPlainText();
    // The toolkit tells of the caret before it tells of the text that has moved it.
    if (text != ShownLines(box.Text())) return;
    const bool before = std::exchange(showing, true);
    const QTextCursor cursor = edit->textCursor();
    const int from = CodePointsInLines(text, cursor.selectionStart());
    box.SetSelection(from, CodePointsInLines(text, cursor.selectionEnd()) - from);
    showing = before;
}

}  // namespace kivu::view
