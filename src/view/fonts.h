#pragma once

#include <QFont>

#include "forms/types.h"

namespace kivu::view {

// The font with plain ones behind it, for a system that names a font which it does not have: what
// it would take instead may be of any kind.
QFont PlainFont(QFont font);

// The toolkit's font. Points are those of a 96 dpi screen, as twips are, whatever the screen's own
// resolution: text and geometry must stay in proportion.
QFont ToQt(const forms::Font& font);

// For quiet words beside text of this font: smaller, but never too small to read.
QFont HintFont(QFont font);

}  // namespace kivu::view
