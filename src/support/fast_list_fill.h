#pragma once

#include <string>
#include <utility>
#include <vector>

#include "forms/list_control.h"

namespace kivu::support {

// Fills a big list at once: the rows are collected and reach the list together, which draws itself
// one single time. An empty text is not added.
class FastListFill {
 public:
    explicit FastListFill(forms::ListControl& list) : list(&list) {}
    ~FastListFill() { End(); }
    FastListFill(const FastListFill&) = delete;
    FastListFill& operator=(const FastListFill&) = delete;

    // Room for so many rows, to spare a long fill the moves.
    void Reserve(std::size_t count) { rows.reserve(count); }
    // False: the text is empty, or the fill has ended.
    bool Add(std::string text) {
        if (text.empty() || !list) return false;
        rows.push_back(std::move(text));
        return true;
    }
    void End() {
        if (list) list->AddItems(std::move(rows));
        list = nullptr;
    }

 private:
    forms::ListControl* list;
    std::vector<std::string> rows;
};

}  // namespace kivu::support
