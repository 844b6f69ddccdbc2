#pragma once

class QWidget;

namespace kivu::view {

// Mouse and keys would come to it: no question or modal window stands in front of it, and nobody
// else's list is dropped down.
bool IsOpenToHands(const QWidget& widget);

}  // namespace kivu::view
