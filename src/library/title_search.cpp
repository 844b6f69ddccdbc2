#include "library/title_search.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "forms/sort_rows.h"

namespace kivu::library {

namespace {

// So few results are copied and sorted in no time.
constexpr std::size_t few = 256;

}  // namespace

void JoinedRows::Take(const std::vector<std::string>& rows) {
    text.clear();
    begins.clear();
    begins.reserve(rows.size() + 1);
    for (const std::string& row : rows) {
        begins.push_back(text.size());
        text += row;
        // A line end within a row would make two of it. Nobody can search for one.
        const auto from = text.begin() + static_cast<std::ptrdiff_t>(begins.back());
        if (row.find('\n') != std::string::npos) std::replace(from, text.end(), '\n', '\0');
        text += '\n';
    }
    begins.push_back(text.size());
}

std::string_view JoinedRows::Row(std::size_t row) const {
    return std::string_view(text).substr(begins[row], begins[row + 1] - begins[row] - 1);
}

std::size_t JoinedRows::RowAt(std::size_t place, std::size_t from) const {
    // Where many rows match, the next one is near.
    for (const std::size_t end = from + 4; from < end; ++from) {
        if (place < begins[from + 1]) return from;
    }
    const auto next =
        std::upper_bound(begins.begin() + static_cast<std::ptrdiff_t>(from), begins.end(), place);
    return static_cast<std::size_t>(next - begins.begin()) - 1;
}

RowNumbers JoinedRows::Find(const SearchWords& words, std::size_t start) const {
    RowNumbers found;
    const SearchWord* driver = words.Driver();
    for (std::size_t row = start; row < Count(); ++row) {
        bool matches = false;
        if (driver) {
            const std::size_t place = driver->Find(text, begins[row]);
            if (place == std::string::npos) break;
            row = RowAt(place, row);
            const bool within = place + driver->ProbeLength() < begins[row + 1];
            matches =
                driver->IsExact() ? within && words.OthersAreIn(Row(row)) : words.AreIn(Row(row));
        } else {
            matches = words.AreIn(Row(row));
        }
        if (matches) found.push_back(static_cast<std::uint32_t>(row));
    }
    return found;
}

void TitleSearch::ClearResults() {
    former.clear();
    if (filled == results.Changes()) {
        former = results.TakeRows();
    } else {
        results.Clear();
    }
    filled.reset();
}

void TitleSearch::TakeTitles() {
    if (version == titles.Changes()) return;
    version = titles.Changes();
    joined.Take(titles.Rows());
    order.reset();
    lastWords.reset();
    former.clear();
}

const RowNumbers& TitleSearch::Find(std::string_view text, std::size_t start) {
    TakeTitles();
    SearchWords words(text);
    const auto left =
        lastWords && start >= lastStart ? words.Beyond(*lastWords) : std::optional<SearchWords>();
    if (left) {
        Narrow(*left, start);
    } else {
        found = joined.Find(words, start);
    }
    lastWords = std::move(words);
    lastStart = start;
    return found;
}

void TitleSearch::Narrow(const SearchWords& left, std::size_t start) {
    found.erase(found.begin(), std::lower_bound(found.begin(), found.end(), start));
    if (left.IsEmpty()) return;
    if (found.size() < joined.Count() / 8) {
        std::erase_if(found, [&](std::uint32_t row) { return !left.AreIn(joined.Row(row)); });
        return;
    }
    const RowNumbers hits = joined.Find(left, start);
    RowNumbers both;
    both.reserve(std::min(hits.size(), found.size()));
    std::set_intersection(found.begin(), found.end(), hits.begin(), hits.end(),
                          std::back_inserter(both));
    found.swap(both);
}

void TitleSearch::FillResults() {
    results.Clear();
    if (found.size() < few) {
        std::vector<std::string> texts;
        for (const std::uint32_t row : found)
            texts.push_back(titles.List(static_cast<int>(row)));
        results.AddItems(std::move(texts));
    } else {
        results.AddSorted(Texts());
        filled = results.Changes();
    }
    former.clear();
}

std::vector<std::string> TitleSearch::Texts() {
    std::vector<char> isFound(joined.Count());
    for (const std::uint32_t row : found)
        isFound[row] = 1;
    const bool same = former.size() == found.size() &&
                      std::all_of(shown.begin(), shown.end(),
                                  [&](std::uint32_t row) { return isFound[row] != 0; });
    return same ? std::move(former) : TextsInOrder(isFound);
}

std::vector<std::string> TitleSearch::TextsInOrder(const std::vector<char>& isFound) {
    const std::vector<std::string>& rows = titles.Rows();
    if (!order) {
        order = forms::OrderOfRows(rows, [this](const std::string& a, const std::string& b) {
            return results.Precedes(a, b);
        });
    }
    const RowNumbers before = former.empty() ? RowNumbers() : std::exchange(shown, {});
    std::vector<std::string> texts;
    texts.reserve(found.size());
    shown.clear();
    shown.reserve(found.size());
    std::size_t next = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::uint32_t row = order->empty() ? static_cast<std::uint32_t>(i) : (*order)[i];
        const bool wasShown = next < before.size() && before[next] == row;
        if (isFound[row] != 0) {
            texts.push_back(wasShown ? std::move(former[next]) : rows[row]);
            shown.push_back(row);
        }
        if (wasShown) ++next;
    }
    return texts;
}

}  // namespace kivu::library
