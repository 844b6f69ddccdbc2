#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace kivu::hosts {

class DialogBox;

// Message and input boxes as windows in the program's style: "MessageBox" and "InputBox" by their
// object names, their buttons "Ok", "Cancel", "Yes", "No", the line "Input". They block their
// caller while events run on. Needs a QApplication.
class QtDialogs : public platform::Dialogs {
 public:
    // The boxes' own words are German or English.
    explicit QtDialogs(bool german) : german(german) {}

    platform::Answer MessageBox(const std::string& text, const std::string& title,
                                platform::Buttons buttons, platform::Icon icon) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override;
    // In the topmost one.
    void PressInBox(BoxKey key) override;

 private:
    int Ask(DialogBox& box);

    bool german;
    std::vector<DialogBox*> open;  // the topmost is the last
};

}  // namespace kivu::hosts
