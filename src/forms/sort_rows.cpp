#include "forms/sort_rows.h"

#include "forms/ranked_sort.h"

namespace kivu::forms {

namespace {

auto Before(const Collation* collation) {
    return [collation](const std::string& a, const std::string& b) {
        return collation ? collation->Compare(a, b) < 0 : a < b;
    };
}

}  // namespace

void SortRowsBy(const Collation* collation, std::vector<std::string>::iterator first,
                std::vector<std::string>::iterator last) {
    RowSort sort(first, last, Before(collation));
    if (!collation || !sort.AreInNoOrder()) {
        sort.Run();
        return;
    }
    std::vector<std::string> sorted;
    sorted.reserve(static_cast<std::size_t>(last - first));
    for (const std::uint32_t place : RankedSort({first, last}, *collation).FindOrder())
        sorted.push_back(std::move(first[static_cast<std::ptrdiff_t>(place)]));
    std::move(sorted.begin(), sorted.end(), first);
}

std::vector<std::uint32_t> OrderOfRows(const Collation* collation,
                                       const std::vector<std::string>& rows) {
    using Iterator = std::vector<std::string>::const_iterator;
    RowSort<decltype(Before(collation)), Iterator> sort(rows.begin(), rows.end(),
                                                        Before(collation));
    if (collation && sort.AreInNoOrder()) return RankedSort(rows, *collation).FindOrder();
    return sort.FindOrder();
}

}  // namespace kivu::forms
