#include "view/accessible_text.h"

#include <algorithm>

#include "view/text.h"

namespace kivu::view {

forms::TextBox* AccessibleText::Box() const {
    return Find() ? dynamic_cast<forms::TextBox*>(&Control()) : nullptr;
}

QString AccessibleText::Whole() const {
    return Box() ? ToQt(Box()->Text()) : QString();
}

QString AccessibleText::text(QAccessible::Text which) const {
    return which == QAccessible::Value ? Whole() : AccessibleControl::text(which);
}

void AccessibleText::setText(QAccessible::Text which, const QString& text) {
    if (which == QAccessible::Value) replaceText(0, characterCount(), text);
}

QAccessible::State AccessibleText::state() const {
    QAccessible::State state = AccessibleControl::state();
    const forms::TextBox* box = Box();
    state.editable = state.selectableText = box != nullptr;
    state.multiLine = box && box->IsMultiLine();
    return state;
}

void* AccessibleText::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
        case QAccessible::TextInterface:
            return static_cast<QAccessibleTextInterface*>(this);
        case QAccessible::EditableTextInterface:
            return static_cast<QAccessibleEditableTextInterface*>(this);
        default:
            return AccessibleControl::interface_cast(type);
    }
}

void AccessibleText::selection(int index, int* start, int* end) const {
    *start = *end = 0;
    if (index != 0 || !Box()) return;
    *start = UnitsOf(Whole(), Box()->SelStart());
    *end = UnitsOf(Whole(), Box()->SelStart() + Box()->SelLength());
}

int AccessibleText::selectionCount() const {
    return Box() && Box()->SelLength() > 0 ? 1 : 0;
}

void AccessibleText::removeSelection(int index) {
    if (index == 0) setCursorPosition(cursorPosition());
}

void AccessibleText::setSelection(int index, int start, int end) {
    if (index != 0 || !Box()) return;
    const int from = CodePointsOf(Whole(), std::min(start, end));
    Box()->SetSelection(from, CodePointsOf(Whole(), std::max(start, end)) - from);
}

int AccessibleText::cursorPosition() const {
    return Box() ? UnitsOf(Whole(), Box()->SelStart() + Box()->SelLength()) : 0;
}

void AccessibleText::setCursorPosition(int position) {
    if (Box()) Box()->SetSelection(CodePointsOf(Whole(), position), 0);
}

QString AccessibleText::text(int start, int end) const {
    return Whole().mid(start, end - start);
}

int AccessibleText::characterCount() const {
    return static_cast<int>(Whole().size());
}

QString AccessibleText::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleText::replaceText(int start, int end, const QString& text) {
    if (!Box() || !IsOpen()) return;
    const RepaintRest::Handler running(Find()->Host().Rest());
    const forms::HeldForm held(Control());
    const bool all = start <= 0 && end >= characterCount();
    // Its handler may put words away that only stand there while nobody writes.
    Control().SetFocus();
    if (!Box() || !IsOpen()) return;
    const int size = characterCount();
    const int from = all ? 0 : std::clamp(start, 0, size);
    const int to = all ? size : std::clamp(end, from, size);
    const QString whole = Whole().replace(from, to - from, text);
    const int caret = CodePointsOf(whole, from + static_cast<int>(text.size()));
    Box()->SetField(forms::TextField(FromQt(whole), caret, 0, Box()->IsMultiLine()));
}

}  // namespace kivu::view
