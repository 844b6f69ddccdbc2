#include "forms/list_control.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "forms/form.h"

namespace kivu::forms {

namespace {
const std::string noText;
}

ListControl::ListControl(Container* parent, std::string name, Order order, int index)
    : Control(parent, std::move(name), index), order(order) {
}

bool ListControl::Before(std::string_view a, std::string_view b) const {
    const Collation* collation = GetToolkit().collation;
    return collation ? collation->Compare(a, b) < 0 : a < b;
}

void ListControl::Settle() const {
    if (settled == rows.size()) return;
    if (order == Order::asAdded) {
        settled = rows.size();
        return;
    }
    const auto before = [this](const std::string& a, const std::string& b) { return Before(a, b); };
    const auto middle = rows.begin() + static_cast<std::ptrdiff_t>(settled);
    // Rows mostly arrive in order, from a cache or from another sorted list.
    if (!std::is_sorted(middle, rows.end(), before)) std::stable_sort(middle, rows.end(), before);
    const bool merge = settled > 0 && before(*middle, *(middle - 1));
    if (merge && selected >= 0) {
        const std::string& kept = rows[static_cast<std::size_t>(selected)];
        selected += static_cast<int>(std::lower_bound(middle, rows.end(), kept, before) - middle);
    }
    if (merge) std::inplace_merge(rows.begin(), middle, rows.end(), before);
    settled = rows.size();
}

const std::string& ListControl::List(int row) const {
    if (row < 0 || row >= ListCount()) return noText;
    Settle();
    return rows[static_cast<std::size_t>(row)];
}

const std::vector<std::string>& ListControl::Rows() const {
    Settle();
    return rows;
}

void ListControl::AddItem(std::string text) {
    rows.push_back(std::move(text));
    Notify(Aspect::rows);
}

void ListControl::AddItems(std::vector<std::string> texts) {
    if (texts.empty()) return;
    if (rows.empty()) {
        rows = std::move(texts);
    } else {
        rows.insert(rows.end(), std::make_move_iterator(texts.begin()),
                    std::make_move_iterator(texts.end()));
    }
    Notify(Aspect::rows);
}

void ListControl::SetList(int row, std::string text) {
    if (row < 0 || row >= ListCount()) return;
    Settle();
    rows[static_cast<std::size_t>(row)] = std::move(text);
    Notify(Aspect::rows);
}

void ListControl::RemoveItem(int row) {
    if (row < 0 || row >= ListCount()) return;
    Settle();
    rows.erase(rows.begin() + row);
    settled = rows.size();
    if (selected == row) {
        selected = -1;
    } else if (selected > row) {
        --selected;
    }
    Notify(Aspect::rows);
}

void ListControl::Clear() {
    if (rows.empty() && selected == -1) return;
    rows.clear();
    settled = 0;
    selected = -1;
    Notify(Aspect::rows);
}

int ListControl::ListIndex() const {
    Settle();
    return selected;
}

void ListControl::SetListIndex(int row) {
    if (row < -1 || row >= ListCount() || row == ListIndex()) return;
    selected = row;
    Notify(Aspect::selection);
    SelectionChanged();
    Run(onClick);
}

void ListControl::ClickRow(int row) {
    if (row < 0 || row >= ListCount()) return;
    if (row != ListIndex()) {
        SetListIndex(row);
    } else {
        Run(onClick);
    }
}

ComboBox::ComboBox(Container* parent, std::string name, Order order, int index)
    : ListControl(parent, std::move(name), order, index) {
    Remeasure();
}

void ComboBox::SetText(std::string value) {
    if (text == value) return;
    text = std::move(value);
    Notify(Aspect::text);
    Run(onChange);
}

void ComboBox::SetSelection(int start, int length) {
    if (start < 0 || length < 0 || (start == selStart && length == selLength)) return;
    selStart = start;
    selLength = length;
    Notify(Aspect::selection);
}

void ComboBox::SelectionChanged() {
    if (text == SelectedText()) return;
    text = SelectedText();
    Notify(Aspect::text);
}

void ComboBox::Remeasure() {
    const TextMeasure* measure = GetToolkit().measure;
    const int line =
        measure ? measure->LineHeight(GetFont()) : static_cast<int>(GetFont().size * 24);
    SetHeight(line + 10 * twipsPerPixel);
}

}  // namespace kivu::forms
