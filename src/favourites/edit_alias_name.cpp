#include "favourites/edit_alias_name.h"

#include "favourites/stored_texts.h"

namespace kivu::favourites {

std::string EditAliasName(const std::string& EName, const core::ProgramState& program,
                          platform::Dialogs& dialogs) {
    const std::string prompt =
        program.Say("Vergeben sie einen neuen Namen für: ", "Please enter a new title for: ");
    const std::string given = dialogs.InputBox(
        prompt + "\r\r" + EName, program.Say("Anzeigenamen anpassen", "Change alias"), EName);
    return IsStorable(given) ? given : EName;
}

}  // namespace kivu::favourites
