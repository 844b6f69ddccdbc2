#pragma once

#include <string>

#include "core/program_state.h"
#include "settings/box.h"

// What the settings window asks and tells beside the known emulators. A box without a second
// wording speaks German on every system.
namespace kivu::settings {

// That of a program which needs another one of its kind.
Box Mame32Warning(const core::ProgramState& program);

// Unsaved changes: OK leaves without them.
Box DiscardQuestion(const core::ProgramState& program);
// Before a directory is read again.
Box SaveFirstBox();
// The title while it is read.
std::string ScanTitle(const core::ProgramState& program);
Box ReloadAllQuestion(const core::ProgramState& program);
Box StartNowQuestion(const std::string& exePath);
Box ImportCancelledBox();

// Another program has written the master while the user changed its text, or its text has been
// `emptied` before that by the defaults of an emulator; Yes overwrites it.
Box MasterQuestion(const std::string& path, const core::ProgramState& program, bool emptied);
// A file for the user's editor, which did not come up.
Box NotEditedBox(const std::string& path, const core::ProgramState& program);
Box NotSavedBox(const std::string& path, const core::ProgramState& program);

}  // namespace kivu::settings
