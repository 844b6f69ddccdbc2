#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "forms/types.h"

namespace kivu::forms {

// Rows in no order, by a collation that ranks texts: numbers are compared in place of texts, those
// of what follows the start that the rows have in common. Among rows of one rank it goes on behind
// their longer common start.
class RankedSort {
 public:
    using Place = std::uint32_t;

    RankedSort(std::span<const std::string_view> rows, const Collation& collation)
        : rows(rows), collation(collation) {}

    // The rows' places in their order, equal ones as they come.
    std::vector<Place> FindOrder();

 private:
    struct Entry {
        std::uint64_t rank;
        Place place;
    };

    // Entries whose rows are equal up to byte `start`.
    void Sort(std::span<Entry> entries, std::size_t start);
    void SortByText(std::span<Entry> entries) const;
    std::size_t CommonStart(std::span<const Entry> entries, std::size_t start) const;

    std::span<const std::string_view> rows;
    const Collation& collation;
};

}  // namespace kivu::forms
