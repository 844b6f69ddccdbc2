#pragma once

#include "forms/form.h"

namespace kivu::forms {

// How one window looks, for the others to look alike.
struct Look {
    double points = 10;  // of its text
    Color back = Rgb(0x00, 0x52, 0xbc);
    Color fore = Rgb(0xff, 0xff, 0xff);
    // Of what holds rows or text to edit.
    Color fieldBack = back;
    Color fieldFore = fore;
};

// Gives a window of its own design the colours and the text size of another one, once, before it is
// shown. Places, sizes and fonts grow alike, so that the design stays what it is, as far as the
// room (twips) allows; a window that is too large for it shrinks. A control whose colour is not its
// window's keeps it.
void TakeLook(Form& form, const Look& look, Size room);

}  // namespace kivu::forms
