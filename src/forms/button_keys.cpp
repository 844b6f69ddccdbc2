#include "forms/button_keys.h"

#include "forms/controls.h"

namespace kivu::forms {

bool IsPressedBy(const Control& control, Key key) {
    if (key.shift != 0) return false;
    const bool command =
        control.GetKind() == Kind::commandButton || control.GetKind() == Kind::label;
    if (key.code == keys::enter) return command;
    return key.code == keys::space && (command || dynamic_cast<const ValueButton*>(&control));
}

bool PressesAnother(const Control* struckOn, const Control* focus, Key key) {
    return focus && focus != struckOn && IsPressedBy(*focus, key);
}

}  // namespace kivu::forms
