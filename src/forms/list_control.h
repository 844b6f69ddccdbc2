#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/row_selection.h"
#include "forms/sort_rows.h"
#include "forms/text_field.h"

namespace kivu::forms {

// The rows of a list box or of a combo box. A row out of range reads as the empty text, and writing
// or removing it has no effect.
//
// A sorted list places each new row by the toolkit's collation, behind the rows equal to it. The
// placing is put off until somebody looks at the order, so that a fill of many rows costs one sort.
// The selection stays on its row's text.
class ListControl : public Control {
 public:
    enum class Order { asAdded, sorted };

    ListControl(Container* parent, std::string name, Order order, int index = -1);

    bool Sorted() const { return order == Order::sorted; }
    int ListCount() const { return static_cast<int>(maker ? demanded : rows.size()); }
    const std::string& List(int row) const;
    // How often rows have been added, changed or taken away: who keeps something made of them sees
    // by it when to make it anew.
    std::uint64_t Changes() const { return changes; }
    // All rows in their order; valid until the next change.
    const std::vector<std::string>& Rows() const;

    void AddItem(std::string text);
    void AddItems(std::vector<std::string> texts);
    // The same for rows that the caller has put in order by Precedes, equal ones in their order of
    // arrival; a list that was empty takes them as they are.
    void AddSorted(std::vector<std::string> texts);
    // Rows that are in order among themselves: to place them costs a sorted list little.
    void AddInOrder(std::vector<std::string> texts);
    // So many rows, in their order, behind which no others are: each is made when somebody first
    // looks at it, and what is made of a row is always the same text.
    using RowMaker = std::function<std::string(int row)>;
    void AddOnDemand(int count, RowMaker make);
    // The order of a sorted list.
    bool Precedes(std::string_view a, std::string_view b) const;
    const Collation* GetCollation() const;
    // Changes the text in its place, in a sorted list too.
    void SetList(int row, std::string text);
    void RemoveItem(int row);
    // Takes the selection away without a click.
    void Clear();
    // Clears the list and hands its rows on in their order: who fills it anew need not copy those
    // that stay.
    std::vector<std::string> TakeRows();
    // Room for so many rows, to spare a long fill the moves.
    void Reserve(int count) { rows.reserve(static_cast<std::size_t>(count < 0 ? 0 : count)); }

    // The selected row, -1 for none.
    int ListIndex() const;
    // A different row in range (or -1) runs the click handler.
    void SetListIndex(int row);
    // The same without the handler.
    void SetListIndexQuietly(int row);
    // Text of the selected row.
    const std::string& SelectedText() const { return List(ListIndex()); }
    // The user's click on a row: runs the click handler on the selected row too. Other choices than
    // the row alone are for a list in which several rows can be chosen.
    void ClickRow(int row, Choice choice = Choice::only);

 protected:
    // The selected row is a new one, or has been clicked again.
    virtual void TakeSelection() {}
    // Several rows can be chosen.
    bool multiSelect = false;
    mutable RowSelection selection;

 private:
    void Settle() const;
    void PlaceNewRows() const;
    // All that are made on demand.
    void MakeRows() const;
    std::string& RowInPieces(std::size_t row) const;
    void NoteCleared();
    // False: the row is chosen already, or there is none of the number.
    bool ChooseRow(int row);

    Order order;
    mutable std::vector<std::string> rows;
    // Rows on demand that somebody has looked at. They stay until the list is cleared, since their
    // texts have been handed out; so few are ever looked at that no others get a place at all.
    using Piece = std::array<std::string, 64>;
    mutable std::vector<std::unique_ptr<Piece>> pieces;
    mutable RowMaker maker;  // of all rows; null: they are in `rows`
    std::size_t demanded = 0;
    std::uint64_t changes = 0;
    mutable std::size_t settled = 0;           // so many rows at the front are in order
    mutable std::vector<OrderedRows> ordered;  // of those behind
};

class ListBox : public ListControl {
 public:
    using ListControl::ListControl;
    Kind GetKind() const override { return Kind::listBox; }
    bool TakesFocus() const override { return true; }

    // With it several rows can be chosen, and the selected row is the one among all that stands out
    // as current; selecting one takes the others' marks away. Switching it off leaves the selected
    // row chosen alone.
    bool MultiSelect() const { return multiSelect; }
    void SetMultiSelect(bool value);
    bool Selected(int row) const;
    // Chooses a row, or no longer, and runs nothing; the selected row stays. No effect without
    // MultiSelect and on a row out of range.
    void SetSelected(int row, bool value);
    int SelCount() const { return static_cast<int>(SelectedRows().size()); }
    // In rising order; valid until the next change.
    const std::vector<int>& SelectedRows() const;
    // Quiet words in the place of the rows while there are none.
    const std::string& Hint() const { return hint; }
    void SetHint(std::string value);
    // The user moves the selected row and leaves the choice as it is. A different row in range runs
    // the click handler.
    void MoveCurrentRow(int row);

    // The row that a key pressed elsewhere would select, as Enter in a search box does; -1 for
    // none. It is only shown, by a line around it.
    int MeantRow() const { return meantRow; }
    void SetMeantRow(int row);
    // Another control whose keys move this list's row: the list looks focused with it.
    const Control* Leader() const { return leader; }
    void SetLeader(const Control& value) { leader = &value; }

 private:
    int meantRow = -1;
    std::string hint;
    const Control* leader = nullptr;
};

// A drop-down list with a text field. Selecting a row writes its text into the field and runs the
// click handler alone; writing the field runs the change handler and leaves the selected row.
// Clearing the list or removing its selected row leaves the field.
class ComboBox : public ListControl {
 public:
    ComboBox(Container* parent, std::string name, Order order = Order::asAdded, int index = -1);
    Kind GetKind() const override { return Kind::comboBox; }
    bool TakesFocus() const override { return true; }

    const std::string& Text() const { return field.Text(); }
    // A different text runs the change handler.
    void SetText(std::string value);
    int SelStart() const { return field.Start(); }  // code points
    int SelLength() const { return field.Length(); }
    void SetSelection(int start, int length);
    const TextField& Field() const { return field; }
    // Text and selection in one step, as typing changes them: the change handler finds both.
    void SetField(TextField value);

    // A choice among the rows alone: the user types nothing into its field, though its key handlers
    // hear of each key; Home and End choose the first and the last row, and a click opens the rows.
    // Settled before a view is made.
    bool IsChoice() const { return choice; }
    void SetChoice(bool value) { choice = value; }

    // Twips that a view shows it wide at most, where its width leaves no room for others; 0: no
    // such limit.
    int MostShownWidth() const { return mostShownWidth; }
    void SetMostShownWidth(int twips);
    int ShownWidth() const;

    std::function<void()> onChange;
    // The user asks for the rows by the arrow, F4 or Alt+Down. With a handler no rows drop down:
    // the program shows them in a way of its own.
    std::function<void()> onDropDown;

 protected:
    void TakeSelection() override;
    void Remeasure() override;

 private:
    // True: the text is another one.
    bool Store(TextField value);

    TextField field;
    bool choice = false;
    int mostShownWidth = 0;
};

}  // namespace kivu::forms
