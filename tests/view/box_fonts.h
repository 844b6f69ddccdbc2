#pragma once

#include <QFontMetricsF>
#include <QGuiApplication>

namespace kivu::tests {

// A host without fonts draws boxes, all of one width: what fits into what cannot be seen there.
inline bool FontsAreBoxes() {
    const QFontMetricsF metrics(QGuiApplication::font());
    return metrics.horizontalAdvance('i') == metrics.horizontalAdvance('W');
}

}  // namespace kivu::tests
