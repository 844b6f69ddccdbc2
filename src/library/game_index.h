#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/busy_state.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::library {

// FindGameInFullList for many texts at little more than the cost of one.
class GameIndex {
 public:
    GameIndex(core::Form1& form, core::BusyState& busy, core::EventPacer& pacer)
        : form(form), busy(busy), pacer(pacer) {}

    // What Find is going to be asked for, as far as it is known.
    void Expect(std::string text) { answers.try_emplace(std::move(text)); }

    // As FindGameInFullList. The first call looks for all expected texts together, and lets events
    // run meanwhile; so does one that finds the list changed.
    int Find(const std::string& text);

 private:
    struct Rows {
        int whole = -1;  // is the text, or its file name is
        int part = -1;   // contains it
    };

    void Look();
    bool LookForWhole();
    bool LookForParts();
    // Lets events run. False: the list is another one now, and is looked at anew without them.
    bool Turn();

    core::Form1& form;
    core::BusyState& busy;
    core::EventPacer& pacer;
    std::unordered_map<std::string, Rows> answers;
    bool looked = false;
    bool eventsRun = true;
    std::uint64_t changes = 0;  // of UAE_FULL, when it was looked at
};

}  // namespace kivu::library
