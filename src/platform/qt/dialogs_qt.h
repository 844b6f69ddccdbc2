#pragma once

#include <string>

#include "platform/desktop.h"

namespace kivu::platform {

// Message and input boxes as windows in the program's style: "MessageBox" and "InputBox" by their
// object names, their buttons "Ok", "Cancel", "Yes", "No", the line "Input". They block their
// caller while events run on. Needs a QApplication.
class QtDialogs : public Dialogs {
 public:
    // The boxes' own words are German or English.
    explicit QtDialogs(bool german) : german(german) {}

    Answer MessageBox(const std::string& text, const std::string& title, Buttons buttons,
                      Icon icon) override;
    std::string InputBox(const std::string& prompt, const std::string& title,
                         const std::string& initial) override;

 private:
    bool german;
};

}  // namespace kivu::platform
