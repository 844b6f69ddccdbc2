#pragma once

#include "view/accessible_control.h"

namespace kivu::view {

// A text to edit. What a tool writes into it comes as if it were typed: the field has the focus
// first. Places are counted in UTF-16 units, as the toolkit does.
class AccessibleText : public AccessibleControl,
                       public QAccessibleTextInterface,
                       public QAccessibleEditableTextInterface {
 public:
    using AccessibleControl::AccessibleControl;
    using AccessibleControl::text;

    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text which, const QString& text) override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int start, int end) override { setSelection(0, start, end); }
    QString attributes(int, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

 private:
    forms::TextBox* Box() const;
    QString Whole() const;
};

}  // namespace kivu::view
