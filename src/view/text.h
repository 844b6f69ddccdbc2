#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace kivu::view {

// The model's text on the screen. It is UTF-8; bytes that are not show as Windows-1252, so that a
// name brought over from an old disk can be read.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// The model counts a caret in code points, the toolkit in UTF-16 units. Places beyond the text are
// taken as its end.
int UnitsOf(const QString& text, int codePoints);
int CodePointsOf(const QString& text, int units);

}  // namespace kivu::view
