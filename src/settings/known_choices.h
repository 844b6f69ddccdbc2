#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/program_state.h"
#include "settings/detection.h"
#include "settings/known_emulators.h"

namespace kivu::settings {

// A row of KnownEmuCombo.
struct KnownChoice {
    std::string text;         // as the row reads
    std::string display;      // in front of the question
    std::string titlePrefix;  // of the question
    Assignments onYes;
    // What an empty path gets: a bare name, which the start finds in the search path. Empty: none.
    std::string program;
};

// The known emulators of the host in the order of the rows. `inPath`: the host finds a program of
// this bare name; such come first. Windows' programs come behind those of a Linux system.
std::vector<KnownChoice> KnownChoices(bool posix,
                                      const std::function<bool(const std::string&)>& inPath);

// What choosing a row asks and gives; a No changes nothing. `hasPath`: the user has set one.
Detection Choose(const KnownChoice& choice, bool hasPath, const core::ProgramState& program);

}  // namespace kivu::settings
