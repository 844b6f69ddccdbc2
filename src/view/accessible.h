#pragma once

#include "forms/types.h"

namespace kivu::view {

class Mirror;

// Lets assistive tools see the forms: what they ask of a widget is answered by its control, and
// what they do reaches that. From now on, for all views.
void ServeAssistiveTools();

// The widget shows the control, from now on and until the mirror goes.
void JoinAccessible(Mirror& mirror);
void PartAccessible(const Mirror& mirror);

// Tells tools of what the toolkit does not tell them by itself.
void TellChange(Mirror& mirror, forms::Aspect aspect);
void TellFocus(Mirror& mirror);

}  // namespace kivu::view
