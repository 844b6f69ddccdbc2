#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <functional>

#include "forms/user_input.h"
#include "view/mirror.h"

namespace kivu::view {

// Sends a key through the form's handlers, and what they leave of it to the control: key down, key
// press, then what the control itself makes of it. A swallowed key goes no further.
class Keyboard {
 public:
    using MirrorOf = std::function<Mirror*(forms::Control&)>;
    Keyboard(forms::Form& form, forms::UserInput& input, MirrorOf mirrorOf);

    void Press(QWidget& receiver, QKeyEvent& event);

    // Alt+F4 that nobody swallowed.
    std::function<void()> onCloseKey;

 private:
    // The characters that the handlers let through; false: they swallowed one.
    bool PressCharacters(std::vector<forms::Character>& characters);
    bool OpensPopup(forms::Key key) const;
    void Edit(QWidget& receiver, QKeyEvent& event, forms::Key key,
              const std::vector<forms::Character>& typed,
              const std::vector<forms::Character>& left);

    forms::Form& form;
    forms::UserInput& input;
    MirrorOf mirrorOf;
};

}  // namespace kivu::view
