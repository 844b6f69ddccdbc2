#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace kivu::forms {

// The rows of a list box or of a combo box. A row out of range reads as the empty text, and writing
// or removing it has no effect.
//
// A sorted list places each new row by the toolkit's collation, behind the rows equal to it. The
// placing is put off until somebody looks at the order, so that a fill of many rows costs one sort.
class ListControl : public Control {
 public:
    enum class Order { asAdded, sorted };

    ListControl(Container* parent, std::string name, Order order, int index = -1);

    bool Sorted() const { return order == Order::sorted; }
    int ListCount() const { return static_cast<int>(rows.size()); }
    const std::string& List(int row) const;
    // All rows in their order; valid until the next change.
    const std::vector<std::string>& Rows() const;

    void AddItem(std::string text);
    void AddItems(std::vector<std::string> texts);
    // Changes the text in its place, in a sorted list too.
    void SetList(int row, std::string text);
    void RemoveItem(int row);
    // Takes the selection away without a click.
    void Clear();
    // Room for so many rows, to spare a long fill the moves.
    void Reserve(int count) { rows.reserve(static_cast<std::size_t>(count < 0 ? 0 : count)); }

    // The selected row, -1 for none.
    int ListIndex() const;
    // A different row in range (or -1) runs the click handler.
    void SetListIndex(int row);
    // Text of the selected row.
    const std::string& SelectedText() const { return List(ListIndex()); }
    // The user's click on a row: runs the click handler on the selected row too.
    void ClickRow(int row);

 protected:
    virtual void SelectionChanged() {}

 private:
    void Settle() const;
    bool Before(std::string_view a, std::string_view b) const;

    Order order;
    mutable std::vector<std::string> rows;
    mutable std::size_t settled = 0;  // so many rows at the front are in order
    mutable int selected = -1;
};

class ListBox : public ListControl {
 public:
    using ListControl::ListControl;
    Kind GetKind() const override { return Kind::listBox; }
    bool TakesFocus() const override { return true; }
};

// A drop-down list with a text field. Selecting a row writes its text into the field and runs the
// click handler alone; writing the field runs the change handler and leaves the selected row.
class ComboBox : public ListControl {
 public:
    ComboBox(Container* parent, std::string name, Order order = Order::asAdded, int index = -1);
    Kind GetKind() const override { return Kind::comboBox; }
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return text; }
    void SetText(std::string value);
    int SelStart() const { return selStart; }  // code points
    int SelLength() const { return selLength; }
    void SetSelection(int start, int length);

    std::function<void()> onChange;

 protected:
    void SelectionChanged() override;
    void Remeasure() override;

 private:
    std::string text;
    int selStart = 0;
    int selLength = 0;
};

}  // namespace kivu::forms
