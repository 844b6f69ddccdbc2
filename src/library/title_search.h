#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/list_control.h"
#include "library/search_words.h"

namespace kivu::library {

using RowNumbers = std::vector<std::uint32_t>;

// The rows of a list one behind the other, to be searched as one text.
class JoinedRows {
 public:
    void Take(const std::vector<std::string>& rows);
    std::size_t Count() const { return begins.empty() ? 0 : begins.size() - 1; }
    std::string_view Row(std::size_t row) const;
    // Whether Row gives each row as it is: none holds a line end.
    bool AreExact() const { return exact; }
    // The rows from `start` on that contain all words, in rising order.
    RowNumbers Find(const SearchWords& words, std::size_t start) const;

 private:
    std::size_t RowAt(std::size_t place, std::size_t from) const;

    std::string text;                 // each row ended by LF
    std::vector<std::size_t> begins;  // of each row in the text, and the text's end
    bool exact = true;
};

// The search in a list of titles that fills another, sorted one, key by key. What one key has found
// makes the next one cheap: a longer text is looked for in what the shorter one has left, and many
// results are copied when somebody looks at them.
class TitleSearch {
 public:
    TitleSearch(const forms::ListBox& titles, forms::ListBox& results)
        : titles(titles), results(results) {}

    // The titles from row `start` on that contain every word of `text`: their rows in rising order,
    // valid until the next search.
    const RowNumbers& Find(std::string_view text, std::size_t start);
    // Puts what has been found into the results, in the place of those that are there.
    void FillResults();

 private:
    void TakeTitles();
    void Narrow(const SearchWords& left, std::size_t start);
    RowNumbers FoundInOrder();

    const forms::ListBox& titles;
    forms::ListBox& results;

    std::optional<std::uint64_t> version;  // of the titles that all below is about
    std::shared_ptr<const JoinedRows> joined = std::make_shared<JoinedRows>();
    std::optional<RowNumbers> order;  // the titles sorted; empty if they are in order themselves

    std::optional<SearchWords> lastWords;
    std::size_t lastStart = 0;
    RowNumbers found;
};

}  // namespace kivu::library
