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
    struct Services {
        platform::FileSystem& files;
        platform::ProgramStarter& starter;
    };

    Hints(core::Form1& form, Services services) : form(form), services(services) {}

    // Whenever another emulator, another directory or other words to search for are there.
    void Refresh();
    // Below the title with which a first start ends, with no list in front; also that nothing can
    // be stored, which would otherwise show only by what has gone at the next start.
    void ShowFirstSteps();

 private:
    std::string FirstStep() const;
    std::string NotStored() const;
    std::string NoEmulator() const;
    std::string LookAtDemo() const;
    std::string NoGames() const;
    std::string NoHits(const char* where) const;

    core::Form1& form;
    Services services;
    bool storesNothing = false;
    bool hasDemo = false;
};

}  // namespace kivu::ui
