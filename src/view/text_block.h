#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

namespace kivu::view {

// The lines that a text gives in a place of so many pixels: broken where it says, then between
// words; the last line that fits ends in dots if there is more.
QStringList BreakText(const QString& text, const QFont& font, double width, double height);

// CR, LF and CR LF break lines.
QStringList SplitLines(const QString& text);

}  // namespace kivu::view
