#pragma once

#include <QFont>

#include "forms/types.h"

namespace kivu::view {

// The toolkit's font. Points are those of a 96 dpi screen, as twips are, whatever the screen's own
// resolution: text and geometry must stay in proportion.
QFont ToQt(const forms::Font& font);

}  // namespace kivu::view
