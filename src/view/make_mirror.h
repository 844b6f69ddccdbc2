#pragma once

#include <memory>

#include "view/mirror.h"

namespace kivu::view {

// The mirror that fits the control's kind, with its widget on `parent`.
std::unique_ptr<Mirror> MakeMirror(forms::Control& control, QWidget* parent, MirrorHost& host);

}  // namespace kivu::view
