#pragma once

#include <string>

#include "core/program_state.h"
#include "platform/dialogs.h"

namespace kivu::favourites {

// Asks for a new title. The old name comes back when the user gives none, or one that a profile
// could not hold. The box is modal: the world may be another when it closes.
std::string EditAliasName(const std::string& EName, const core::ProgramState& program,
                          platform::Dialogs& dialogs);

}  // namespace kivu::favourites
