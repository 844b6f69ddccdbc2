#pragma once

#include <string>

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// Quiet words in the places of rows that are not there: what is the matter, and what to do next.
class Hints {
 public:
    explicit Hints(core::Form1& form) : form(form) {}

    // Whenever another emulator, another directory or other words to search for are there.
    void Refresh();
    // Below the title with which a first start ends, with no list in front.
    void ShowFirstSteps();

 private:
    std::string NoEmulator() const;
    std::string NoGames() const;
    std::string NoHits(const char* where) const;

    core::Form1& form;
};

}  // namespace kivu::ui
