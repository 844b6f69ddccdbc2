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
    exact = true;
    begins.reserve(rows.size() + 1);
    for (const std::string& row : rows) {
        begins.push_back(text.size());
        text += row;
        // A line end within a row would make two of it. Nobody can search for one.
        const auto from = text.begin() + static_cast<std::ptrdiff_t>(begins.back());
        if (row.find('\n') != std::string::npos) {
            std::replace(from, text.end(), '\n', '\0');
            exact = false;
        }
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
    std::optional<WordPlaces> places;
    if (driver) places.emplace(*driver, text);
    for (std::size_t row = start; row < Count(); ++row) {
        bool matches = false;
        if (driver) {
            const std::size_t place = places->Next(begins[row]);
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

void TitleSearch::TakeTitles() {
    if (version == titles.Changes()) return;
    version = titles.Changes();
    auto rows = std::make_shared<JoinedRows>();
    rows->Take(titles.Rows());
    joined = std::move(rows);
    order.reset();
    lastWords.reset();
}

const RowNumbers& TitleSearch::Find(std::string_view text, std::size_t start) {
    TakeTitles();
    SearchWords words(text);
    const auto left =
        lastWords && start >= lastStart ? words.Beyond(*lastWords) : std::optional<SearchWords>();
    if (left) {
        Narrow(*left, start);
    } else {
        found = joined->Find(words, start);
    }
    lastWords = std::move(words);
    lastStart = start;
    return found;
}

void TitleSearch::Narrow(const SearchWords& left, std::size_t start) {
    found.erase(found.begin(), std::lower_bound(found.begin(), found.end(), start));
    if (left.IsEmpty()) return;
    if (found.size() < joined->Count() / 8) {
        std::erase_if(found, [&](std::uint32_t row) { return !left.AreIn(joined->Row(row)); });
        return;
    }
    const RowNumbers hits = joined->Find(left, start);
    RowNumbers both;
    both.reserve(std::min(hits.size(), found.size()));
    std::set_intersection(found.begin(), found.end(), hits.begin(), hits.end(),
                          std::back_inserter(both));
    found.swap(both);
}

void TitleSearch::FillResults() {
    results.Clear();
    if (found.size() < few || !joined->AreExact()) {
        std::vector<std::string> texts;
        for (const std::uint32_t row : found)
            texts.push_back(titles.List(static_cast<int>(row)));
        results.AddItems(std::move(texts));
        return;
    }
    const auto count = static_cast<int>(found.size());
    results.AddOnDemand(count, [rows = joined, places = FoundInOrder()](int row) {
        return std::string(rows->Row(places[static_cast<std::size_t>(row)]));
    });
}

RowNumbers TitleSearch::FoundInOrder() {
    if (!order) order = forms::OrderOfRows(results.GetCollation(), titles.Rows());
    if (order->empty()) return found;
    std::vector<char> isFound(joined->Count());
    for (const std::uint32_t row : found)
        isFound[row] = 1;
    RowNumbers inOrder;
    inOrder.reserve(found.size());
    for (const std::uint32_t row : *order) {
        if (isFound[row] != 0) inOrder.push_back(row);
    }
    return inOrder;
}

}  // namespace kivu::library
