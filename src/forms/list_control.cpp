#include "forms/list_control.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "forms/form.h"
#include "forms/sort_rows.h"

namespace kivu::forms {

namespace {
const std::string noText;
}

ListControl::ListControl(Container* parent, std::string name, Order order, int index)
    : Control(parent, std::move(name), index), order(order) {
}

const Collation* ListControl::GetCollation() const {
    return GetToolkit().collation;
}

bool ListControl::Precedes(std::string_view a, std::string_view b) const {
    const Collation* collation = GetCollation();
    return collation ? collation->Compare(a, b) < 0 : a < b;
}

void ListControl::Settle() const {
    if (maker || settled == rows.size()) return;
    if (order == Order::asAdded) {
        settled = rows.size();
        return;
    }
    const auto before = [this](const std::string& a, const std::string& b) {
        return Precedes(a, b);
    };
    const auto middle = rows.begin() + static_cast<std::ptrdiff_t>(settled);
    for (OrderedRows& some : ordered) {
        some.begin -= static_cast<std::uint32_t>(settled);
        some.end -= static_cast<std::uint32_t>(settled);
    }
    SortRowsBy(GetCollation(), middle, rows.end(), std::exchange(ordered, {}));
    if (settled > 0 && before(*middle, *(middle - 1))) PlaceNewRows();
    settled = rows.size();
}

// The new rows are in order among themselves. From the last to the first, each one's place among
// the old rows is found by halving, and the old rows behind it move up once.
void ListControl::PlaceNewRows() const {
    const auto first = rows.begin();
    const auto middle = first + static_cast<std::ptrdiff_t>(settled);
    std::vector<std::string> added(std::make_move_iterator(middle),
                                   std::make_move_iterator(rows.end()));
    const auto before = [this](const std::string& a, const std::string& b) {
        return Precedes(a, b);
    };
    std::vector<int> places;
    places.reserve(added.size());
    auto unmoved = middle;
    while (!added.empty()) {
        const auto place = std::upper_bound(first, unmoved, added.back(), before);
        const auto count = static_cast<std::ptrdiff_t>(added.size());
        std::move_backward(place, unmoved, unmoved + count);
        *(place + count - 1) = std::move(added.back());
        added.pop_back();
        places.push_back(static_cast<int>(place - first));
        unmoved = place;
    }
    std::reverse(places.begin(), places.end());
    selection.RowsInserted(places);
}

const std::string& ListControl::List(int row) const {
    if (row < 0 || row >= ListCount()) return noText;
    const auto place = static_cast<std::size_t>(row);
    if (maker) {
        std::string& text = RowInPieces(place);
        if (text.empty()) text = maker(row);
        return text;
    }
    Settle();
    return rows[place];
}

std::string& ListControl::RowInPieces(std::size_t row) const {
    constexpr std::size_t length = std::tuple_size_v<Piece>;
    std::unique_ptr<Piece>& piece = pieces[row / length];
    if (!piece) piece = std::make_unique<Piece>();
    return (*piece)[row % length];
}

const std::vector<std::string>& ListControl::Rows() const {
    MakeRows();
    Settle();
    return rows;
}

void ListControl::MakeRows() const {
    if (!maker) return;
    std::vector<std::string> made;
    made.reserve(demanded);
    for (std::size_t row = 0; row < demanded; ++row) {
        const bool looked = pieces[row / std::tuple_size_v<Piece>] && !RowInPieces(row).empty();
        made.push_back(looked ? RowInPieces(row) : maker(static_cast<int>(row)));
    }
    rows = std::move(made);
    settled = rows.size();
    maker = {};
}

void ListControl::AddItem(std::string text) {
    MakeRows();
    rows.push_back(std::move(text));
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::AddItems(std::vector<std::string> texts) {
    if (texts.empty()) return;
    MakeRows();
    if (rows.empty()) {
        rows = std::move(texts);
    } else {
        rows.insert(rows.end(), std::make_move_iterator(texts.begin()),
                    std::make_move_iterator(texts.end()));
    }
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::AddInOrder(std::vector<std::string> texts) {
    if (texts.empty()) return;
    MakeRows();
    if (order == Order::sorted) {
        const auto begin = static_cast<std::uint32_t>(rows.size());
        ordered.push_back({begin, begin + static_cast<std::uint32_t>(texts.size())});
    }
    rows.insert(rows.end(), std::make_move_iterator(texts.begin()),
                std::make_move_iterator(texts.end()));
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::AddSorted(std::vector<std::string> texts) {
    if (ListCount() > 0 || texts.empty()) {
        AddItems(std::move(texts));
        return;
    }
    rows = std::move(texts);
    settled = rows.size();
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::AddOnDemand(int count, RowMaker make) {
    if (count <= 0) return;
    if (ListCount() > 0) {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(count));
        for (int row = 0; row < count; ++row)
            texts.push_back(make(row));
        AddItems(std::move(texts));
        return;
    }
    demanded = static_cast<std::size_t>(count);
    pieces.clear();
    pieces.resize((demanded - 1) / std::tuple_size_v<Piece> + 1);
    maker = std::move(make);
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::SetList(int row, std::string text) {
    if (row < 0 || row >= ListCount()) return;
    MakeRows();
    Settle();
    rows[static_cast<std::size_t>(row)] = std::move(text);
    ++changes;
    Notify(Aspect::rows);
}

void ListControl::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) return;
    MakeRows();
    Settle();
    rows.erase(rows.begin() + row);
    settled = rows.size();
    const bool deselected = selection.RowRemoved(row);
    ++changes;
    Notify(Aspect::rows);
    if (deselected) Notify(Aspect::selection);
}

void ListControl::Clear() {
    if (ListCount() == 0) return;
    rows.clear();
    NoteCleared();
}

std::vector<std::string> ListControl::TakeRows() {
    if (ListCount() == 0) return {};
    MakeRows();
    Settle();
    std::vector<std::string> taken = std::exchange(rows, {});
    NoteCleared();
    return taken;
}

void ListControl::NoteCleared() {
    settled = 0;
    ordered.clear();
    maker = {};
    pieces.clear();
    const bool deselected = selection.Clear();
    ++changes;
    Notify(Aspect::rows);
    if (deselected) Notify(Aspect::selection);
}

int ListControl::ListIndex() const {
    Settle();
    return selection.Current();
}

bool ListControl::ChooseRow(int row) {
    if (row < -1 || row >= ListCount() || row == ListIndex()) return false;
    selection.Choose(row);
    TakeSelection();
    Notify(Aspect::selection);
    return true;
}

void ListControl::SetListIndex(int row) {
    if (ChooseRow(row)) Run(onClick);
}

void ListControl::SetListIndexQuietly(int row) {
    ChooseRow(row);
}

void ListControl::ClickRow(int row, Choice choice) {
    if (row < 0 || row >= ListCount()) return;
    Settle();
    const bool changed = selection.Choose(row, multiSelect ? choice : Choice::only);
    TakeSelection();
    if (changed) Notify(Aspect::selection);
    Run(onClick);
}

void ListBox::SetMultiSelect(bool value) {
    if (multiSelect == value) return;
    multiSelect = value;
    if (!value && selection.Choose(ListIndex())) Notify(Aspect::selection);
}

bool ListBox::Selected(int row) const {
    const std::vector<int>& chosen = SelectedRows();
    return std::binary_search(chosen.begin(), chosen.end(), row);
}

void ListBox::SetSelected(int row, bool value) {
    if (!multiSelect || row < 0 || row >= ListCount()) return;
    (void)SelectedRows();
    if (selection.Mark(row, value)) Notify(Aspect::selection);
}

const std::vector<int>& ListBox::SelectedRows() const {
    // New rows of a sorted list move the chosen ones when they find their places.
    (void)ListIndex();
    return selection.Rows();
}

void ListBox::SetHint(std::string value) {
    if (hint == value) return;
    hint = std::move(value);
    Notify(Aspect::text);
}

void ListBox::MoveCurrentRow(int row) {
    if (row < 0 || row >= ListCount() || row == ListIndex()) return;
    if (!multiSelect) {
        SetListIndex(row);
        return;
    }
    selection.MoveCurrent(row);
    Notify(Aspect::selection);
    Run(onClick);
}

void ListBox::SetMeantRow(int row) {
    if (meantRow == row) return;
    meantRow = row;
    Notify(Aspect::selection);
}

ComboBox::ComboBox(Container* parent, std::string name, Order order, int index)
    : ListControl(parent, std::move(name), order, index) {
    ComboBox::Remeasure();
}

void ComboBox::SetMostShownWidth(int twips) {
    if (twips < 0 || twips == mostShownWidth) return;
    mostShownWidth = twips;
    Notify(Aspect::geometry);
}

int ComboBox::ShownWidth() const {
    return mostShownWidth > 0 ? std::min(Width(), mostShownWidth) : Width();
}

void ComboBox::SetText(std::string value) {
    TextField changed = field;
    changed.SetText(std::move(value));
    SetField(std::move(changed));
}

void ComboBox::SetSelection(int start, int length) {
    TextField changed = field;
    changed.Select(start, length);
    SetField(std::move(changed));
}

void ComboBox::SetField(TextField value) {
    if (Store(std::move(value))) Run(onChange);
}

void ComboBox::TakeSelection() {
    TextField changed = field;
    changed.SetText(SelectedText());
    Store(std::move(changed));
}

bool ComboBox::Store(TextField value) {
    const TextField old = std::exchange(field, std::move(value));
    const bool changed = old.Text() != field.Text();
    const bool moved = old.Start() != field.Start() || old.Length() != field.Length();
    if (changed) Notify(Aspect::text);
    if (moved) Notify(Aspect::selection);
    return changed;
}

void ComboBox::Remeasure() {
    const TextMeasure* measure = GetToolkit().measure;
    const int line =
        measure ? measure->LineHeight(GetFont()) : static_cast<int>(GetFont().size * 24);
    SetHeight(line + 10 * twipsPerPixel);
}

}  // namespace kivu::forms
