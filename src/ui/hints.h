#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/program_starter.h"

namespace kivu::core {
struct Form1;
}

namespace kivu::ui {

// Quiet words in the places of rows that are not there: what is the matter, and what to do next.
class Hints {
 public:
    Hints(core::Form1& form, platform::FileSystem& files, const platform::ProgramStarter& starter)
        : form(form), files(files), starter(starter) {}

    // Whenever another emulator, another directory or other words to search for are there.
    void Refresh();
    // When the program has started: what to do first, below the title where no list is in front;
    // and whatever is, that nothing can be stored, which would otherwise show only by what has gone
    // at the next start.
    void ShowFirstSteps();
    // The title's line tells of the latter too, behind whatever it says of the moment.
    void MyCaptionLabel_Change();

 private:
    std::string FirstStep() const;
    std::string NotStored() const;
    std::string NoEmulator() const;
    std::string NoGames() const;
    std::string NoHits(const char* where) const;

    core::Form1& form;
    platform::FileSystem& files;
    const platform::ProgramStarter& starter;
    bool storesNothing = false;
    bool demoIsThere = false;
};

}  // namespace kivu::ui
