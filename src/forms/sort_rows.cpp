#include "forms/sort_rows.h"

#include "forms/ranked_sort.h"

namespace kivu::forms {

namespace {

auto Before(const Collation* collation) {
    return [collation](std::string_view a, std::string_view b) {
        return collation ? collation->Compare(a, b) < 0 : a < b;
    };
}

template <typename Iterator>
std::vector<std::uint32_t> RankedOrder(const Collation& collation, Iterator first, Iterator last) {
    const std::vector<std::string_view> views(first, last);
    return RankedSort(views, collation).FindOrder();
}

template <typename Iterator>
void SortBy(const Collation* collation, Iterator first, Iterator last,
            std::vector<OrderedRows> known) {
    RowSort<decltype(Before(collation)), Iterator> sort(first, last, Before(collation));
    sort.Know(std::move(known));
    if (!collation || !sort.AreInNoOrder()) {
        sort.Sort();
        return;
    }
    std::vector<typename std::iterator_traits<Iterator>::value_type> sorted;
    sorted.reserve(static_cast<std::size_t>(last - first));
    for (const std::uint32_t place : RankedOrder(*collation, first, last))
        sorted.push_back(std::move(first[static_cast<std::ptrdiff_t>(place)]));
    std::move(sorted.begin(), sorted.end(), first);
}

}  // namespace

void SortRowsBy(const Collation* collation, std::vector<std::string>::iterator first,
                std::vector<std::string>::iterator last, std::vector<OrderedRows> known) {
    SortBy(collation, first, last, std::move(known));
}

void SortNamesBy(const Collation* collation, std::vector<std::string_view>& names) {
    SortBy(collation, names.begin(), names.end(), {});
}

std::vector<std::uint32_t> OrderOfRows(const Collation* collation,
                                       const std::vector<std::string>& rows) {
    using Iterator = std::vector<std::string>::const_iterator;
    RowSort<decltype(Before(collation)), Iterator> sort(rows.begin(), rows.end(),
                                                        Before(collation));
    if (collation && sort.AreInNoOrder()) return RankedOrder(*collation, rows.begin(), rows.end());
    return sort.FindOrder();
}

}  // namespace kivu::forms
