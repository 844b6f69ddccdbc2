#include "text/edit_distance.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "text/text.h"

namespace kivu::text {

namespace {

// File names fit; a longer text moves to the heap.
constexpr std::size_t kShort = 256;

template <typename Item, std::size_t InPlace>
class Buffer {
 public:
    // Room for `size` items, their values left open.
    Item* Reserve(std::size_t size) {
        if (size <= InPlace) return inPlace.data();
        onHeap.resize(size);
        return onHeap.data();
    }

 private:
    std::array<Item, InPlace> inPlace;
    std::vector<Item> onHeap;
};

struct CodePoints {
    Buffer<char32_t, kShort> buffer;
    const char32_t* begin = nullptr;
    std::size_t size = 0;

    explicit CodePoints(std::string_view text) {
        char32_t* out = buffer.Reserve(text.size());
        begin = out;
        for (std::size_t at = 0; at < text.size();)
            *out++ = NextCodePoint(text, at);
        size = static_cast<std::size_t>(out - begin);
    }
};

// Both texts without their common start and end, which never take part in a cheapest way.
void CutCommonEnds(CodePoints& a, CodePoints& b) {
    while (a.size > 0 && b.size > 0 && a.begin[0] == b.begin[0]) {
        ++a.begin;
        ++b.begin;
        --a.size;
        --b.size;
    }
    while (a.size > 0 && b.size > 0 && a.begin[a.size - 1] == b.begin[b.size - 1]) {
        --a.size;
        --b.size;
    }
}

// Three rows of the table, and of each only the cells at most `limit` - 1 away from the diagonal:
// all others hold `limit` or more. A cell beside the band is read, so its neighbours are set to
// `limit`.
class BandedTable {
 public:
    BandedTable(const CodePoints& a, const CodePoints& b, int limit) : a(a), b(b), limit(limit) {
        const std::size_t width = b.size + 2;
        int* rows = cells.Reserve(3 * width);
        before = rows;
        last = rows + width;
        current = rows + 2 * width;
    }

    int Distance() {
        const std::size_t reach = static_cast<std::size_t>(limit) - 1;
        for (std::size_t j = 0; j <= b.size && j <= reach + 1; ++j) {
            last[j] = std::min(static_cast<int>(j), limit);
        }
        int leastOfLast = 0;
        for (std::size_t i = 1; i <= a.size; ++i) {
            const std::size_t from = i > reach ? i - reach : 1;
            const std::size_t to = std::min(b.size, i + reach);
            const int least = FillRow(i, from, to);
            // A swap may reach over one row, at the price of 1.
            if (least >= limit && leastOfLast >= limit - 1) return limit;
            leastOfLast = least;
            std::swap(before, last);
            std::swap(last, current);
        }
        return std::min(last[b.size], limit);
    }

 private:
    int FillRow(std::size_t i, std::size_t from, std::size_t to) {
        const char32_t wanted = a.begin[i - 1];
        current[from - 1] = from == 1 ? std::min(static_cast<int>(i), limit) : limit;
        int least = current[from - 1];
        for (std::size_t j = from; j <= to; ++j) {
            const char32_t other = b.begin[j - 1];
            int cost = last[j - 1] + (wanted == other ? 0 : 1);
            cost = std::min(cost, std::min(last[j], current[j - 1]) + 1);
            if (i > 1 && j > 1 && wanted == b.begin[j - 2] && a.begin[i - 2] == other) {
                cost = std::min(cost, before[j - 2] + 1);
            }
            current[j] = std::min(cost, limit);
            least = std::min(least, current[j]);
        }
        if (to < b.size) current[to + 1] = limit;
        return least;
    }

    const CodePoints& a;
    const CodePoints& b;
    int limit;
    Buffer<int, 3 * (kShort + 2)> cells;
    int* before = nullptr;
    int* last = nullptr;
    int* current = nullptr;
};

}  // namespace

int EditDistance(std::string_view textA, std::string_view textB, int limit) {
    if (limit <= 0 || textA == textB) return 0;
    CodePoints a(textA);
    CodePoints b(textB);
    CutCommonEnds(a, b);
    const std::size_t longer = std::max(a.size, b.size);
    const std::size_t shorter = std::min(a.size, b.size);
    const auto bound = static_cast<std::size_t>(limit);
    if (longer - shorter >= bound) return limit;
    if (shorter == 0) return static_cast<int>(longer);
    // No distance is above the longer length, so no wider band than that is of use.
    const int useful = static_cast<int>(std::min(bound, longer + 1));
    return BandedTable(a, b, useful).Distance();
}

int EditDistance(std::string_view a, std::string_view b) {
    return EditDistance(a, b, std::numeric_limits<int>::max());
}

}  // namespace kivu::text
